// The tables of a matter from a horoscope made by hand. Cusps stand 15 degrees into each sign and
// Aries is the first house, so house and sign have one number; the chalit houses differ on purpose.
#include <gtest/gtest.h>

#include "chart/significators.h"
#include "core/text.h"
#include "judgement/house_grades.h"
#include "judgement/matter_chain.h"
#include "judgement/matter_periods.h"
#include "judgement/matter_planets.h"
#include "judgement/matter_section.h"
#include "judgement/rulers.h"
#include "support/model_builder.h"
#include "support/test_home.h"

namespace orvex::judgement {
namespace {

using Lines = std::vector<std::string>;

// A table row by row, the texts of its cells joined with "|".
Lines LinesOf(const core::Table& table) {
  Lines lines;
  for (const core::Row& row : table.Rows) {
    std::vector<std::string> texts;
    for (const core::Cell& cell : row.Cells) {
      texts.push_back(cell.Text);
    }
    lines.push_back(core::Join(texts, "|"));
  }
  return lines;
}

chart::HoroscopeModel Model() {
  chart::HoroscopeModel model = test::BuildModel({{"Ketu", "195", 8, "Mercury", "Mars", true},
                                                  {"Venus", "135", 7, "Sun", "Jupiter"},
                                                  {"Sun", "200", 2, "Ketu", "Rahu"},
                                                  {"Moon", "20", 2, "Saturn", "Mars"},
                                                  {"Mars", "100", 4, "Mars", "Sun"},
                                                  {"Rahu", "15", 11, "Venus", "Saturn", true},
                                                  {"Jupiter", "250", 9, "Moon", "Ketu", true},
                                                  {"Saturn", "310", 11, "Rahu", "Moon"},
                                                  {"Mercury", "160", 6, "Jupiter", "Rahu"}});
  model.PlanetTable.At(chart::RowOf(chart::PlanetPlace::Venus), chart::PlanetColumn::C).Text = "C";
  model.CuspTable.At(6, chart::CuspColumn::SubLord).Text = "Venus";
  model.CuspTable.At(1, chart::CuspColumn::SubLord).Text = "Sun";
  model.CuspTable.At(10, chart::CuspColumn::SubLord).Text = "Mercury";
  chart::PlanetLevels(model);
  return model;
}

Matter Marriage() { return {1, "Marriage", 7, {2, 11}, {1, 6, 10}, ""}; }

core::Table Rulers() {
  core::Table table{{{"Role"}, {"Planet"}, {"Marks"}}, {}};
  for (const auto& [role, planet] :
       {std::pair("Asc Star", "Venus"), std::pair("Asc Sign", "Saturn"),
        std::pair("Moon Star", "Mercury"), std::pair("Day", "Saturn"),
        std::pair("Asc Sub", "Jupiter"), std::pair("Moon Sub", "Moon"),
        std::pair("Node", "Rahu")}) {
    table.Rows.push_back({{{role}, {planet}, {}}, "", false});
  }
  return table;
}

core::Table Planets(const Matter& matter) {
  const chart::HoroscopeModel model = Model();
  return BuildMatterPlanets(model, matter, BuildHouseGrades(model, matter), Rulers());
}

TEST(MatterChain, FollowsTheSubLordOfTheMainCuspAndNamesTheHousesAskedFor) {
  EXPECT_EQ(LinesOf(BuildMatterChain(Model(), Marriage())),
            (Lines{"Cusp Sub Lord|Venus|2|7|5|2 7|2 7||sub of R, C", "Its Star Lord|Sun|8|2||5|2||",
                   "Its Sub Lord|Jupiter|2|9|4|9 12|2||R"}));
  EXPECT_EQ(LinesOf(BuildMatterCusps(Model(), Marriage())),
            (Lines{"2|Sun|8|2||5|2||", "11|Mercury|9|6|9 12|3 6||6|star of R"}));
}

TEST(MatterChain, ACuspWithoutASubLordLeavesTheRowsEmpty) {
  chart::HoroscopeModel model = Model();
  model.CuspTable.At(6, chart::CuspColumn::SubLord).Text = "";
  EXPECT_EQ(LinesOf(BuildMatterChain(model, Marriage())),
            (Lines{"Cusp Sub Lord||||||||", "Its Star Lord||||||||", "Its Sub Lord||||||||"}));
}

// Rahu stands for Mars (sign lord), Venus (star lord), Moon (in its sign), Sun (7th), Saturn (3rd)
// and Jupiter (5th), and not for Ketu opposite; Ketu for Venus, Mercury, Sun, Moon and Mars (4th).
TEST(HouseGrades, HoldOccupantsOwnersTheirStarsAndTheNodesAsAgents) {
  EXPECT_EQ(LinesOf(BuildHouseGrades(Model(), Marriage())),
            (Lines{"7|RA|VE|RA|VE|RA for VE, KE for VE",
                   "2|VE JU|SU MO|RA|VE|RA for VE SU MO JU, KE for VE SU MO",
                   "11|MO SA|RA SA|MO|SA|RA for MO SA, KE for MO", "1|||MA|MA|RA for MA, KE for MA",
                   "6|KE|ME|KE|ME|KE for ME", "10|||MO|SA|RA for MO SA, KE for MO"}));
}

TEST(MatterPlanets, HaveTheirBestGradeTheirRolesAndAreFruitfulByThreeTests) {
  EXPECT_EQ(LinesOf(Planets(Marriage())),
            (Lines{"Ketu|||6|||", "Venus|A|2 7||Asc Star|sub of R, C|", "Sun|B|2||||",
                   "Moon|A|2 11|10|Moon Sub||Yes", "Mars|||1|||", "Rahu|A|2 7 11||Node||Yes",
                   "Jupiter|A|2||Asc Sub|R|Yes", "Saturn|A|11|10|Asc Sign, Day||Yes",
                   "Mercury|||6|Moon Star|star of R|"}));
  EXPECT_EQ(FruitfulPlanets(Planets(Marriage())),
            (std::set<std::string>{"Moon", "Rahu", "Jupiter", "Saturn"}));
  // In the star of a retrograde planet: no fruit, though it signifies and rules.
  EXPECT_EQ(LinesOf(Planets({2, "Debt", 6, {}, {}, ""})).back(),
            "Mercury|B|6||Moon Star|star of R|");
}

chart::TreeRow Antara(const char* dasha, const char* bhukti, const char* antara, const char* from,
                      const char* until) {
  return {{dasha, bhukti, antara, ""}, test::Moment(from), test::Moment(until)};
}

// Scores of the lords: Rahu 4, Venus, Moon and Jupiter 2, Sun and Saturn 1, all others -1.
TEST(MatterPeriods, AreThoseThatTouchTheWindowTheHighestScoreFirstThenTheEarliest) {
  const std::vector<chart::TreeRow> tree = {
      Antara("Rahu", "Rahu", "Rahu", "1999-01-01", "2000-01-01"),  // over at midnight
      Antara("Moon", "Venus", "Sun", "1999-06-01", "2000-01-02"),
      Antara("Rahu", "Moon", "Venus", "2000-03-01", "2000-05-01"),
      Antara("Venus", "Moon", "Rahu", "2000-02-29", "2000-03-01"),
      Antara("Mercury", "Mars", "Ketu", "2000-06-01", "2000-08-01"),
      Antara("Saturn", "Saturn", "Saturn", "2000-12-31", "2002-01-01"),
      Antara("Rahu", "Rahu", "Rahu", "2001-01-01", "2002-01-01")};  // begins with the end
  const PeriodWindow window{test::Moment("2000-01-01 12:00"), test::Moment("2001-01-01")};
  const core::Table periods =
      BuildMatterPeriods(tree, Planets(Marriage()), test::Moment("2000-03-01 23:00"), window);
  EXPECT_EQ(LinesOf(periods), (Lines{"Venus|Moon|Rahu|29 Feb 2000|1 Mar 2000|-|2 7 11|8",
                                     "Rahu|Moon|Venus|1 Mar 2000|1 May 2000|0|2 7 11|8",
                                     "Moon|Venus|Sun|1 Jun 1999|2 Jan 2000|-|2 7 11|5",
                                     "Saturn|Saturn|Saturn|31 Dec 2000|1 Jan 2002|0|11|3",
                                     "Mercury|Mars|Ketu|1 Jun 2000|1 Aug 2000|0||-3"}));
  const core::Table old =
      BuildMatterPeriods(tree, Planets(Marriage()), test::Moment("1960-03-02 10:00"), window);
  EXPECT_EQ(old.At(1, MatterPeriodColumn::Age).Text, "39");
  EXPECT_EQ(old.At(3, MatterPeriodColumn::Age).Text, "40");
}

TEST(MatterSection, PapersCarryTheTablesOfAMatterAndTheSheetTheBestPeriods) {
  Judgement judged;
  judged.MatterChain.Columns = {{"Role"}};
  judged.MatterPeriods.Columns = {{"Dasha"}};
  for (const char* dasha : {"1", "2", "3", "4", "5", "6", "7"}) {
    judged.MatterPeriods.AddRow().Cells[0].Text = dasha;
  }
  const auto captions = [](const report::ReportSection& section) {
    std::string all = section.Caption;
    for (const report::ReportPart& part : section.Parts) {
      all += ", " + part.Caption;
    }
    return all;
  };
  const auto periods = [](const report::ReportSection& section) {
    return LinesOf(std::get<report::ReportTable>(section.Parts.back().Body).Table);
  };
  const report::ReportSection report = SectionOfReport(Marriage(), judged);
  EXPECT_EQ(captions(report),
            "Marriage: 7 | 2 11 | 1 6 10, Main cusp, Grades of the houses, Planets, Ruling planets "
            "at the judgement, Periods");
  EXPECT_EQ(periods(report).size(), 7U);
  const report::ReportSection sheet = SectionOfSheet(Marriage(), judged);
  EXPECT_EQ(captions(sheet), "Marriage: 7 | 2 11 | 1 6 10, Main cusp, Planets, Periods");
  EXPECT_EQ(periods(sheet), (Lines{"1", "2", "3", "4", "5"}));
}

}  // namespace
}  // namespace orvex::judgement
