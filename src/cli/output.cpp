#include "cli/output.h"

#include <algorithm>
#include <iostream>

#include "cli/visible_output.h"
#include "core/cell_colors.h"
#include "core/text.h"
#include "core/unicode_text.h"

namespace orvex::cli {

namespace {

void AddIfAny(Json& object, const char* name, const std::string& text) {
  if (!text.empty()) {
    object[name] = text;
  }
}

Json ColumnJson(const core::Column& column) {
  Json json = {{"caption", column.Caption}};
  if (column.Width != core::Column::kNoWidth) {
    json["width"] = column.Width;
  }
  AddIfAny(json, "tooltip", column.Tooltip);
  return json;
}

Json RowJson(const core::Row& row) {
  Json json = Json::object();
  AddIfAny(json, "tag", row.Tag);
  json["cells"] = Json::array();
  for (const core::Cell& cell : row.Cells) {
    json["cells"].push_back(CellJson(cell));
  }
  if (row.Selected) {
    json["selected"] = true;
  }
  return json;
}

// Text on one line of the terminal: line breaks and tabs become blanks, what would drive it marks.
std::string OneLine(const std::string& text) {
  std::string line = core::VisibleText(text);
  std::replace_if(
      line.begin(), line.end(), [](char c) { return c == '\n' || c == '\t'; }, ' ');
  return line;
}

std::string Padded(const std::string& text, std::size_t width) {
  const std::size_t size = core::CharacterCount(text);
  return text + std::string(width > size ? width - size : 0, ' ');
}

}  // namespace

Json CellJson(const core::Cell& cell) {
  Json json = {{"text", cell.Text}};
  AddIfAny(json, "tag", cell.Tag);
  AddIfAny(json, "tooltip", cell.Tooltip);
  if (cell.Background != core::kNeutralColor) {
    AddIfAny(json, "background", cell.Background);
  }
  AddIfAny(json, "color", cell.Foreground);
  if (cell.Bold) {
    json["bold"] = true;
  }
  return json;
}

Json TableJson(const core::Table& table) {
  Json json = {{"columns", Json::array()}, {"rows", Json::array()}};
  for (const core::Column& column : table.Columns) {
    json["columns"].push_back(ColumnJson(column));
  }
  for (const core::Row& row : table.Rows) {
    json["rows"].push_back(RowJson(row));
  }
  return json;
}

void PrintJson(const Json& document) { PutData(document.Printed() + "\n"); }

void PrintTable(const core::Table& table) {
  std::vector<std::size_t> widths(table.Columns.size());
  for (std::size_t i = 0; i < widths.size(); ++i) {
    widths[i] = core::CharacterCount(table.Columns[i].Caption);
    for (const core::Row& row : table.Rows) {
      widths[i] = std::max(widths[i], core::CharacterCount(OneLine(row.Cells.at(i).Text)));
    }
  }
  const auto printLine = [&](auto textOf) {
    std::string line;
    for (std::size_t i = 0; i < widths.size(); ++i) {
      if (table.Columns[i].Width != 0) {
        line += Padded(OneLine(textOf(i)), widths[i]) + "  ";
      }
    }
    line.erase(line.find_last_not_of(' ') + 1);
    std::cout << line << "\n";
  };
  printLine([&](std::size_t i) { return table.Columns[i].Caption; });
  for (const core::Row& row : table.Rows) {
    printLine([&](std::size_t i) { return row.Cells[i].Text; });
  }
}

void Print(const core::Table& table, bool json) {
  if (json) {
    PrintJson(TableJson(table));
  } else {
    PrintTable(table);
  }
}

void PrintList(core::Table list, bool json) {
  if (!json) {
    list.Columns.insert(list.Columns.begin(), core::Column{"Id"});
    for (core::Row& row : list.Rows) {
      row.Cells.insert(row.Cells.begin(), core::Cell{row.Tag});
    }
  }
  Print(list, json);
}

void PrintId(std::int32_t id, bool json) {
  if (json) {
    PrintJson({{"id", id}});
  } else {
    std::cout << id << "\n";
  }
}

}  // namespace orvex::cli
