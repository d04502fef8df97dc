// Dates and times of day as people write them. Nothing is guessed: a text that may be read in two
// ways is refused, with a sentence that says why.
#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/date_text.h"

namespace orvex::core {

enum class MomentPart { Day, Month, Year, Hour, Minute, Second, HalfOfDay };

// Where a part stands in the text: the bytes from Begin to before End.
struct PartSpan {
  MomentPart Part = MomentPart::Day;
  std::size_t Begin = 0;
  std::size_t End = 0;
};

// What was understood of a text, or why nothing was.
template <typename Value>
struct TypedReading {
  std::optional<Value> Understood;
  std::string Words;  // "Thursday, 5 July 1990", "02:30:00 PM", or the reason
  std::vector<PartSpan> Parts{};
};

using TimeOfDay = std::chrono::seconds;  // since midnight, less than a day

// The date of a text, as its midnight. Read are the day first with points, dashes, strokes or
// blanks between ("5.7.1990", "05-07-1990", "5/7/1990"), the year first ("1990-07-05"), a month by
// three or more letters of its name ("5 jul 1990", "July 5, 1990") and eight digits, day first
// ("05071990"). The year has three or four digits and lies from 100 to 9999.
TypedReading<DateTime> ReadTypedDate(std::string_view text);

// The time of day of a text: "14:30", "14.30", "1430", "14:30:20", "143020" by the clock of 24
// hours; with "a", "am", "p" or "pm" behind it by that of 12 ("2:30p", "2.30 pm", "2 pm").
TypedReading<TimeOfDay> ReadTypedTime(std::string_view text);

// The forms in which fields show what they hold; the readers above take them back.
std::string DateFieldText(DateTime date);      // "5 Jul 1990"
std::string TimeFieldText(TimeOfDay time);     // "14:30:00"
std::string MinutesFieldText(TimeOfDay time);  // "14:30"

// The time of day of a moment.
TimeOfDay TimeOfDayOf(DateTime moment);

// A text after a step, with the part that was stepped from Begin to before End.
struct SteppedText {
  std::string Text;
  std::size_t Begin = 0;
  std::size_t End = 0;
};

// The date with the part at the cursor (a byte of the text) moved by `steps`, as DateFieldText; a
// day that the month does not have becomes its last. Nothing where the text is no date or the step
// leaves the years 100 to 9999.
std::optional<SteppedText> StepTypedDate(std::string_view text, std::size_t cursor, int steps);

// The time with the part at the cursor moved, as TimeFieldText or, without seconds, as
// MinutesFieldText. Nothing where the text is no time or the step leaves the day.
std::optional<SteppedText> StepTypedTime(std::string_view text, std::size_t cursor, int steps,
                                         bool withSeconds);

}  // namespace orvex::core
