// Why a planet is fruitful or not, test by test.
#pragma once

#include "core/table.h"

namespace orvex::judgement {

// Grade: the first test, that the planet signifies a main or supporting house; Ruling: the second.
enum class FruitfulColumn {
  Planet,
  Grade,
  Supporting,
  Denying,
  Ruling,
  StarTest,  // "No" where it stands in the star of a retrograde planet
  SubTest,   // the same of the sub
  Marks,
  Fruitful
};

// A row for each row of the table of the planets of a matter. Tests are "Yes" where they are
// passed, else "No"; so is Fruitful.
core::Table BuildFruitfulTests(const core::Table& matterPlanets);

}  // namespace orvex::judgement
