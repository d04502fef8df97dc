// Numbers to text and back. Results of the program depend on these forms to the digit, so all of
// it is here and nothing in it depends on the machine's locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvex::core {

// The decimal text of a single: at most 7 significant digits, no trailing zeros, no exponent, a
// zero before the point. Not a number or infinite: std::domain_error, as for all routines below.
std::string SingleText(float value);

// The decimal text of a double: at most 15 significant digits, otherwise as SingleText.
std::string DoubleText(double value);

// The value with exactly `decimals` (0 or more) digits behind the point: half away from zero on
// the decimal text of the value (7 digits of a single, 15 of a double). Zero has no sign.
std::string FixedText(double value, int decimals);
std::string FixedText(float value, int decimals);

// FixedText with two decimals: the form of every stored and shown degree.
std::string TwoDecimals(double value);
std::string TwoDecimals(float value);

// The nearest whole number, a half goes to the even neighbour.
double RoundHalfEven(double value);

// RoundHalfEven as an integer. std::out_of_range beyond 64 bits.
std::int64_t RoundToWhole(double value);

// The number without its fraction (towards zero). std::out_of_range beyond 64 bits.
std::int64_t Truncate(double value);

// The largest whole number not above the value. std::out_of_range beyond 64 bits.
std::int64_t Floor(double value);

// The number that a text holds: an optional sign, digits with at most one point, an optional
// exponent; blanks around it are passed over. Anything else, also "inf", hexadecimal forms, a
// decimal comma, a value beyond the doubles or a text of more than 64 characters: nothing.
std::optional<double> ParseNumber(std::string_view text);

// Whether ParseNumber takes the text.
bool IsNumeric(std::string_view text);

// The number of a text in single precision. std::invalid_argument where ParseNumber takes nothing.
float ToSingle(std::string_view text);

// The number of a text in double precision. std::invalid_argument as above.
double ToDouble(std::string_view text);

// The whole number of a text of digits with an optional sign; a fraction or anything else: nothing.
std::optional<std::int64_t> ParseWhole(std::string_view text);

// A whole number with leading zeros up to `width` digits, a minus before them.
std::string PaddedWhole(std::int64_t value, int width);

// A whole number as it is, a minus before it where it is negative.
std::string WholeText(std::int64_t value);

// The digits that name a double uniquely (shortest form that reads back the same), for interchange.
std::string RoundTripText(double value);

}  // namespace orvex::core
