#include "ui/horoscope/period_columns.h"

#include "core/text.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

struct Span {
  core::DateTime Start;
  core::DateTime End;
};

// The end of a period carries its start and end, with a star between them, as its tag.
std::optional<Span> SpanOf(const core::Row& row) {
  for (const core::Cell& cell : row.Cells) {
    const std::vector<std::string> ends = core::Split(cell.Tag, '*');
    if (ends.size() == 2) {
      const auto start = core::ParseLongDateText(ends[0]);
      const auto end = core::ParseLongDateText(ends[1]);
      return start && end ? std::optional(Span{*start, *end}) : std::nullopt;
    }
  }
  return std::nullopt;
}

// "36 Year(s), 4 Month(s), 19 Day(s)" as "36y 4m".
std::string ShortAge(core::DateTime birth, core::DateTime day) {
  const std::vector<std::string> words = core::SplitWords(core::AgeText(birth, day).Text);
  return words.size() < 4 ? "" : words[0] + "y " + words[2] + "m";
}

}  // namespace

std::optional<PeriodState> StateOf(const core::Row& row, core::DateTime day) {
  const std::optional<Span> span = SpanOf(row);
  if (!span) {
    return std::nullopt;
  }
  return span->End <= day    ? PeriodState::Over
         : span->Start > day ? PeriodState::Comes
                             : PeriodState::Runs;
}

std::optional<std::size_t> RowRunningOn(const core::Table& list, core::DateTime day) {
  for (std::size_t row = 0; row < list.Rows.size(); ++row) {
    if (StateOf(list.Rows[row], day) == PeriodState::Runs) {
      return row;
    }
  }
  return std::nullopt;
}

core::Table WithAges(core::Table list, core::DateTime birth, core::DateTime today) {
  list.Columns.push_back({kStartColumn});
  list.Columns.push_back({kAgeColumn});
  const std::string quiet = Typed(Theme::Now().Ink2.name().mid(1).toUpper());
  for (core::Row& row : list.Rows) {
    core::Cell start;
    core::Cell age;
    if (const std::optional<Span> span = SpanOf(row)) {
      start.Text = core::LongDateText(span->Start, true);
      age.Text = span->End > birth ? ShortAge(birth, span->End) : "";
      if (StateOf(row, today) == PeriodState::Over) {
        for (core::Cell& cell : row.Cells) {
          cell.Foreground = quiet;
        }
      }
      row.Cells.back().Tooltip = "From " + start.Text + " to " + row.Cells.back().Text;
    }
    row.Cells.push_back(std::move(start));
    row.Cells.push_back(std::move(age));
  }
  return list;
}

}  // namespace orvex::ui
