#include <algorithm>

#include "core/exact_numbers.h"
#include "core/text.h"
#include "core/typed_moment.h"
#include "core/typed_pieces.h"

namespace orvex::core {

namespace {

using TimeSpans = std::vector<PartSpan>;

constexpr const char* kNoTime = "Not a time: write it as 1430, 14:30 or 2:30p.";
constexpr int kHours = 24;
constexpr int kHalfDay = 12;
constexpr int kSixtyParts = 60;

// The hour, minute and second of a time as numbers, before AM or PM counts.
struct ClockNumbers {
  int Hour = 0;
  int Minute = 0;
  int Second = 0;
  TimeSpans Parts;
};

// "1430" and "143020"; "230" has an hour of one digit.
std::optional<ClockNumbers> ClockOfDigits(const Piece& run) {
  const std::size_t length = run.Length();
  if (length != 3 && length != 4 && length != 6) {
    return std::nullopt;
  }
  const std::size_t minuteAt = length == 3 ? 1 : 2;
  const std::size_t secondAt = minuteAt + 2;
  ClockNumbers clock{NumberOf(run.Text.substr(0, minuteAt)),
                     NumberOf(run.Text.substr(minuteAt, 2)),
                     0,
                     {{MomentPart::Hour, run.Begin, run.Begin + minuteAt},
                      {MomentPart::Minute, run.Begin + minuteAt, run.Begin + secondAt}}};
  if (length == 6) {
    clock.Second = NumberOf(run.Text.substr(secondAt));
    clock.Parts.push_back({MomentPart::Second, run.Begin + secondAt, run.End});
  }
  return clock;
}

// "14:30", "14.30.20": one or two digits, then twice two with the same sign before them.
std::optional<ClockNumbers> ClockOfNumbers(const std::vector<Piece>& pieces) {
  const std::string& sign = pieces[1].Before;
  const bool isSign = sign == ":" || sign == "." || sign == " ";
  const bool fits = std::all_of(pieces.begin() + 1, pieces.end(), [&sign](const Piece& piece) {
    return piece.Length() == 2 && piece.Before == sign;
  });
  if (!isSign || !fits || pieces[0].Length() > 2) {
    return std::nullopt;
  }
  ClockNumbers clock{NumberOf(pieces[0].Text),
                     NumberOf(pieces[1].Text),
                     0,
                     {SpanOf(MomentPart::Hour, pieces[0]), SpanOf(MomentPart::Minute, pieces[1])}};
  if (pieces.size() == 3) {
    clock.Second = NumberOf(pieces[2].Text);
    clock.Parts.push_back(SpanOf(MomentPart::Second, pieces[2]));
  }
  return clock;
}

std::optional<ClockNumbers> ClockOf(const std::vector<Piece>& pieces, bool hasHalf) {
  const bool areNumbers = std::all_of(pieces.begin(), pieces.end(),
                                      [](const Piece& piece) { return piece.IsNumber(); });
  if (pieces.empty() || pieces.size() > 3 || !areNumbers) {
    return std::nullopt;
  }
  if (pieces.size() > 1) {
    return ClockOfNumbers(pieces);
  }
  if (hasHalf && pieces[0].Length() <= 2) {
    return ClockNumbers{NumberOf(pieces[0].Text), 0, 0, {SpanOf(MomentPart::Hour, pieces[0])}};
  }
  return ClockOfDigits(pieces[0]);
}

// Takes "a", "am", "a.m." or the like from the end of the pieces: 'a', 'p', or ' ' for none.
char TakeHalfOfDay(Pieces& pieces, TimeSpans& parts) {
  std::vector<Piece>& all = pieces.All;
  if (all.size() > 2 && all.back().Text == "m" && all.back().Before == ".") {
    all[all.size() - 2].End = all.back().End;
    all[all.size() - 2].Text += 'm';
    all.pop_back();
    pieces.Behind = pieces.Behind == "." ? "" : pieces.Behind;
  }
  if (all.size() < 2) {
    return ' ';
  }
  const Piece& last = all.back();
  const bool isHalf =
      last.Text == "a" || last.Text == "am" || last.Text == "p" || last.Text == "pm";
  if (!isHalf || !(last.Before.empty() || last.Before == " ")) {
    return ' ';
  }
  const char half = last.Text.front();
  parts.push_back(SpanOf(MomentPart::HalfOfDay, last));
  all.pop_back();
  return half;
}

TypedReading<TimeOfDay> NoTime(const std::string& words) { return {std::nullopt, words}; }

TimeOfDay SecondsOf(int hour, int minute, int second) {
  return std::chrono::hours(hour) + std::chrono::minutes(minute) + std::chrono::seconds(second);
}

TimeOfDay StepOf(MomentPart part) {
  switch (part) {
    case MomentPart::Hour:
      return std::chrono::hours(1);
    case MomentPart::Minute:
      return std::chrono::minutes(1);
    case MomentPart::HalfOfDay:
      return std::chrono::hours(kHalfDay);
    default:
      return std::chrono::seconds(1);
  }
}

}  // namespace

TypedReading<TimeOfDay> ReadTypedTime(std::string_view text) {
  Pieces pieces = PiecesOf(text);
  TimeSpans half;
  const char letter = TakeHalfOfDay(pieces, half);
  std::optional<ClockNumbers> clock = ClockOf(pieces.All, letter != ' ');
  if (!clock || pieces.IsFramed()) {
    return NoTime(kNoTime);
  }
  if (letter != ' ' && (clock->Hour < 1 || clock->Hour > kHalfDay)) {
    return NoTime("With AM or PM the hours go from 1 to 12.");
  }
  if (clock->Hour >= kHours || clock->Minute >= kSixtyParts || clock->Second >= kSixtyParts) {
    return NoTime("The day goes from 00:00:00 to 23:59:59.");
  }
  if (letter != ' ') {
    clock->Hour = clock->Hour % kHalfDay + (letter == 'p' ? kHalfDay : 0);
  }
  clock->Parts.insert(clock->Parts.end(), half.begin(), half.end());
  const TimeOfDay time = SecondsOf(clock->Hour, clock->Minute, clock->Second);
  return {time, TimeSecondsAmPm(DateTime(time)), std::move(clock->Parts)};
}

std::string TimeFieldText(TimeOfDay time) {
  const DateParts parts = PartsOf(DateTime(time));
  return MinutesFieldText(time) + ":" + PaddedWhole(parts.Second, 2);
}

std::string MinutesFieldText(TimeOfDay time) { return ShortTimeText(DateTime(time)); }

TimeOfDay TimeOfDayOf(DateTime moment) { return moment - DateOnly(moment); }

std::optional<SteppedText> StepTypedTime(std::string_view text, std::size_t cursor, int steps,
                                         bool withSeconds) {
  const TypedReading<TimeOfDay> reading = ReadTypedTime(text);
  if (!reading.Understood) {
    return std::nullopt;
  }
  const MomentPart part = PartAt(reading.Parts, cursor);
  const TimeOfDay time = *reading.Understood + steps * StepOf(part);
  if (time < TimeOfDay(0) || time >= std::chrono::hours(kHours)) {
    return std::nullopt;
  }
  const std::string stepped = withSeconds ? TimeFieldText(time) : MinutesFieldText(time);
  return SteppedOf(stepped, ReadTypedTime(stepped).Parts,
                   part == MomentPart::HalfOfDay ? MomentPart::Hour : part);
}

}  // namespace orvex::core
