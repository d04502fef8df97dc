// The display table: plain ordered rows of text cells. It is the data model of every view; later
// steps read cells of earlier tables, so row order, column order and tags are part of the design.
#pragma once

#include <cstddef>
#include <string>
#include <type_traits>
#include <vector>

namespace orvex::core {

// One cell. Colours are six hexadecimal digits, upper case; "" is none.
struct Cell {
  std::string Text;
  std::string Tag;
  std::string Tooltip;
  std::string Background;
  std::string Foreground;
  bool Bold = false;
  std::string SortKey;
};

// One column. Width 0 is a hidden column, kNoWidth one without a width of its own.
struct Column {
  static constexpr int kNoWidth = -1;

  std::string Caption;
  int Width = kNoWidth;
  std::string Tooltip;
  bool Centred = false;
};

struct Row {
  std::vector<Cell> Cells;
  std::string Tag;
  bool Selected = false;
};

// Rows and columns count from 0. A table names its columns once, as an enum beside the routine
// that fills it, and At and Find take that enum. std::out_of_range beyond the table.
struct Table {
  std::vector<Column> Columns;
  std::vector<Row> Rows;

  // A new row of empty cells, one a column.
  Row& AddRow() {
    Rows.push_back({std::vector<Cell>(Columns.size()), "", false});
    return Rows.back();
  }

  template <typename ColumnName>
  Cell& At(std::size_t row, ColumnName column) {
    return Rows.at(row).Cells.at(Index(column));
  }

  template <typename ColumnName>
  const Cell& At(std::size_t row, ColumnName column) const {
    return Rows.at(row).Cells.at(Index(column));
  }

  template <typename ColumnName>
  static constexpr std::size_t Index(ColumnName column) {
    static_assert(std::is_enum_v<ColumnName>, "columns are named, not numbered");
    return static_cast<std::size_t>(column);
  }
};

}  // namespace orvex::core
