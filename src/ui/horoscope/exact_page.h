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

 private:
  QHBoxLayout* LayOutHead();
  TableView* AddTable(const char* name, const QString& title,
                      const std::vector<ColumnPlan>& columns, QVBoxLayout& layout);
  void ChooseReading(exact::Reading reading);

  Segments* ayanamsa_;
  QLabel* captions_;
  QLabel* message_;  // in the place of the cusps where there are none
  TableView* cusps_;
  TableView* planets_;
  std::vector<TablePlan*> plans_;
};

}  // namespace orvex::ui
