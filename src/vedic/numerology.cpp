#include "vedic/numerology.h"

#include "chart/zodiac_lookups.h"
#include "core/date_text.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::vedic {

namespace {

constexpr int kLargestDigit = 9;

std::string WithPlanet(const core::ReferenceData& reference, int number) {
  return core::WholeText(number) + " (" + chart::PlanetNameOfAstroNumber(reference, number) + ")";
}

}  // namespace

int ReducedDigitSum(const std::string& digits) {
  constexpr int kFurtherSums = 2;
  int sum = core::DigitSum(digits);
  for (int again = 0; again < kFurtherSums && sum > kLargestDigit; ++again) {
    sum = core::DigitSum(core::WholeText(sum));
  }
  return sum;
}

void FillNumerology(const core::ReferenceData& reference, chart::HoroscopeModel& model) {
  const std::string date = core::ShortDateText(model.Birth);
  const int base = ReducedDigitSum(core::WholeText(core::PartsOf(model.Birth).Day));
  const int destiny = ReducedDigitSum(core::ReplaceAll(date, "/", ""));
  model.Captions.NumerologyTag =
      date + "*" + core::WholeText(base) + "*" + core::WholeText(destiny);
  model.Captions.Numerology = "Base No. = " + WithPlanet(reference, base) +
                              "  |  Destiny No. = " + WithPlanet(reference, destiny);
}

}  // namespace orvex::vedic
