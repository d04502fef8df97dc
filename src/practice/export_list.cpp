#include "practice/export_list.h"

#include <unistd.h>
#include <xlsxwriter.h>

#include <algorithm>
#include <clocale>
#include <cstdlib>
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
constexpr std::size_t kLongestSheetName = 31;
constexpr double kPixelsOfCharacter = 7;
constexpr double kPlainWidth = 16;

void Require(lxw_error done) {
  if (done != LXW_NO_ERROR) {
    throw std::runtime_error(lxw_strerror(done));
  }
}

// As long as it lives, this thread prints numbers with a point, as the format of the file wants
// them, whatever the machine's locale.
class PointNumbers {
 public:
  PointNumbers()
      : point_(::newlocale(LC_NUMERIC_MASK, "C", nullptr)), before_(::uselocale(point_)) {}
  PointNumbers(const PointNumbers&) = delete;
  PointNumbers& operator=(const PointNumbers&) = delete;
  ~PointNumbers() {
    ::uselocale(before_);
    ::freelocale(point_);
  }

 private:
  locale_t point_;
  locale_t before_;
};

// An empty file beside another, under a name of its own, readable by its owner alone; gone at the
// end.
class FileBeside {
 public:
  explicit FileBeside(const fs::path& file) {
    std::string name = file.string() + ".XXXXXX";
    const int made = ::mkstemp(name.data());
    if (made < 0) {
      throw std::runtime_error("the file could not be made");
    }
    ::close(made);
    path_ = name;
  }
  FileBeside(const FileBeside&) = delete;
  FileBeside& operator=(const FileBeside&) = delete;
  ~FileBeside() {
    std::error_code ignored;
    fs::remove(path_, ignored);
  }

  const fs::path& Path() const { return path_; }

 private:
  fs::path path_;
};

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

void WriteWorkbook(const core::Table& table, const fs::path& file, const std::string& title) {
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
  name = core::Trim(core::FirstCharacters(core::Trim(name), kLongestSheetName));
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
  try {
    const PointNumbers numbers;
    const FileBeside beside(file);
    WriteWorkbook(table, beside.Path(), title);
    core::WriteFileSafely(file, core::ReadTextFile(beside.Path()));
    return std::nullopt;
  } catch (const std::exception&) {
    return core::Refusal{"Could not export data to Microsoft Excel.", core::MessageIcon::Stop, ""};
  }
}

}  // namespace orvex::practice
