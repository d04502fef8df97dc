// The sky of now as it is read in passing: chart and ruling planets, the horas of the day, the
// lines of the panchang that are asked for most, nine planets with their lords.
#pragma once

#include <QWidget>
#include <array>

#include "panchang/sky_view.h"
#include "ui/base/workplace.h"

class QGridLayout;
class QHBoxLayout;
class QToolButton;

namespace orvex::ui {

class ChartView;
class ElidedLabel;
class HoraStrip;
class LinkButton;
class TablePlan;
class TableView;

class SkyColumn final : public QWidget {
  Q_OBJECT

 public:
  explicit SkyColumn(Workplace& place);

  void ShowView(const panchang::SkyView& view);

  QToolButton& FoldButton() { return *fold_; }
  TableView& Planets() { return *planets_; }

 signals:
  void TodayWanted();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  static constexpr std::size_t kLines = 8;

  QHBoxLayout* MakeHead();
  QHBoxLayout* MakeChart();
  QGridLayout* MakeLines();
  QWidget* MakeNext();
  QWidget* MakeFoot();
  void ShowRuling(const panchang::SkyView& view);
  void ShowLines(const panchang::SkyView& view);
  void ShowPlanets(const core::Table& planets);

  Workplace& place_;
  ElidedLabel* title_;
  ElidedLabel* day_;
  QToolButton* fold_;
  ChartView* chart_;
  TableView* ruling_;
  TablePlan* rulingPlan_;
  HoraStrip* strip_;
  std::array<ElidedLabel*, kLines> labels_{};
  std::array<ElidedLabel*, kLines> values_{};
  TableView* planets_;
  TablePlan* planetsPlan_;
  std::array<ElidedLabel*, 2> next_{};  // the next changes of the Ascendant and of the Moon
  QWidget* changes_;                    // holds them
  ElidedLabel* moon_;
  LinkButton* today_;
  QWidget* foot_;
};

}  // namespace orvex::ui
