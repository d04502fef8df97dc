// The first page: both charts, all planets and all cusps without a bar, and beside them the ruling
// planets and the birth. In a small window one chart and one table, with switches.
#pragma once

#include "ui/base/chart_view.h"
#include "ui/horoscope/catalogue_table.h"
#include "ui/horoscope/horoscope_page.h"

class QHBoxLayout;
class QPushButton;
class QVBoxLayout;

namespace orvex::ui {

class BirthPanel;
class RulingLine;
class Segments;

class ChartPage final : public HoroscopePage {
  Q_OBJECT

 public:
  explicit ChartPage(HoroscopeDocument& document);

  void ShowModel() override;

  // Whether the captions of the birth are in sight.
  bool ShowsBirth() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QVBoxLayout* LayOutMiddle();
  QWidget* LayOutCharts();
  QWidget* LayOutTables();
  QWidget* LayOutSide();
  void PlanTables();
  void Connect();
  void Arrange();
  void ArrangeCharts(int side, bool one);
  void ArrangeTables(bool one);
  void ArrangeRulers();
  int RoomForTables() const;
  void ShowRulingPlanets();

  ChartView* rashi_;
  ChartView* chalit_;
  CatalogueTable* planets_;
  CatalogueTable* cusps_;
  CatalogueTable* ruling_;
  RulingLine* rulingLine_;
  BirthPanel* birth_;
  Segments* style_;
  Segments* whichChart_;
  Segments* whichTable_;
  Segments* whose_;
  QPushButton* allColumns_;
  QLabel* rashiTitle_;
  QLabel* chalitTitle_;
  QWidget* charts_ = nullptr;
  QWidget* side_ = nullptr;
  QHBoxLayout* rulingFoot_ = nullptr;
  std::optional<bool> rulersBeside_;  // at the side of the charts; nothing before the first look
};

}  // namespace orvex::ui
