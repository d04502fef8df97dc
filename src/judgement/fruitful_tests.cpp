#include "judgement/fruitful_tests.h"

#include "core/text.h"
#include "judgement/matter_planets.h"
#include "judgement/planet_marks.h"

namespace orvex::judgement {

namespace {

const char* Answer(bool passed) { return passed ? "Yes" : "No"; }

}  // namespace

core::Table BuildFruitfulTests(const core::Table& matterPlanets) {
  core::Table table{{{"Planet", 80},
                     {"Grade", 50},
                     {"Supporting", 90},
                     {"Denying", 90},
                     {"Ruling", 200},
                     {"Star", 50, "Not in the star of a retrograde planet", true},
                     {"Sub", 50, "Not in the sub of a retrograde planet", true},
                     {"Marks", 120},
                     {"Fruitful", 60}},
                    {}};
  for (std::size_t row = 0; row < matterPlanets.Rows.size(); ++row) {
    const auto text = [&](MatterPlanetColumn column) -> const std::string& {
      return matterPlanets.At(row, column).Text;
    };
    const std::string& marks = text(MatterPlanetColumn::Marks);
    table.AddRow();
    table.At(row, FruitfulColumn::Planet).Text = text(MatterPlanetColumn::Planet);
    table.At(row, FruitfulColumn::Grade).Text = text(MatterPlanetColumn::Grade);
    table.At(row, FruitfulColumn::Supporting).Text = text(MatterPlanetColumn::Supporting);
    table.At(row, FruitfulColumn::Denying).Text = text(MatterPlanetColumn::Denying);
    table.At(row, FruitfulColumn::Ruling).Text = text(MatterPlanetColumn::Ruling);
    table.At(row, FruitfulColumn::StarTest).Text =
        Answer(!core::Contains(marks, kStarOfRetrograde));
    table.At(row, FruitfulColumn::SubTest).Text = Answer(!core::Contains(marks, kSubOfRetrograde));
    table.At(row, FruitfulColumn::Marks).Text = marks;
    table.At(row, FruitfulColumn::Fruitful).Text =
        Answer(text(MatterPlanetColumn::Fruitful) == kFruitful);
  }
  return table;
}

}  // namespace orvex::judgement
