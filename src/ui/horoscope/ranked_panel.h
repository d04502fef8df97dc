// The periods of a matter, best first: filter, strip of the years, list, and beside it the triggers
// of the chosen one.
#pragma once

#include <QWidget>

#include "judgement/judge_matter.h"
#include "ui/horoscope/matter_table.h"

class QPushButton;

namespace orvex::ui {

class PeriodFilter;
class PeriodStrip;
class TriggerPanel;

class RankedPanel final : public QWidget {
  Q_OBJECT

 public:
  explicit RankedPanel(HoroscopeDocument& document);

  // The span whose periods are ranked; the usual one of the horoscope before any was chosen.
  const judgement::PeriodWindow& Window();

  void Show(const judgement::Judgement& judged, const judgement::Matter& matter,
            const std::set<QString>& fruitful);

  // Gives the list the keys.
  void FocusList();

 signals:
  void WindowChanged();
  // A row was opened: the day on which its period begins.
  void PeriodOpened(core::DateTime day);
  // A file was written; what the status line says of it.
  void Told(const QString& words);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void LayOut();
  void Connect();
  void Arrange();
  void PlaceFilter(bool inTitle);
  void ShowChosen();
  void ShowCount();
  void Open();
  void WriteCalendar();
  int ChosenPeriod() const;
  std::string MomentTag(int row) const;

  HoroscopeDocument& document_;
  PeriodFilter* filter_;
  QWidget* filterRow_;  // holds the filter where the line of the title has no room for it
  QPushButton* triggersButton_;
  QPushButton* calendar_;
  PeriodStrip* strip_;
  MatterTable* list_;
  TriggerPanel* triggers_;
  core::Table periods_;
  judgement::Matter matter_;
  std::set<std::string> lords_;  // the fruitful ones
};

}  // namespace orvex::ui
