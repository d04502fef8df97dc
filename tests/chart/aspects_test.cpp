#include "chart/aspects.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "core/cell_colors.h"
#include "support/model_builder.h"

namespace orvex::chart {
namespace {

using test::TextsOf;
using Texts = std::vector<std::string>;

// "SU-MO 60.00+" of each row.
Texts Listed(const HoroscopeModel& model) {
  Texts rows;
  for (std::size_t row = 0; row < model.PlanetAspectList.Rows.size(); ++row) {
    const core::Cell& angle = model.PlanetAspectList.At(row, AspectColumn::Angle);
    rows.push_back(model.PlanetAspectList.At(row, AspectColumn::From).Text + "-" +
                   model.PlanetAspectList.At(row, AspectColumn::To).Text + " " + angle.Text +
                   angle.Tag);
  }
  return rows;
}

Texts WithMark(const Texts& rows, char mark) {
  Texts marked;
  std::copy_if(rows.begin(), rows.end(), std::back_inserter(marked),
               [mark](const std::string& row) { return row.back() == mark; });
  return marked;
}

TEST(PlanetAspects, PairsOfTheWorkedChartStandByHouseAndFollowTheFilter) {
  HoroscopeModel model = test::WorkedModel();
  const Texts all = {"VE-SU 60.00+",  "VE-ME 65.00+",  "VE-MA 90.00-",  "MO-ME 30.00+",
                     "MO-MA 55.00+",  "MO-KE 125.00+", "MO-JU 175.00-", "SU-MA 30.00+",
                     "SU-JU 150.00-", "ME-KE 95.00-",  "MA-JU 120.00+", "MA-SA 180.00-",
                     "JU-VE 150.00-", "JU-MO 185.00-", "JU-SA 60.00+",  "SA-VE 90.00-",
                     "SA-MO 125.00+", "SA-SU 150.00-", "SA-MA 180.00-"};
  const std::pair<const char*, Texts> filters[] = {
      {"", all}, {"+", WithMark(all, '+')}, {"-", WithMark(all, '-')}, {"other", all}};
  for (const auto& [filter, wanted] : filters) {
    LoadPlanetAspects(model, core::DefaultAspectBands(), filter);
    EXPECT_EQ(Listed(model), wanted) << filter;
    for (const core::Row& row : model.PlanetAspectList.Rows) {
      const core::Cell& angle = row.Cells[core::Table::Index(AspectColumn::Angle)];
      EXPECT_EQ(angle.Background, angle.Tag == "+" ? "CAFACB" : "FACACA");
    }
  }
}

TEST(PlanetAspects, ARowTellsNamesAndDirectionsOfBothSigns) {
  HoroscopeModel model =
      test::BuildModel({{"Ketu", "100.00", 1}, {"Venus", "40.00", 2}}, test::CuspsAt(15), 8);
  LoadPlanetAspects(model, core::DefaultAspectBands(), "");
  ASSERT_EQ(Listed(model), Texts({"VE-KE 60.00+"}));
  const std::vector<core::Cell>& cells = model.PlanetAspectList.Rows[0].Cells;
  EXPECT_EQ(cells[0].Tag, "Venus");
  EXPECT_EQ(cells[1].Text, "WNW/NW");
  EXPECT_EQ(cells[2].Tag, "Ketu");
  EXPECT_EQ(cells[3].Text, "NNE");
  EXPECT_EQ(cells[3].Tag, "4");
}

TEST(PlanetAspects, TheForwardAngleDecidesWithBothLimitsInclusive) {
  struct {
    const char* sun;
    const char* moon;
    Texts wanted;
  } const cases[] = {{"10.00", "10.00", {}},  // 360, not 0
                     {"0.00", "0.00", {}},
                     {"350.00", "20.00", {"SU-MO 30.00+"}},  // over the first point of Aries
                     {"20.00", "350.00", {"MO-SU 30.00+"}},
                     {"0.00", "180.00", {"SU-MO 180.00-", "MO-SU 180.00-"}},
                     {"0.00", "175.00", {"SU-MO 175.00-", "MO-SU 185.00-"}},
                     {"100.00", "155.00", {"SU-MO 55.00+"}},
                     {"100.00", "154.99", {}},
                     {"100.00", "165.00", {"SU-MO 65.00+"}},
                     {"100.00", "165.01", {}},
                     {"0.00", "27.00", {"SU-MO 27.00+"}},
                     {"0.00", "33.01", {}},
                     {"0.00", "42.00", {"SU-MO 42.00-"}},
                     {"0.00", "138.00", {"SU-MO 138.00-"}},
                     {"0.00", "147.00", {"SU-MO 147.00-"}},
                     {"0.00", "171.99", {}}};
  for (const auto& c : cases) {
    HoroscopeModel model = test::BuildModel({{"Sun", c.sun, 1}, {"Moon", c.moon, 1}});
    LoadPlanetAspects(model, core::DefaultAspectBands(), "");
    EXPECT_EQ(Listed(model), c.wanted) << c.sun << " " << c.moon;
  }
}

TEST(PlanetAspects, NodesAreAspectedAndNeverAspect) {
  const char* names[] = {"Rahu", "Ketu", "Sun"};
  for (const char* from : names) {
    for (const char* to : names) {
      if (from == to) {
        continue;
      }
      for (const char* degree : {"30.00", "60.00", "90.00", "120.00", "180.00"}) {
        HoroscopeModel model = test::BuildModel({{from, "0.00", 1}, {to, degree, 1}});
        LoadPlanetAspects(model, core::DefaultAspectBands(), "");
        const Texts sources = TextsOf(model.PlanetAspectList, AspectColumn::From);
        const bool opposite = std::string(degree) == "180.00";
        const bool sun = std::string(from) == "Sun" || (std::string(to) == "Sun" && opposite);
        EXPECT_EQ(sources, sun ? Texts({"SU"}) : Texts()) << from << " " << to << " " << degree;
      }
    }
  }
}

TEST(PlanetAspects, OverlappingBandsAreTriedInOrderAndComparedInSinglePrecision) {
  core::AspectBandLimits wide = core::DefaultAspectBands();
  wide[0] = {0, 40};   // 30
  wide[3] = {35, 55};  // 45
  wide[1] = {50, 63};  // 60
  wide[4] = {90, 90};  // an orb of 0
  wide[7] = {350, 360};
  struct {
    const char* sun;
    const char* moon;
    Texts wanted;
  } const cases[] = {{"0.00", "38.00", {"SU-MO 38.00+"}},  // 30 comes ahead of 45
                     {"0.00", "45.00", {"SU-MO 45.00-"}},
                     {"0.00", "52.00", {"SU-MO 52.00+"}},  // and 60 too
                     {"0.00", "90.00", {"SU-MO 90.00-"}},
                     {"0.00", "90.01", {}},
                     {"0.00", "89.99", {}},
                     {"10.00", "10.00", {}},               // no aspect whatever the bands
                     {"1.04", "64.04", {"SU-MO 63.00+"}},  // above 63 in double precision
                     {"1.05", "64.05", {}}};               // above 63 in single precision only
  for (const auto& c : cases) {
    HoroscopeModel model = test::BuildModel({{"Sun", c.sun, 1}, {"Moon", c.moon, 1}});
    LoadPlanetAspects(model, wide, "");
    EXPECT_EQ(Listed(model), c.wanted) << c.sun << " " << c.moon;
  }
}

TEST(HouseAspects, CaptionsNameThePlanetsOfBothHouses) {
  struct {
    std::vector<std::pair<std::size_t, const char*>> houses;
    const char* saturn;
    const char* mars;
    const char* jupiter;
  } const cases[] = {
      {{{1, "SA MA JU"}}, "Saturn = None", "Mars = None", "Jupiter = None"},
      {{{1, "SA MA JU"}, {7, "SU"}}, "Saturn = None", "Mars = None", "Jupiter = None"},
      {{{1, "SA MA JU"}, {3, "SU RA"}, {4, "MO"}, {5, "VE"}},
       "Saturn = (3rd Aspect - SU RA)",
       "Mars = (4th Aspect - MO)",
       "Jupiter = (5th Aspect - VE)"},
      {{{1, "SA MA JU"}, {10, "SU"}, {8, "MO KE"}, {9, "VE"}},
       "Saturn = (10th Aspect - SU)",
       "Mars = (8th Aspect - MO KE)",
       "Jupiter = (9th Aspect - VE)"},
      {{{11, "SA"}, {1, "SU"}, {8, "MO"}, {10, "MA"}, {5, "VE"}, {6, "JU"}},
       "Saturn = (3rd Aspect - SU) (10th Aspect - MO)",
       "Mars = (4th Aspect - SU) (8th Aspect - VE)",
       "Jupiter = (5th Aspect - MA)"},
      {{}, "Saturn = None", "Mars = None", "Jupiter = None"}};
  for (const auto& c : cases) {
    HoroscopeModel model;
    AddHouseRows(model);
    for (const auto& [house, planets] : c.houses) {
      model.HouseTable.At(house - 1, HouseColumn::RcPlanets).Text = planets;
    }
    HouseAspectSummary(model);
    EXPECT_EQ(model.Captions.SaturnAspects, c.saturn);
    EXPECT_EQ(model.Captions.MarsAspects, c.mars);
    EXPECT_EQ(model.Captions.JupiterAspects, c.jupiter);
  }
}

TEST(HouseAspects, AHouseNumberThatIsNoneAspectsNobody) {
  HoroscopeModel model = test::WorkedModel();
  const std::pair<const char*, const char*> cases[] = {{"4", "SU ME"}, {"1", "RA"}, {"", ""},
                                                       {"0", ""},      {"13", ""},  {"-1", ""}};
  for (const auto& [house, planets] : cases) {
    model.HouseTable.At(6, HouseColumn::Asp10).Text = house;
    EXPECT_EQ(AspectedPlanets(model, 6, HouseColumn::Asp10), planets) << house;
    EXPECT_EQ(AspectedBy(model, "KE", HouseColumn::Asp10), planets) << house;
  }
  EXPECT_EQ(AspectedBy(model, "XX", HouseColumn::Asp7), "");
}

TEST(Aspects, MissingPlanetsAndHousesCostOnlyTheirOwnRows) {
  HoroscopeModel model = test::WorkedModel();
  model.PlanetTable.At(RowOf(PlanetPlace::Venus), PlanetColumn::Degree).Tag.clear();
  model.PlanetTable.Rows.resize(RowOf(PlanetPlace::Mercury));
  model.HouseTable.At(0, HouseColumn::RcPlanets).Text = "RA XX";
  LoadPlanetAspects(model, core::DefaultAspectBands(), "+");
  EXPECT_EQ(Listed(model), Texts({"MO-MA 55.00+", "MO-KE 125.00+", "SU-MA 30.00+", "MA-JU 120.00+",
                                  "JU-SA 60.00+", "SA-MO 125.00+"}));
  for (const std::size_t houses : {0U, 3U, 12U}) {
    HoroscopeModel damaged = test::DamagedModel(houses, 6);
    EXPECT_NO_THROW(LoadPlanetAspects(damaged, core::DefaultAspectBands(), ""));
    EXPECT_NO_THROW(HouseAspectSummary(damaged));
    EXPECT_EQ(damaged.Captions.JupiterAspects.substr(0, 9), "Jupiter =");
  }
}

TEST(Aspects, WholeSignsAreAspectedByTheSeventhAndByThreePlanetsTwoMore) {
  const std::map<std::string, std::set<int>> wanted = {
      {"Ketu", {}},           {"Venus", {7}},         {"Sun", {7}},
      {"Moon", {7}},          {"Mars", {4, 7, 8}},    {"Rahu", {}},
      {"Jupiter", {5, 7, 9}}, {"Saturn", {3, 7, 10}}, {"Mercury", {7}}};
  for (const auto& [planet, places] : wanted) {
    for (int place = 1; place <= 12; ++place) {
      EXPECT_EQ(AspectsPlace(planet, place), places.contains(place)) << planet << " " << place;
    }
  }
}

}  // namespace
}  // namespace orvex::chart
