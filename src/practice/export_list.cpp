#include "practice/export_list.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "core/date_text.h"
#include "core/exact_numbers.h"
#include "core/home.h"
#include "core/text.h"

namespace orvex::practice {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLongestCell = 32767;
constexpr std::size_t kLongestName = 31;
constexpr double kPixelsOfCharacter = 7;
constexpr double kPlainWidth = 16;

void Require(lxw_error done) {
  if (done != LXW_NO_ERROR) {
    throw std::runtime_error(lxw_strerror(done));
  }
}

// An open workbook; one that is left without Finish frees what it holds.
class Workbook {
 public:
  explicit Workbook(const fs::path& file) : book_(workbook_new(file.c_str())) {}
  Workbook(const Workbook&) = delete;
  Workbook& operator=(const Workbook&) = delete;
  ~Workbook() {
    if (book_ != nullptr) {
      lxw_workbook_free(book_);
    }
  }

  lxw_worksheet* AddSheet(const std::string& name) {
    lxw_worksheet* sheet = workbook_add_worksheet(book_, name.c_str());
    if (sheet == nullptr) {
      throw std::runtime_error("the sheet was refused");
    }
    return sheet;
  }

  lxw_format* AddFormat() { return workbook_add_format(book_); }

  void Finish() { Require(workbook_close(std::exchange(book_, nullptr))); }

 private:
  lxw_workbook* book_;
};

struct Formats {
  lxw_format* Caption;
  lxw_format* Date;
};

Formats AddFormats(Workbook& book) {
  const Formats formats{book.AddFormat(), book.AddFormat()};
  format_set_bold(formats.Caption);
  format_set_num_format(formats.Date, "d mmmm yyyy");
  return formats;
}

void WriteText(lxw_worksheet* sheet, lxw_row_t row, lxw_col_t column, const std::string& text,
               lxw_format* format) {
  const std::string cut = core::FirstCharacters(text, kLongestCell);
  Require(worksheet_write_string(sheet, row, column, cut.c_str(), format));
}

// The moment of a cell that shows its date and nothing else. Spreadsheets count days from 1900.
std::optional<core::DateParts> DateOf(const core::Cell& cell) {
  constexpr int kFirstYear = 1900;
  const std::optional<core::DateTime> moment = core::ParseDateTime(cell.SortKey);
  if (!moment || core::LongDateText(*moment, false) != cell.Text) {
    return std::nullopt;
  }
  const core::DateParts parts = core::PartsOf(*moment);
  return parts.Year > kFirstYear ? std::optional(parts) : std::nullopt;
}

void WriteCell(lxw_worksheet* sheet, lxw_row_t row, lxw_col_t column, const core::Cell& cell,
               const Formats& formats) {
  if (const std::optional<core::DateParts> date = DateOf(cell)) {
    lxw_datetime moment{date->Year, date->Month,  date->Day,
                        date->Hour, date->Minute, static_cast<double>(date->Second)};
    Require(worksheet_write_datetime(sheet, row, column, &moment, formats.Date));
    return;
  }
  const std::optional<double> number = core::ParseNumber(cell.SortKey);
  if (number && cell.SortKey == cell.Text) {
    Require(worksheet_write_number(sheet, row, column, *number, nullptr));
    return;
  }
  WriteText(sheet, row, column, cell.Text, nullptr);
}

void WriteColumns(lxw_worksheet* sheet, const core::Table& table, const Formats& formats) {
  lxw_row_col_options hidden{};
  hidden.hidden = LXW_TRUE;
  for (std::size_t at = 0; at < table.Columns.size(); ++at) {
    const auto column = static_cast<lxw_col_t>(at);
    const core::Column& head = table.Columns[at];
    const double width =
        head.Width == core::Column::kNoWidth ? kPlainWidth : head.Width / kPixelsOfCharacter;
    Require(worksheet_set_column_opt(sheet, column, column, width, nullptr,
                                     head.Width == 0 ? &hidden : nullptr));
    WriteText(sheet, 0, column, head.Caption, formats.Caption);
  }
  worksheet_freeze_panes(sheet, 1, 0);
}

void Write(const core::Table& table, const fs::path& file, const std::string& title) {
  Workbook book(file);
  const Formats formats = AddFormats(book);
  lxw_worksheet* sheet = book.AddSheet(SheetName(title));
  WriteColumns(sheet, table, formats);
  lxw_row_t row = 0;
  for (const core::Row& cells : table.Rows) {
    ++row;
    for (std::size_t at = 0; at < table.Columns.size(); ++at) {
      const auto column = static_cast<lxw_col_t>(at);
      WriteCell(sheet, row, column, cells.Cells.at(at), formats);
    }
  }
  book.Finish();
}

}  // namespace

std::string SheetName(const std::string& title) {
  std::string name;
  for (const char c : title) {
    const bool breaks = static_cast<unsigned char>(c) < ' ' ||
                        std::string_view("[]:*?/\\").find(c) != std::string_view::npos;
    name += breaks ? ' ' : c;
  }
  name = core::Trim(core::FirstCharacters(core::Trim(name), kLongestName));
  while (name.starts_with('\'')) {
    name.erase(0, 1);
  }
  while (name.ends_with('\'')) {
    name.pop_back();
  }
  // "History" is a name that spreadsheets keep for themselves.
  return name.empty() || core::LowerCase(name) == "history" ? "List" : name;
}

std::optional<core::Refusal> ExportList(const core::Table& table, const fs::path& file,
                                        const std::string& title) {
  const fs::path beside = file.string() + ".new";
  try {
    core::WriteFileSafely(beside, "");  // makes the file with its rights before anything is in it
    Write(table, beside, title);
    fs::rename(beside, file);
    return std::nullopt;
  } catch (const std::exception&) {
    std::error_code ignored;
    fs::remove(beside, ignored);
    return core::Refusal{"Could not export data to Microsoft Excel.", core::MessageIcon::Stop, ""};
  }
}

}  // namespace orvex::practice
