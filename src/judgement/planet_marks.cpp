#include "judgement/planet_marks.h"

#include "core/text.h"

namespace orvex::judgement {

namespace {

using chart::PlanetColumn;

bool IsStoredRetrograde(const chart::HoroscopeModel& model, const std::string& planet) {
  const std::optional<std::size_t> row = RowOfPlanet(model, planet);
  return row && CountsAsRetrograde(planet, PlanetText(model, *row, PlanetColumn::R) == "R");
}

}  // namespace

bool CountsAsRetrograde(const std::string& planet, bool retrograde) {
  return retrograde && planet != "Rahu" && planet != "Ketu";
}

std::string MarksText(const PlanetMarks& marks) {
  std::vector<std::string> texts;
  const auto add = [&texts](bool holds, const char* text) {
    if (holds) {
      texts.emplace_back(text);
    }
  };
  add(marks.Retrograde, "R");
  add(marks.StarLordRetrograde, kStarOfRetrograde);
  add(marks.SubLordRetrograde, kSubOfRetrograde);
  add(marks.Combust, "C");
  return core::Join(texts, ", ");
}

PlanetMarks StoredMarks(const chart::HoroscopeModel& model, std::size_t planetRow) {
  return {IsStoredRetrograde(model, PlanetText(model, planetRow, PlanetColumn::Planet)),
          IsStoredRetrograde(model, PlanetTag(model, planetRow, PlanetColumn::StarLord)),
          IsStoredRetrograde(model, PlanetTag(model, planetRow, PlanetColumn::SubLord)),
          PlanetText(model, planetRow, PlanetColumn::C) == "C"};
}

}  // namespace orvex::judgement
