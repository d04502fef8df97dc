// The strip of the life, the four lists of periods, each opened from the one above it, and their
// summaries: the selected periods and how often they name each house.
#pragma once

#include <array>

#include "ui/horoscope/catalogue_table.h"
#include "ui/horoscope/horoscope_page.h"

class QHBoxLayout;

namespace orvex::ui {

class DateEdit;
class LifeStrip;
class Segments;

class DashaPage final : public HoroscopePage {
  Q_OBJECT

 public:
  explicit DashaPage(HoroscopeDocument& document);

  void ShowModel() override;

 protected:
  // Left and Right go from list to list.
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QHBoxLayout* LayOutLists();
  QHBoxLayout* LayOutSummaries();
  void PlanTables();
  void AddTools();
  void ShowList(std::size_t level);
  QString PathTo(std::size_t level) const;
  void GoToTyped();
  void ArrangeSummaries();
  void Connect(std::size_t level);
  void OpenLater(std::size_t level, std::size_t row);

  LifeStrip* strip_;
  std::array<CatalogueTable*, 4> lists_;
  CatalogueTable* periods_;
  CatalogueTable* houses_;
  DateEdit* date_;
  Segments* summary_;     // which of the two stands in a window without room for both
  bool saysNow_ = true;   // in words what runs, else by an arrow
  bool showing_ = false;  // the model is being shown: a row that becomes current was not picked
};

}  // namespace orvex::ui
