#include "ui/base/room_plan.h"

#include <algorithm>

namespace orvex::ui {

std::vector<bool> FitColumns(const std::vector<ColumnRoom>& columns, int room) {
  std::vector<bool> shown(columns.size(), true);
  int wanted = 0;
  for (const ColumnRoom& column : columns) {
    wanted += column.Least;
  }
  while (wanted > room) {
    std::size_t worst = columns.size();
    for (std::size_t i = 0; i < columns.size(); ++i) {
      const bool goes = shown[i] && columns[i].Rank > 0;
      if (goes && (worst == columns.size() || columns[i].Rank >= columns[worst].Rank)) {
        worst = i;
      }
    }
    if (worst == columns.size()) {
      break;
    }
    shown[worst] = false;
    wanted -= columns[worst].Least;
  }
  return shown;
}

int FitRows(int rows, int room, int least, int most) {
  return rows <= 0 ? least : std::clamp(room / rows, least, most);
}

}  // namespace orvex::ui
