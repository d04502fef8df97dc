// One side of the plan of the 32 door pads: sectors, pads, and the two rows of deities.
#pragma once

#include <QTableWidget>

#include "chart/horoscope_model.h"
#include "vedic/vastu_plan.h"

namespace orvex::ui {

class VastuSide final : public QTableWidget {
  Q_OBJECT

 public:
  explicit VastuSide(vedic::PlanSide side);

  void ShowPads(const core::Table& pads);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 private:
  // Places along the side, 0 to 7, and inward from the outer edge, 0 to 3.
  bool IsUpright() const;
  int RowOf(int along, int inward) const;
  int ColumnOf(int along, int inward) const;
  void SetCell(int along, int inward, const core::Cell& cell);
  void ShowSectors();

  vedic::PlanSide side_;
};

}  // namespace orvex::ui
