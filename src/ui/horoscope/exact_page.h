// The page "To the second": the exact reading of the birth beside the stored chart.
#pragma once

#include "exact/exact_sky.h"
#include "ui/base/labels.h"
#include "ui/base/table_plan.h"
#include "ui/horoscope/horoscope_page.h"

class QHBoxLayout;
class QVBoxLayout;

namespace orvex::ui {

class Segments;

class ExactPage final : public HoroscopePage {
  Q_OBJECT

 public:
  explicit ExactPage(HoroscopeDocument& document);

  void ShowModel() override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QHBoxLayout* LayOutHead();
  void Arrange();
  TableView* AddTable(const char* name, const QString& title,
                      const std::vector<ColumnPlan>& columns, QVBoxLayout& layout);
  void ChooseReading(exact::Reading reading);

  Segments* ayanamsa_;
  Segments* part_;  // which table is in sight where both have no room
  QLabel* captions_;
  QLabel* message_;  // in the place of the cusps where there are none
  TableView* cusps_;
  TableView* planets_;
  bool hasCusps_ = true;
  std::vector<TablePlan*> plans_;
};

}  // namespace orvex::ui
