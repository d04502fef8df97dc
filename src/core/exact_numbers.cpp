#include "core/exact_numbers.h"

#include <charconv>
#include <cmath>
#include <stdexcept>
#include <system_error>

namespace orvex::core {

namespace {

constexpr int kSingleDigits = 7;
constexpr int kDoubleDigits = 15;
constexpr std::size_t kLongestNumber = 64;
constexpr double kWholeLimit = 9.2e18;

// A decimal number: 0.DIGITS times ten to the `pointAt`; no leading zeros, so zero has no digits.
struct Decimal {
  bool Negative = false;
  std::string Digits;
  int PointAt = 0;
};

// The value correctly rounded to `significant` decimal digits, trailing zeros taken off.
Decimal ToDecimal(double value, int significant) {
  if (!std::isfinite(value)) {
    throw std::domain_error("a number without a decimal text");
  }
  char buffer[64];
  const auto written = std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value),
                                     std::chars_format::scientific, significant - 1);
  const std::string_view text(buffer, static_cast<std::size_t>(written.ptr - buffer));
  const std::size_t exponentAt = text.find('e');

  Decimal decimal;
  decimal.Negative = std::signbit(value);
  for (const char c : text.substr(0, exponentAt)) {
    if (c != '.') {
      decimal.Digits += c;
    }
  }
  const std::size_t last = decimal.Digits.find_last_not_of('0');
  decimal.Digits.erase(last == std::string::npos ? 0 : last + 1);

  std::string_view exponent = text.substr(exponentAt + 1);
  exponent.remove_prefix(exponent.front() == '+' ? 1 : 0);
  int power = 0;
  std::from_chars(exponent.data(), exponent.data() + exponent.size(), power);
  decimal.PointAt = power + 1;
  return decimal;
}

// Cuts the digits behind `decimals` places, half away from zero.
void RoundHalfAway(Decimal& decimal, int decimals) {
  const int kept = decimal.PointAt + decimals;
  if (kept >= static_cast<int>(decimal.Digits.size())) {
    return;
  }
  const bool up = kept >= 0 && decimal.Digits[static_cast<std::size_t>(kept)] >= '5';
  decimal.Digits.erase(kept > 0 ? static_cast<std::size_t>(kept) : 0);
  if (!up) {
    return;
  }
  std::size_t place = decimal.Digits.size();
  while (place > 0 && decimal.Digits[place - 1] == '9') {
    decimal.Digits[--place] = '0';
  }
  if (place > 0) {
    ++decimal.Digits[place - 1];
  } else {
    decimal.Digits.insert(decimal.Digits.begin(), '1');
    ++decimal.PointAt;
  }
}

std::string WholePartOf(const Decimal& decimal) {
  std::string whole;
  for (int place = 0; place < decimal.PointAt; ++place) {
    const auto index = static_cast<std::size_t>(place);
    whole += index < decimal.Digits.size() ? decimal.Digits[index] : '0';
  }
  return whole.empty() ? "0" : whole;
}

std::string FractionOf(const Decimal& decimal) {
  const auto size = static_cast<int>(decimal.Digits.size());
  std::string fraction;
  for (int place = decimal.PointAt; place < size; ++place) {
    fraction += place < 0 ? '0' : decimal.Digits[static_cast<std::size_t>(place)];
  }
  return fraction;
}

std::string PlainText(double value, int significant) {
  const Decimal decimal = ToDecimal(value, significant);
  const std::string fraction = FractionOf(decimal);
  const std::string sign = decimal.Negative && !decimal.Digits.empty() ? "-" : "";
  return sign + WholePartOf(decimal) + (fraction.empty() ? "" : "." + fraction);
}

