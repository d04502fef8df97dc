#include "ui/horoscope/vastu_side.h"

#include <QHeaderView>

#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "vedic/vastu.h"

namespace orvex::ui {

namespace {

using vedic::PadColumn;
using vedic::PlanSide;

constexpr int kPadsOfSide = 8;
constexpr int kDepth = 4;
constexpr int kCellWidth = 64;
constexpr int kLeastCell = 40;

// From the outer edge inwards.
enum Ring { kSectors, kNames, kOuter, kInner };

}  // namespace

VastuSide::VastuSide(PlanSide side) : side_(side) {
  constexpr std::array<const char*, 4> kObjectNames = {"vastuNorth", "vastuEast", "vastuSouth",
                                                       "vastuWest"};
  setObjectName(kObjectNames.at(static_cast<std::size_t>(side)));
  constexpr std::array<const char*, 4> kNames = {
      QT_TRANSLATE_NOOP("VastuSide", "Pads of the north"),
      QT_TRANSLATE_NOOP("VastuSide", "Pads of the east"),
      QT_TRANSLATE_NOOP("VastuSide", "Pads of the south"),
      QT_TRANSLATE_NOOP("VastuSide", "Pads of the west")};
  setAccessibleName(tr(kNames.at(static_cast<std::size_t>(side))));
  setRowCount(IsUpright() ? kPadsOfSide : kDepth);
  setColumnCount(IsUpright() ? kDepth : kPadsOfSide);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(NoSelection);
  setFocusPolicy(Qt::NoFocus);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setTextElideMode(Qt::ElideNone);
  setFont(Theme::Text(type::kHead));  // the longest deity fits its cell on a small screen
  horizontalHeader()->hide();
  verticalHeader()->hide();
  horizontalHeader()->setMinimumSectionSize(kLeastCell);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  verticalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  for (const int narrow : {ColumnOf(0, kSectors), ColumnOf(0, Ring::kNames)}) {
    if (IsUpright()) {
      horizontalHeader()->setSectionResizeMode(narrow, QHeaderView::ResizeToContents);
    }
  }
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  ShowSectors();
}

bool VastuSide::IsUpright() const { return side_ == PlanSide::East || side_ == PlanSide::West; }

int VastuSide::RowOf(int along, int inward) const {
  if (IsUpright()) {
    return along;
  }
  return side_ == PlanSide::North ? inward : kDepth - 1 - inward;
}

int VastuSide::ColumnOf(int along, int inward) const {
  if (!IsUpright()) {
    return along;
  }
  return side_ == PlanSide::West ? inward : kDepth - 1 - inward;
}

void VastuSide::SetCell(int along, int inward, const core::Cell& cell) {
  auto* item = new QTableWidgetItem(Shown(cell.Text));
  item->setTextAlignment(Qt::AlignCenter);
  item->setToolTip(Shown(cell.Tooltip));
  if (const QColor ground = Theme::Background(cell.Background); ground.isValid()) {
    item->setBackground(ground);
  }
  if (const QColor text = Theme::Foreground(cell.Foreground); text.isValid()) {
    item->setForeground(text);
  }
  if (inward == kNames) {
    QFont bold = item->font();
    bold.setBold(true);
    item->setFont(bold);
  }
  setItem(RowOf(along, inward), ColumnOf(along, inward), item);
}

void VastuSide::ShowSectors() {
  for (const vedic::PlanSector& sector : vedic::SectorsOfSide(side_)) {
    const int along = sector.FirstPad - 1;
    const int pads = sector.LastPad - sector.FirstPad + 1;
    core::Cell cell;
    cell.Text = sector.Direction;
    cell.Tooltip = sector.Tooltip;
    cell.Background = sector.Background;
    SetCell(along, kSectors, cell);
    if (pads > 1) {
      setSpan(RowOf(along, kSectors), ColumnOf(along, kSectors), IsUpright() ? pads : 1,
              IsUpright() ? 1 : pads);
    }
  }
}

void VastuSide::ShowPads(const core::Table& pads) {
  ShowSectors();
  const std::array<std::size_t, kPadsOfSide> rows = vedic::PadsOfSide(side_);
  for (int along = 0; along < kPadsOfSide; ++along) {
    const std::size_t row = rows.at(static_cast<std::size_t>(along));
    SetCell(along, Ring::kNames, pads.At(row, PadColumn::Pad));
    SetCell(along, kOuter, pads.At(row, PadColumn::Outer));
    SetCell(along, kInner, pads.At(row, PadColumn::Inner));
  }
}

QSize VastuSide::sizeHint() const {
  const int height = fontMetrics().height() + kGrid / 2;
  return {columnCount() * kCellWidth + 2 * frameWidth(), rowCount() * height + 2 * frameWidth()};
}

}  // namespace orvex::ui
