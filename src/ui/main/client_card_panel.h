// The card of the chosen client: who, when and where, what runs, what was given; and the ways on
// from there.
#pragma once

#include <QTimer>
#include <QWidget>

#include "horoscope/client_card.h"
#include "ui/base/workplace.h"

class QAction;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QToolButton;

namespace orvex::ui {

class ChartView;
class ElidedLabel;
class PeriodBars;
class RemedyList;

class ClientCardPanel final : public QWidget {
  Q_OBJECT

 public:
  explicit ClientCardPanel(Workplace& place);

  // A client by its id and name; the rest of its card follows when the choice has rested. 0: nobody
  // is chosen, under the caption of the remedies.
  void Choose(std::int32_t clientId, const QString& name, const QString& caption);
  // The same client as it is stored now.
  void Reload();

  // Buttons for what can be done with the client; those of `seldom` stand in a menu.
  struct Actions {
    QAction* Open;
    QAction* Edit;
    QAction* Report;
    QAction* Move;
    QList<QAction*> Seldom;
  };
  void SetActions(const Actions& actions);

 protected:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QHBoxLayout* MakeHead();
  QHBoxLayout* MakeButtons();
  QHBoxLayout* MakeChart();
  QWidget* MakeContact();
  QToolButton* AddTool(const char* name, const char* icon);
  void ShowCard();
  void Fill(const horoscope::ClientCard& card);
  void Clear();

  Workplace& place_;
  std::int32_t client_ = 0;
  QString caption_;
  QTimer rest_;  // since the choice
  QWidget* body_;
  ElidedLabel* name_;
  QToolButton* move_;
  QToolButton* more_;
  ElidedLabel* birth_;
  ElidedLabel* person_;
  ElidedLabel* question_;
  QPushButton* open_;
  QPushButton* edit_;
  QPushButton* report_;
  ChartView* chart_;
  QLabel* periodsTitle_;
  PeriodBars* periods_;
  ElidedLabel* ascendant_;
  ElidedLabel* moon_;
  RemedyList* remedies_;
  QLabel* commentsTitle_;
  QLabel* comments_;
  QWidget* contact_;
  QLabel* mobile_;
  QLabel* email_;
};

}  // namespace orvex::ui
