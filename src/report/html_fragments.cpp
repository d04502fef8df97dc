#include "report/html_fragments.h"

#include "core/cell_colors.h"
#include "core/text.h"

namespace orvex::report {

namespace {

constexpr const char* kFont = "<font face='Verdana' size='2'>";
constexpr const char* kFontEnd = "</font></td>";
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

std::vector<std::size_t> ShownColumns(const core::Table& table) {
  std::vector<std::size_t> shown;
  for (std::size_t i = 0; i < table.Columns.size(); ++i) {
    if (table.Columns[i].Width != 0) {
      shown.push_back(i);
    }
  }
  return shown;
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

std::string SouthGridHtml(const std::array<std::array<core::Cell, 4>, 4>& grid) {
  std::string html = kGridOpening;
  for (std::size_t row = 0; row < grid.size(); ++row) {
    html += row == 0 ? "" : kGridNextRow;
    const bool rim = row == 0 || row == 3;
    for (std::size_t column = 0; column < 4; ++column) {
      if (rim || column == 0 || column == 3) {
        html += SouthCellHtml(grid.at(row).at(column), row == 0);
      }
      if (row == 1 && column == 0) {
        html += std::string("          <td height='160' align='center' colspan='2' rowspan='2'>") +
                kFont + "&nbsp;" + kFontEnd + "\n";
      }
    }
  }
  return html + kGridClosing;
}

std::string DashaTableHtml(const std::vector<std::string>& captions,
                           const std::vector<std::vector<std::string>>& rows) {
  std::string html =
      "<table bgcolor='#F4F7FC' border='0' width='100%' cellspacing='0' cellpadding='3'>\n"
      "<tr bgcolor='#6D6D6D'>";
  for (const std::string& caption : captions) {
    html += "<td><font face='Verdana' size='2' color='#FFFFFF'><b>" + caption + "</b></font></td>";
  }
  html += "</tr>\n";
  for (const std::vector<std::string>& row : rows) {
    html += "<tr>";
    for (const std::string& text : row) {
      html += std::string("<td>") + kFont + text + kFontEnd;
    }
    html += "</tr>\n";
  }
  return html + "</table>\n";
}

std::string LoShuGridHtml(const std::array<std::string, 10>& cellTexts) {
  constexpr std::array<std::array<std::size_t, 3>, 3> kNumbers = {
      {{4, 9, 2}, {3, 5, 7}, {8, 1, 6}}};
  std::string html = kGridOpening;
  for (std::size_t row = 0; row < kNumbers.size(); ++row) {
    html += row == 0 ? "" : kGridNextRow;
    for (std::size_t column = 0; column < 3; ++column) {
      html += std::string("          <td height='80' width='") + (column == 1 ? "34%" : "33%") +
              "' align='center'>" + kFont;
      for (const std::string& line : core::Split(cellTexts.at(kNumbers.at(row).at(column)), '*')) {
        html += line + "<br>";
      }
      html += std::string(kFontEnd) + "\n";
    }
  }
  return html + kGridClosing;
}

}  // namespace orvex::report
