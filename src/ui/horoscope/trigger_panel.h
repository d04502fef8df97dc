// When moving bodies pass through spans of the fruitful planets within a chosen period. A long
// search runs beside the window and can be given up.
#pragma once

#include <QTimer>
#include <QWidget>
#include <memory>

#include "judgement/triggers.h"
#include "ui/horoscope/matter_table.h"

class QProgressBar;
class QPushButton;
class QToolButton;

namespace orvex::ui {

class TriggerPanel final : public QWidget {
  Q_OBJECT

 public:
  explicit TriggerPanel(HoroscopeDocument& document);

  // What is searched: the fruitful planets of the matter, and the span of the chosen period by the
  // calendar of the user's city.
  struct Request {
    judgement::Matter Matter;
    std::set<std::string> Lords;
    judgement::PeriodWindow Period;
  };

  // Searches anew where the panel is in sight, else when it comes into sight.
  void Show(Request request);

 signals:
  // A file was written; what the status line says of it.
  void Told(const QString& words);

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void LayOut();
  void Begin();
  void GoOn();
  void Cancel();
  void End();
  std::vector<exact::Point> Bodies() const;
  judgement::TriggerSearch Search() const;
  void WriteCalendar();

  HoroscopeDocument& document_;
  Request request_;
  bool waits_ = false;  // the request was not searched yet
  std::unique_ptr<judgement::TriggerRun> run_;
  QTimer* beat_;
  std::vector<QToolButton*> bodies_;  // in the order of kTriggerBodies
  MatterTable* table_;
  QProgressBar* progress_;
  QPushButton* cancel_;
  QPushButton* calendar_;
};

}  // namespace orvex::ui
