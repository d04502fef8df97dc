#include "practice/list_cells.h"

namespace orvex::practice {

core::Cell DateCell(const core::Result& row, std::string_view field) {
  core::Cell cell;
  if (const std::optional<core::DateTime> moment = row.Moment(field)) {
    cell.Text = core::LongDateText(*moment, false);
    cell.SortKey = core::StoredDateTimeText(*moment);
  }
  return cell;
}

core::Cell NumberCell(const core::Result& row, std::string_view field) {
  core::Cell cell;
  cell.Text = row.Text(field);
  cell.SortKey = cell.Text;
  return cell;
}

}  // namespace orvex::practice
