#include "judgement/house_grades.h"

#include <algorithm>

#include "chart/zodiac_lookups.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "judgement/node_agents.h"

namespace orvex::judgement {

namespace {

using chart::HoroscopeModel;
using chart::PlanetColumn;

constexpr std::array<HouseGradeColumn, 4> kGradeColumns = {
    HouseGradeColumn::A, HouseGradeColumn::B, HouseGradeColumn::C, HouseGradeColumn::D};

std::vector<std::size_t>& Of(Graded& grades, Grade grade) {
  return grades.at(static_cast<std::size_t>(grade));
}

bool Holds(const std::vector<std::size_t>& rows, std::size_t row) {
  return std::find(rows.begin(), rows.end(), row) != rows.end();
}

std::string CodesOf(const HoroscopeModel& model, const std::vector<std::size_t>& rows) {
  std::vector<std::string> codes;
  for (const std::size_t row : rows) {
    codes.push_back(chart::PlanetCode(PlanetText(model, row, PlanetColumn::Planet)));
  }
  return core::Join(codes, " ");
}

// The planets of any grade that a node stands for, each once, without the nodes.
std::vector<std::size_t> StoodFor(const HoroscopeModel& model, const Graded& grades,
                                  chart::PlanetPlace node) {
  std::vector<std::size_t> rows;
  for (const std::size_t row : AgentsOfNode(model, node)) {
    if (std::any_of(grades.begin(), grades.end(),
                    [row](const auto& grade) { return Holds(grade, row); })) {
      rows.push_back(row);
    }
  }
  return rows;
}

std::string NodesText(const HoroscopeModel& model, const Graded& grades) {
  std::vector<std::string> texts;
  for (const chart::PlanetPlace node : {chart::PlanetPlace::Rahu, chart::PlanetPlace::Ketu}) {
    const std::vector<std::size_t> planets = StoodFor(model, grades, node);
    if (!planets.empty()) {
      texts.push_back(CodesOf(model, {chart::RowOf(node)}) + " for " + CodesOf(model, planets));
    }
  }
  return core::Join(texts, ", ");
}

}  // namespace

Graded GradesOf(const HoroscopeModel& model, int house) {
  const std::string number = core::WholeText(house);
  const std::string& owner =
      HouseText(model, static_cast<std::size_t>(house) - 1, chart::HouseColumn::KpChartRashiOwner);
  const std::optional<std::size_t> ownerRow = RowOfPlanet(model, owner);
  Graded grades;
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    if (PlanetText(model, row, PlanetColumn::In) == number) {
      Of(grades, Grade::B).push_back(row);
    }
  }
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    const std::optional<std::size_t> starLord =
        RowOfPlanet(model, PlanetTag(model, row, PlanetColumn::StarLord));
    if (starLord && Holds(Of(grades, Grade::B), *starLord)) {
      Of(grades, Grade::A).push_back(row);
    }
    if (starLord && starLord == ownerRow) {
      Of(grades, Grade::C).push_back(row);
    }
  }
  if (ownerRow) {
    Of(grades, Grade::D).push_back(*ownerRow);
  }
  return grades;
}

core::Table BuildHouseGrades(const HoroscopeModel& model, const Matter& matter) {
  core::Table table{{{"House", 50}, {"A", 110}, {"B", 110}, {"C", 110}, {"D", 50}, {"Nodes", 200}},
                    {}};
  for (const int house : HousesOf(matter)) {
    table.AddRow();
    const std::size_t row = table.Rows.size() - 1;
    const Graded grades = GradesOf(model, house);
    table.At(row, HouseGradeColumn::House).Text = core::WholeText(house);
    for (std::size_t grade = 0; grade < grades.size(); ++grade) {
      table.At(row, kGradeColumns.at(grade)).Text = CodesOf(model, grades.at(grade));
    }
    table.At(row, HouseGradeColumn::Nodes).Text = NodesText(model, grades);
  }
  return table;
}

}  // namespace orvex::judgement
