#include "core/typed_coordinate.h"

#include <vector>

#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::core {

namespace {

constexpr double kSixty = 60;
constexpr int kDecimals = 5;

// A half of the globe by its two letters, positive first, and how far it goes.
struct Axis {
  char Positive;
  char Negative;
  double Farthest;
};

constexpr Axis kLatitude = {'n', 's', 90};
constexpr Axis kLongitude = {'e', 'w', 180};

// The numbers of a text and the letter that stands among them, at whichever place.
struct Angle {
  std::vector<std::string> Numbers;
  char Letter = ' ';
  std::size_t LetterAt = 0;  // how many numbers stand before it
};

// The signs of degrees, minutes and seconds as blanks.
std::string WithoutSigns(std::string_view text) {
  std::string plain = LowerCase(Trim(text));
  for (const char* sign :
       {"\u00B0", "\u00BA", "\u2032", "\u2019", "\u2033", "\u201D", "'", "\"", ":"}) {
    plain = ReplaceAll(plain, sign, " ");
  }
  return plain;
}

std::optional<Angle> AngleOf(const std::string& text, const Axis& axis) {
  Angle angle;
  std::string spaced;
  for (const char c : text) {
    const bool isLetter = c == axis.Positive || c == axis.Negative;
    spaced += isLetter ? std::string{' ', c, ' '} : std::string(1, c);
  }
  for (const std::string& word : SplitWords(spaced)) {
    if (word.size() == 1 && (word[0] == axis.Positive || word[0] == axis.Negative)) {
      if (angle.Letter != ' ') {
        return std::nullopt;
      }
      angle.Letter = word[0];
      angle.LetterAt = angle.Numbers.size();
    } else if (word.find_first_not_of("0123456789.") == std::string::npos && IsNumeric(word)) {
      angle.Numbers.push_back(word);
    } else {
      return std::nullopt;
    }
  }
  return angle;
}

// Only the last number has a fraction; minutes and seconds are below 60.
std::optional<double> DegreesOf(const std::vector<std::string>& numbers) {
  double degrees = 0;
  double unit = 1;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const double value = ToDouble(numbers[i]);
    const bool isLast = i + 1 == numbers.size();
    if ((i > 0 && value >= kSixty) || (!isLast && Contains(numbers[i], "."))) {
      return std::nullopt;
    }
    degrees += value / unit;
    unit *= kSixty;
  }
  return degrees;
}

std::optional<std::string> Read(std::string_view text, const Axis& axis) {
  constexpr std::size_t kMostNumbers = 3;
  const std::optional<Angle> angle = AngleOf(WithoutSigns(text), axis);
  if (!angle || angle->Letter == ' ' || angle->Numbers.empty() ||
      angle->Numbers.size() > kMostNumbers) {
    return std::nullopt;
  }
  const bool isFramed = angle->LetterAt == 0 || angle->LetterAt == angle->Numbers.size();
  const std::optional<double> degrees = DegreesOf(angle->Numbers);
  if (!degrees || *degrees > axis.Farthest || !(isFramed || angle->LetterAt == 1)) {
    return std::nullopt;
  }
  const double signedDegrees = angle->Letter == axis.Negative ? -*degrees : *degrees;
  return DoubleText(ToDouble(FixedText(signedDegrees, kDecimals)));
}

}  // namespace

std::optional<std::string> ReadTypedLatitude(std::string_view text) {
  return Read(text, kLatitude);
}

std::optional<std::string> ReadTypedLongitude(std::string_view text) {
  return Read(text, kLongitude);
}

}  // namespace orvex::core