std::string FixedPlaces(double value, int significant, int decimals) {
  Decimal decimal = ToDecimal(value, significant);
  RoundHalfAway(decimal, decimals);
  std::string fraction = FractionOf(decimal);
  fraction.resize(static_cast<std::size_t>(decimals), '0');
  const bool zero = decimal.Digits.find_first_not_of('0') == std::string::npos;
  const std::string sign = decimal.Negative && !zero ? "-" : "";
  return sign + WholePartOf(decimal) + (decimals > 0 ? "." + fraction : "");
}

std::int64_t ToWhole(double whole) {
  if (!(std::fabs(whole) < kWholeLimit)) {
    throw std::out_of_range("a whole number beyond 64 bits");
  }
  return static_cast<std::int64_t>(whole);
}

std::string_view WithoutBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) {
    return {};
  }
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

std::string SingleText(float value) { return PlainText(value, kSingleDigits); }

std::string DoubleText(double value) { return PlainText(value, kDoubleDigits); }

std::string FixedText(double value, int decimals) {
  return FixedPlaces(value, kDoubleDigits, decimals);
}

std::string FixedText(float value, int decimals) {
  return FixedPlaces(value, kSingleDigits, decimals);
}

std::string TwoDecimals(double value) { return FixedText(value, 2); }

std::string TwoDecimals(float value) { return FixedText(value, 2); }

double RoundHalfEven(double value) {
  const double below = std::floor(value);
  const double part = value - below;
  if (part != 0.5) {
    return part < 0.5 ? below : below + 1;
  }
  return std::fmod(below, 2) == 0 ? below : below + 1;
}

std::int64_t RoundToWhole(double value) { return ToWhole(RoundHalfEven(value)); }

std::int64_t Truncate(double value) { return ToWhole(std::trunc(value)); }

std::int64_t Floor(double value) { return ToWhole(std::floor(value)); }

std::optional<double> ParseNumber(std::string_view text) {
  text = WithoutBlanks(text);
  if (text.empty() || text.size() > kLongestNumber) {
    return std::nullopt;
  }
  const bool signedText = text.front() == '+' || text.front() == '-';
  const std::string_view digits = text.substr(signedText ? 1 : 0);
  if (digits.empty() || !(IsDigit(digits[0]) || (digits[0] == '.' && digits.size() > 1))) {
    return std::nullopt;
  }
  text.remove_prefix(text.front() == '+' ? 1 : 0);
  double value = 0;
  const char* end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, value, std::chars_format::general);
  if (read.ec != std::errc() || read.ptr != end || !std::isfinite(value)) {
    return std::nullopt;
  }
  return value;
}

bool IsNumeric(std::string_view text) { return ParseNumber(text).has_value(); }

double ToDouble(std::string_view text) {
  const std::optional<double> value = ParseNumber(text);
  if (!value) {
    throw std::invalid_argument("a text that is no number");
  }
  return *value;
}

float ToSingle(std::string_view text) { return static_cast<float>(ToDouble(text)); }

std::optional<std::int64_t> ParseWhole(std::string_view text) {
  text = WithoutBlanks(text);
  const std::size_t digitsAt = text.starts_with('+') || text.starts_with('-') ? 1 : 0;
  if (digitsAt >= text.size() || !IsDigit(text[digitsAt])) {
    return std::nullopt;
  }
  text.remove_prefix(text.front() == '+' ? 1 : 0);
  std::int64_t value = 0;
  const char* end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, value);
  if (read.ec != std::errc() || read.ptr != end) {
    return std::nullopt;
  }
  return value;
}

std::string PaddedWhole(std::int64_t value, int width) {
  std::string digits = std::to_string(value < 0 ? -value : value);
  if (const auto size = static_cast<int>(digits.size()); size < width) {
    digits.insert(0, static_cast<std::size_t>(width - size), '0');
  }
  return (value < 0 ? "-" : "") + digits;
}

std::string WholeText(std::int64_t value) { return PaddedWhole(value, 1); }

std::string RoundTripText(double value) {
  char buffer[64];
  const auto written = std::to_chars(buffer, buffer + sizeof buffer, value);
  return {buffer, written.ptr};
}

}  // namespace orvex::core
