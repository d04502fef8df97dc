#include "chart/status_line.h"

#include "chart/planet_marks.h"
#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::chart {

namespace {

// A degree below 30 stands as it is.
std::string DegreeInSign(const std::string& degree) {
  constexpr double kSignDegrees = 30;
  const double longitude = core::ToDouble(degree);
  if (longitude < kSignDegrees) {
    return degree;
  }
  return core::TwoDecimals(longitude - (RashiOfDegree(longitude) - 1) * kSignDegrees);
}

std::string PositionText(const HoroscopeModel& model, std::size_t row, char degreeCalc) {
  const std::string& degree = PlanetText(model, row, PlanetColumn::Degree);
  std::string marks = PlanetText(model, row, PlanetColumn::C) == "C" ? kCombustMark : "";
  marks += PlanetText(model, row, PlanetColumn::R) == "R" ? kRetrogradeMark : "";
  return PlanetCode(PlanetText(model, row, PlanetColumn::Planet)) + marks + " (" +
         PlanetText(model, row, PlanetColumn::In) +
         ") = " + (degreeCalc == 'R' ? DegreeInSign(degree) : degree) + "    ";
}

std::string AscendantText(const HoroscopeModel& model, char degreeCalc) {
  const std::string& degree = model.CuspTable.At(0, CuspColumn::Degree).Text;
  if (degreeCalc != 'R') {
    return degree;
  }
  const std::string sign = RashiName(RashiOfDegree(core::ToDouble(degree)));
  return core::FirstCharacters(sign, 3) + " " + DegreeInSign(degree);
}

std::string Legend() {
  return std::string(kCombustMark) + " = Combust, " + kRetrogradeMark + " = Retro";
}

}  // namespace

void WriteStatusLine(HoroscopeModel& model, char statusBarDegreeCalc) {
  HoroscopeCaptions& captions = model.Captions;
  captions.PlanetPositions.clear();
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    core::Attempt(
        [&] { captions.PlanetPositions += PositionText(model, row, statusBarDegreeCalc); });
  }
  core::Attempt([&] {
    captions.StatusBar = "Asc = " + AscendantText(model, statusBarDegreeCalc) + "  |  " +
                         core::Trim(captions.PlanetPositions) + "  |  " + Legend();
  });
}

}  // namespace orvex::chart
