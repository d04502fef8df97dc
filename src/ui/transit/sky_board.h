// The sky of one instant over the user city: header, chart, panchang and planets.
#pragma once

#include <QWidget>

#include "panchang/sky_view.h"
#include "ui/base/workplace.h"

class QHBoxLayout;
class QLabel;

namespace orvex::ui {

class ChartView;
class TableView;

class SkyBoard final : public QWidget {
  Q_OBJECT

 public:
  // What stands beside the chart.
  enum class Side { RulingPlanets, Horas };

  SkyBoard(Workplace& place, Side side);

  void ShowView(const panchang::SkyView& view);

 private:
  void Build(Side side);
  QWidget* BuildHeader();
  QWidget* BuildUpper(Side side);
  void AddHoras(QHBoxLayout& row);
  TableView* MakeTable(const char* name, const QString& title);
  static void ShowHoras(TableView& list, const core::Table& horas);
  void ShowHeader(const panchang::SkyCaptions& captions);

  Workplace& place_;
  QWidget* band_;  // in the colour of the disha shool
  QLabel* title_;
  QLabel* day_;
  QLabel* city_;
  QLabel* moon_;
  QLabel* ganapathi_;  // what rules the tithi
  QLabel* next_;       // when the Ascendant and the Moon change their lords
  ChartView* chart_;
  TableView* panchang_;
  TableView* planets_;
  TableView* ruling_ = nullptr;
  TableView* dayHoras_ = nullptr;
  TableView* nightHoras_ = nullptr;
};

}  // namespace orvex::ui
