#include "report/html_fragments.h"

#include "core/cell_colors.h"
#include "core/text.h"
#include "report/report_tables.h"
#include "vedic/lo_shu_tables.h"

namespace orvex::report {

namespace {

constexpr const char* kFont = "<font face='Verdana' size='2'>";
constexpr const char* kGridOpening =
    "<div align='center'>\n"
    "  <table border='1' width='80%' cellspacing='0' cellpadding='5'>\n"
    "      <tr>\n";
constexpr const char* kGridNextRow =
    "      </tr>\n"
    "      <tr>\n";
constexpr const char* kGridClosing =
    "      </tr>\n"
    "  </table>\n"
    "</div>\n";

// White for a cell without a colour, the tint of the ascendant for any other.
std::string CellColor(const core::Cell& cell) {
  constexpr float kNoColor = -1;
  const bool none = cell.Background.empty();
  return core::ValueCellColor(none ? kNoColor
                                   : static_cast<float>(core::ColorFromHex(cell.Background)));
}

std::string SouthCellHtml(const core::Cell& cell, bool firstRow) {
  return std::string("          <td height='80'") + (firstRow ? " width='25%'" : "") +
         " align='center' bgcolor='" + CellColor(cell) + "'>" + kFont + "&nbsp;" + cell.Text +
         kFontEnd + "\n";
}

// The upper left cell of the middle, from which one cell spans all of it.
bool BeginsSouthMiddle(std::size_t row, std::size_t column) {
  return chart::IsSouthMiddle(row, column) && !chart::IsSouthMiddle(row - 1, column) &&
         !chart::IsSouthMiddle(row, column - 1);
}

std::string Row(const std::string& cells) { return "<tr>" + cells + "</tr>\n"; }

}  // namespace

std::string EscapeHtml(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    switch (c) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '[':
        escaped += "&#91;";
        break;
      default:
        escaped += c;
    }
  }
  return escaped;
}

std::string EscapeAttribute(const std::string& text) {
  return core::ReplaceAll(core::ReplaceAll(EscapeHtml(text), "'", "&#39;"), "\"", "&quot;");
}

std::string StdTableOpening() {
  return "<table border='1' width='100%' cellspacing='0' cellpadding='5'>\n";
}

std::string HeaderCell(const std::string& caption) {
  return "<td align='center'><font face='Verdana' size='2' color='#FFFFFF'><b>" + caption +
         "</b></font></td>";
}

std::string BodyCell(const std::string& text) {
  return std::string("<td valign='top'>") + kFont + text + kFontEnd;
}

std::string HeaderRow(const core::Table& table) {
  std::string cells;
  for (const std::size_t column : ShownColumns(table)) {
    cells += HeaderCell(table.Columns[column].Caption);
  }
  return "<tr bgcolor='#6D6D6D'>" + cells + "</tr>\n";
}

std::string RenderTable(const core::Table& table) {
  std::string html = StdTableOpening() + HeaderRow(table);
  for (const core::Row& row : table.Rows) {
    std::string cells;
    for (const std::size_t column : ShownColumns(table)) {
      cells += BodyCell(row.Cells.at(column).Text);
    }
    html += Row(cells);
  }
  return html + "</table>\n";
}

std::string SouthGridHtml(const SouthGrid& grid) {
  std::string html = kGridOpening;
  for (std::size_t row = 0; row < grid.size(); ++row) {
    html += row == 0 ? "" : kGridNextRow;
    for (std::size_t column = 0; column < grid.at(row).size(); ++column) {
      if (!chart::IsSouthMiddle(row, column)) {
        html += SouthCellHtml(grid.at(row).at(column), row == 0);
      } else if (BeginsSouthMiddle(row, column)) {
        html += std::string("          <td height='160' align='center' colspan='2' rowspan='2'>") +
                kFont + "&nbsp;" + kFontEnd + "\n";
      }
    }
  }
  return html + kGridClosing;
}

std::string DashaTableHtml(const core::Table& periods) {
  std::string html =
      "<table bgcolor='#F4F7FC' border='0' width='100%' cellspacing='0' cellpadding='3'>\n"
      "<tr bgcolor='#6D6D6D'>";
  for (const core::Column& column : periods.Columns) {
    html += "<td><font face='Verdana' size='2' color='#FFFFFF'><b>" + column.Caption +
            "</b></font></td>";
  }
  html += "</tr>\n";
  for (const core::Row& row : periods.Rows) {
    html += "<tr>";
    for (const core::Cell& cell : row.Cells) {
      html += std::string("<td>") + kFont + cell.Text + kFontEnd;
    }
    html += "</tr>\n";
  }
  return html + "</table>\n";
}

std::string LoShuGridHtml(const std::array<std::string, 10>& cellTexts) {
  std::string html = kGridOpening;
  for (std::size_t place = 0; place < vedic::kLoShuCells.size(); ++place) {
    const std::size_t column = place % vedic::kLoShuSide;
    html += place != 0 && column == 0 ? kGridNextRow : "";
    html += std::string("          <td height='80' width='") + (column == 1 ? "34%" : "33%") +
            "' align='center'>" + kFont;
    const auto number = static_cast<std::size_t>(vedic::kLoShuCells.at(place).Number);
    for (const std::string& line : core::Split(cellTexts.at(number), '*')) {
      html += line + "<br>";
    }
    html += std::string(kFontEnd) + "\n";
  }
  return html + kGridClosing;
}

}  // namespace orvex::report
