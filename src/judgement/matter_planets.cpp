#include "judgement/matter_planets.h"

#include <algorithm>

#include "chart/zodiac_lookups.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "judgement/house_grades.h"
#include "judgement/houses.h"
#include "judgement/planet_marks.h"
#include "judgement/rulers.h"

namespace orvex::judgement {

namespace {

using chart::HoroscopeModel;

// The best grade, 0 for A, that a row of the grades gives a planet; nothing where it gives none.
std::optional<std::size_t> GradeIn(const core::Table& houseGrades, std::size_t row,
                                   const std::string& code) {
  for (std::size_t grade = 0; grade < kGradeNames.size(); ++grade) {
    const auto column =
        static_cast<HouseGradeColumn>(core::Table::Index(HouseGradeColumn::A) + grade);
    const std::vector<std::string> codes = core::SplitWords(houseGrades.At(row, column).Text);
    if (std::find(codes.begin(), codes.end(), code) != codes.end()) {
      return grade;
    }
  }
  return std::nullopt;
}

struct Signified {
  std::vector<int> Houses;
  std::optional<std::size_t> BestGiving;  // the best grade in a main or supporting house
};

Signified SignifiedBy(const core::Table& houseGrades, const Matter& matter,
                      const std::string& code) {
  const std::vector<int> giving = GivingHouses(matter);
  Signified signified;
  for (std::size_t row = 0; row < houseGrades.Rows.size(); ++row) {
    const std::optional<std::size_t> grade = GradeIn(houseGrades, row, code);
    for (const int house : HousesOfText(houseGrades.At(row, HouseGradeColumn::House).Text)) {
      if (!grade) {
        continue;
      }
      signified.Houses.push_back(house);
      if (std::find(giving.begin(), giving.end(), house) != giving.end()) {
        signified.BestGiving = std::min(*grade, signified.BestGiving.value_or(*grade));
      }
    }
  }
  return signified;
}

std::string RolesOf(const core::Table& rulers, const std::string& planet) {
  std::vector<std::string> roles;
  for (std::size_t row = 0; row < rulers.Rows.size(); ++row) {
    if (rulers.At(row, RulerColumn::Planet).Text == planet) {
      roles.push_back(rulers.At(row, RulerColumn::Role).Text);
    }
  }
  return core::Join(roles, ", ");
}

}  // namespace

core::Table BuildMatterPlanets(const HoroscopeModel& model, const Matter& matter,
                               const core::Table& houseGrades, const core::Table& rulers) {
  core::Table table{{{"Planet", 80},
                     {"Grade", 50},
                     {"Supporting", 90},
                     {"Denying", 90},
                     {"Ruling", 200},
                     {"Marks", 140},
                     {"Fruitful", 60}},
                    {}};
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    const std::string& planet = PlanetText(model, row, chart::PlanetColumn::Planet);
    const Signified signified = SignifiedBy(houseGrades, matter, chart::PlanetCode(planet));
    const PlanetMarks marks = StoredMarks(model, row);
    const auto cell = [&table, row](MatterPlanetColumn column) -> std::string& {
      return table.At(row, column).Text;
    };
    table.AddRow();
    cell(MatterPlanetColumn::Planet) = planet;
    cell(MatterPlanetColumn::Grade) =
        signified.BestGiving ? kGradeNames.at(*signified.BestGiving) : "";
    cell(MatterPlanetColumn::Supporting) = HousesWithin(GivingHouses(matter), signified.Houses);
    cell(MatterPlanetColumn::Denying) = HousesWithin(matter.Denying, signified.Houses);
    cell(MatterPlanetColumn::Ruling) = RolesOf(rulers, planet);
    cell(MatterPlanetColumn::Marks) = MarksText(marks);
    const bool fruitful = !cell(MatterPlanetColumn::Supporting).empty() &&
                          !cell(MatterPlanetColumn::Ruling).empty() && !marks.StarLordRetrograde &&
                          !marks.SubLordRetrograde;
    cell(MatterPlanetColumn::Fruitful) = fruitful ? kFruitful : "";
  }
  return table;
}

std::set<std::string> FruitfulPlanets(const core::Table& matterPlanets) {
  std::set<std::string> planets;
  for (std::size_t row = 0; row < matterPlanets.Rows.size(); ++row) {
    if (matterPlanets.At(row, MatterPlanetColumn::Fruitful).Text == kFruitful) {
      planets.insert(matterPlanets.At(row, MatterPlanetColumn::Planet).Text);
    }
  }
  return planets;
}

}  // namespace orvex::judgement
