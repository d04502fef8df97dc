// The head of a horoscope's window: whose it is in two lines, what runs, and the buttons. It cuts
// what does not fit and never dictates a width. Rotated, all of it is amber and shows the way back.
#pragma once

#include <QWidget>

#include "ui/horoscope/horoscope_document.h"

class QAction;
class QHBoxLayout;
class QLabel;
class QToolButton;

namespace orvex::ui {

class ElidedLabel;

class HeadPane final : public QWidget {
  Q_OBJECT

 public:
  explicit HeadPane(HoroscopeDocument& document);

  void ShowModel();

  // A flat button for an action, with a menu where the action has one. Without its word where the
  // window is narrow.
  QToolButton* AddButton(QAction* action);

  // What stands before the name.
  void AddBefore(QWidget* widget);

  void SetNarrow(bool narrow);

 signals:
  void ResetWanted();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QHBoxLayout* MakeFirstLine();
  QHBoxLayout* MakeSecondLine();
  bool IsRotated() const;

  HoroscopeDocument& document_;
  QHBoxLayout* first_ = nullptr;
  ElidedLabel* name_;
  ElidedLabel* birth_;
  QLabel* rotated_;
  QToolButton* reset_;
  ElidedLabel* facts_;
  QLabel* periods_;
  ElidedLabel* question_;
  std::vector<QToolButton*> buttons_;
};

}  // namespace orvex::ui
