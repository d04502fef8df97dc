#include <algorithm>
#include <array>

#include "core/exact_numbers.h"
#include "core/text.h"
#include "core/typed_moment.h"
#include "core/typed_pieces.h"

namespace orvex::core {

namespace {

using Spans = std::vector<PartSpan>;

constexpr const char* kNoDate = "Not a date: write it as 5.7.1990, 5 jul 1990 or 1990-07-05.";
constexpr const char* kShortYear = "Write the year in full, as in 5.7.1990.";

bool MayBeYear(const Piece& piece) {
  return piece.IsNumber() && (piece.Length() == 3 || piece.Length() == 4);
}

bool MayBeDay(const Piece& piece) { return piece.IsNumber() && piece.Length() <= 2; }

TypedReading<DateTime> NoDate(const std::string& words) { return {std::nullopt, words}; }

TypedReading<DateTime> DateOf(int day, int month, int year, Spans parts) {
  constexpr int kMonths = 12;
  if (month < 1 || month > kMonths) {
    return NoDate("There is no month " + PaddedWhole(month, 1) + ": the day comes first.");
  }
  const std::optional<DateTime> first = MakeDateTime({year, month, 1});
  if (!first) {
    return NoDate("The years go from 100 to 9999.");
  }
  const std::optional<DateTime> date = MakeDateTime({year, month, day});
  if (!date) {
    const std::string name = LongDateText(*first, false).substr(2);
    return NoDate("There is no day " + PaddedWhole(day, 1) + " in " + name + ".");
  }
  return {date, WeekdayName(*date) + ", " + LongDateText(*date, false), std::move(parts)};
}

// "05071990"
TypedReading<DateTime> DateOfDigits(const Piece& run) {
  constexpr std::size_t kDayMonthYear = 8;
  constexpr std::size_t kMonthAt = 2;
  constexpr std::size_t kYearAt = 4;
  if (run.Length() != kDayMonthYear) {
    return NoDate(run.Length() == 6 ? kShortYear : kNoDate);
  }
  const std::size_t at = run.Begin;
  return DateOf(NumberOf(run.Text.substr(0, 2)), NumberOf(run.Text.substr(kMonthAt, 2)),
                NumberOf(run.Text.substr(kYearAt)),
                {{MomentPart::Day, at, at + kMonthAt},
                 {MomentPart::Month, at + kMonthAt, at + kYearAt},
                 {MomentPart::Year, at + kYearAt, run.End}});
}

// "5.7.1990" and "1990-07-05": the same sign between all three.
TypedReading<DateTime> DateOfNumbers(const std::vector<Piece>& pieces) {
  const std::string& sign = pieces[1].Before;
  const bool isSign = sign == "." || sign == "-" || sign == "/" || sign == " ";
  if (!isSign || pieces[2].Before != sign || !MayBeDay(pieces[1])) {
    return NoDate(kNoDate);
  }
  const bool yearFirst = MayBeYear(pieces[0]) && MayBeDay(pieces[2]);
  const Piece& day = pieces[yearFirst ? 2 : 0];
  const Piece& year = pieces[yearFirst ? 0 : 2];
  if (MayBeDay(day) && MayBeDay(year)) {
    return NoDate(kShortYear);
  }
  if (!MayBeDay(day) || !MayBeYear(year)) {
    return NoDate(kNoDate);
  }
  Spans parts = {SpanOf(MomentPart::Day, day), SpanOf(MomentPart::Month, pieces[1]),
                 SpanOf(MomentPart::Year, year)};
  return DateOf(NumberOf(day.Text), NumberOf(pieces[1].Text), NumberOf(year.Text),
                std::move(parts));
}

// "5 jul 1990", "jul 5, 1990", "1990 jul 5": which number is the year tells its length.
TypedReading<DateTime> DateOfNamedMonth(const std::vector<Piece>& pieces, std::size_t month) {
  const bool dayBeforeYear = MayBeYear(pieces[month == 2 ? 1 : 2]);
  std::array<std::size_t, 2> numbers{month == 0 ? 1U : 0U, month == 2 ? 1U : 2U};
  const Piece& day = pieces[dayBeforeYear ? numbers[0] : numbers[1]];
  const Piece& year = pieces[dayBeforeYear ? numbers[1] : numbers[0]];
  const int number = MonthBeginningWith(pieces[month].Text);
  if (number == 0 || !day.IsNumber() || !year.IsNumber()) {
    return NoDate(kNoDate);
  }
  if (MayBeDay(day) && MayBeDay(year)) {
    return NoDate(kShortYear);
  }
  if (!MayBeDay(day) || !MayBeYear(year)) {
    return NoDate(kNoDate);
  }
  Spans parts = {SpanOf(MomentPart::Day, day), SpanOf(MomentPart::Month, pieces[month]),
                 SpanOf(MomentPart::Year, year)};
  return DateOf(NumberOf(day.Text), number, NumberOf(year.Text), std::move(parts));
}

// "5th": the ending of an ordinal goes.
void DropOrdinal(std::vector<Piece>& pieces) {
  constexpr std::array<std::string_view, 4> kEndings = {"st", "nd", "rd", "th"};
  for (std::size_t i = 1; i < pieces.size(); ++i) {
    const bool isEnding =
        std::find(kEndings.begin(), kEndings.end(), pieces[i].Text) != kEndings.end();
    if (isEnding && pieces[i].Before.empty() && MayBeDay(pieces[i - 1])) {
      pieces.erase(pieces.begin() + static_cast<std::ptrdiff_t>(i));
    }
  }
}

bool HasPlainGaps(const std::vector<Piece>& pieces) {
  constexpr std::array<std::string_view, 7> kGaps = {"", " ", ".", "-", "/", ",", ".,"};
  return std::all_of(pieces.begin() + 1, pieces.end(), [&kGaps](const Piece& piece) {
    return std::find(kGaps.begin(), kGaps.end(), piece.Before) != kGaps.end();
  });
}

}  // namespace

TypedReading<DateTime> ReadTypedDate(std::string_view text) {
  Pieces pieces = PiecesOf(text);
  DropOrdinal(pieces.All);
  const std::vector<Piece>& all = pieces.All;
  if (all.empty() || pieces.IsFramed()) {
    return NoDate(kNoDate);
  }
  if (all.size() == 1 && all[0].IsNumber()) {
    return DateOfDigits(all[0]);
  }
  if (all.size() != 3) {
    return NoDate(kNoDate);
  }
  const auto named =
      std::find_if(all.begin(), all.end(), [](const Piece& piece) { return !piece.IsNumber(); });
  if (named == all.end()) {
    return DateOfNumbers(all);
  }
  return HasPlainGaps(all) ? DateOfNamedMonth(all, static_cast<std::size_t>(named - all.begin()))
                           : NoDate(kNoDate);
}

std::string DateFieldText(DateTime date) { return LongDateText(date, true); }

std::optional<SteppedText> StepTypedDate(std::string_view text, std::size_t cursor, int steps) {
  const TypedReading<DateTime> reading = ReadTypedDate(text);
  if (!reading.Understood) {
    return std::nullopt;
  }
  const MomentPart part = PartAt(reading.Parts, cursor);
  const DateInterval interval = part == MomentPart::Day     ? DateInterval::Days
                                : part == MomentPart::Month ? DateInterval::Months
                                                            : DateInterval::Years;
  try {
    const std::string stepped = DateFieldText(DateAdd(interval, steps, *reading.Understood));
    return SteppedOf(stepped, ReadTypedDate(stepped).Parts, part);
  } catch (const DateRangeError&) {
    return std::nullopt;
  }
}

}  // namespace orvex::core
