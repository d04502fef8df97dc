#include "panchang/sky_view.h"

#include <gtest/gtest.h>

#include "core/exact_numbers.h"
#include "panchang/hora.h"
#include "panchang/sky_planets.h"
#include "support/test_home.h"

namespace orvex::panchang {
namespace {

TEST(SkyCombustion, TheWindowCountsFromTheSunAndDoesNotWrapButForMars) {
  struct Case {
    const char* Planet;
    bool Retrograde;
    const char* Sun;
    const char* Degree;
    const char* Want;
  };
  for (const Case& c : std::initializer_list<Case>{
           {"Moon", false, "100.00", "88.00", "C"},
           {"Moon", false, "100.00", "87.99", ""},
           {"Mercury", false, "100.00", "114.00", "C"},
           {"Mercury", true, "100.00", "114.00", ""},
           {"Mercury", true, "100.00", "112.00", "C"},
           {"Venus", false, "100.00", "110.00", "C"},
           {"Venus", true, "100.00", "110.00", ""},
           {"Jupiter", true, "100.00", "111.00", "C"},
           {"Saturn", true, "100.00", "84.99", ""},
           {"Rahu", true, "100.00", "100.00", ""},
           {"Uranus", false, "100.00", "100.00", ""},
           {"Moon", false, "5.00", "6.00", ""},
           {"Moon", false, "12.00", "0.00", "C"},
           {"Moon", false, "5.00", "355.00", ""},
           {"Mars", false, "5.00", "10.00", "C"},
           {"Mars", false, "5.00", "355.00", ""},
           {"Saturn", false, "350.00", "2.00", ""},
       }) {
    SCOPED_TRACE(::testing::Message() << c.Planet << " " << c.Sun << " " << c.Degree);
    core::ReferenceData none;
    core::Table planets = EmptySkyPlanets();
    AddSkyPlanet(none, planets, "Sun", false, 0, c.Sun);
    AddSkyPlanet(none, planets, c.Planet, c.Retrograde, 0, c.Degree);
    CheckCombustion(planets);
    EXPECT_EQ(c.Want, planets.At(1, SkyPlanetColumn::C).Text);
    EXPECT_EQ("", planets.At(0, SkyPlanetColumn::C).Text);
  }
}

TEST(SkyHouses, RunFromTheAscendantAndMarkRetrogradeAndCombust) {
  core::Table houses = BuildSkyHouses(
      {{"Sun", false, 11, 310}, {"Mercury", true, 11, 311}, {"Rahu", true, 2, 40}}, 11);
  core::ReferenceData none;
  core::Table planets = EmptySkyPlanets();
  AddSkyPlanet(none, planets, "Sun", false, 11, "310.00");
  AddSkyPlanet(none, planets, "Mercury", true, 11, "311.00");
  CheckCombustion(planets);
  MarkCombustInHouses(planets, houses);
  ASSERT_EQ(12U, houses.Rows.size());
  EXPECT_EQ("Asc SU ME*~", houses.At(0, SkyHouseColumn::Planets).Text);
  EXPECT_EQ("1", houses.At(2, SkyHouseColumn::Rashi).Text);
  EXPECT_EQ("RA~", houses.At(3, SkyHouseColumn::Planets).Text);
}

class SkyViews : public ::testing::Test {
 protected:
  struct City {
    const char* Name;
    float Latitude;
    float Longitude;
    float Offset;
  };

  static void Set(core::ApplicationState& state, const City& city) {
    state.UserCityName = city.Name;
    state.UserCityLatitude = city.Latitude;
    state.UserCityLongitude = city.Longitude;
    state.UserCityOffset = city.Offset;
  }

  static constexpr City kCities[] = {{"Mumbai", 18.98F, 72.83F, 5.5F},
                                     {"New York", 40.71F, -74.01F, -5},
                                     {"Sydney", -33.87F, 151.21F, 10},
                                     {"Tromso", 69.65F, 18.96F, 1}};

  test::TestHome home_{"2026-11-24 10:00:00"};
  std::unique_ptr<core::Session> session_ = home_.Start();
};

TEST_F(SkyViews, AReaderBesideTheWorkbenchShowsTheSameAndLeavesTheStoreAsItWas) {
  SkyView written;
  GetCurrentTransit(*session_, written);
  const auto rows = [](core::Session& session) {
    std::string text;
    core::Result row = session.StoreConnection.Query("Select * from planet_positions");
    for (; !row.AtEnd(); row.Next()) {
      text += row.Text("planetname") + row.Text("inretro") + row.Text("degree") + "\n";
    }
    return text;
  };
  const std::string before = rows(*session_);
  const auto reader = home_.Start(core::StartMode::Reader);
  ASSERT_TRUE(reader);
  home_.Clock.Set(test::Moment("2027-03-01 10:00:00"));
  SkyView read;
  GetCurrentTransit(*reader, read);
  EXPECT_EQ(before, rows(*session_));
  GetCurrentTransit(*session_, written);
  EXPECT_NE(before, rows(*session_));
  for (std::size_t row = 0; row < written.SkyPlanets.Rows.size(); ++row) {
    EXPECT_EQ(written.SkyPlanets.At(row, SkyPlanetColumn::Degree).Text,
              read.SkyPlanets.At(row, SkyPlanetColumn::Degree).Text);
  }
}

// A tick while an import writes: the view is shown, the import stays whole and can be taken back.
TEST_F(SkyViews, ATickWithinABatchOfAnotherLeavesThatBatchAlone) {
  SkyView view;
  GetCurrentTransit(*session_, view);
  const std::string before = view.SkyPlanets.At(1, SkyPlanetColumn::Degree).Text;
  home_.Clock.Set(test::Moment("2026-11-25 10:00:00"));
  core::Store& store = session_->StoreConnection;
  {
    core::Batch batch(store);
    store.Execute("Update group_master set groupname = 'Changed'");
    GetCurrentTransit(*session_, view);
    EXPECT_NE(view.SkyPlanets.At(1, SkyPlanetColumn::Degree).Text, before);
    batch.Undo();
  }
  EXPECT_EQ(store.Query("Select groupname from group_master").Text("groupname"), "General");
  GetCurrentTransit(*session_, view);
  EXPECT_NEAR(
      store.Query("Select degree from planet_positions where planetname = 'Moon'").Number("degree"),
      core::ToDouble(view.SkyPlanets.At(1, SkyPlanetColumn::Degree).Text), 0.01);
}

TEST_F(SkyViews, AReworkedViewKeepsItsShapeHoweverOftenItTicks) {
  SkyView view;
  for (int tick = 0; tick < 60; ++tick) {
    home_.Clock.Set(home_.Clock.Now() + std::chrono::minutes(61));
    GetCurrentTransit(*session_, view);
    ASSERT_EQ(14U, view.SkyPlanets.Rows.size());
    ASSERT_EQ(7U, view.Panchang.Rows.size());
    ASSERT_EQ(8U, view.SkyRulingPlanets.Rows.size());
    ASSERT_EQ(12U, view.SkyHouses.Rows.size());
    ASSERT_EQ(12U, view.DayHoras.Rows.size());
    ASSERT_EQ(12U, view.NightHoras.Rows.size());
  }
}

TEST_F(SkyViews, APickedInstantShowsTheSkyOfNowUnderItsOwnLabels) {
  SkyView now;
  GetCurrentTransit(*session_, now);
  SkyView picked;
  GetHeaderDetails(*session_, picked, home_.Clock.Now());
  EXPECT_EQ("Current Hora", now.Panchang.At(3, PanchangColumn::Label1).Text);
  EXPECT_EQ("Hora", picked.Panchang.At(3, PanchangColumn::Label1).Text);
  EXPECT_TRUE(picked.SkyRulingPlanets.Rows.empty());
  EXPECT_EQ(now.Captions.CurrentHora, picked.Captions.CurrentHora);
  EXPECT_EQ(now.Captions.RulingPlanetsText, picked.Captions.RulingPlanetsText);
}

// The light tables on every day of a leap year, the whole view on some of them, both nodes in turn.
TEST_F(SkyViews, AWholeYearOfDaysFillsItsTablesWhereverTheSunRises) {
  for (const City& city : kCities) {
    Set(session_->State, city);
    SkyView view;
    for (int day = 0; day < 366; ++day) {
      const core::DateTime date = test::Moment("2024-01-01") + std::chrono::days(day);
      SCOPED_TRACE(city.Name + core::StoredDateTimeText(date));
      const auto horas = CalcHora(*session_, date, 1);
      ASSERT_TRUE(horas);
      EXPECT_EQ(12U, horas->DayHoras.Rows.size());
      const bool sampled = day % 13 == 0 || core::PartsOf(date + std::chrono::days(1)).Day <= 1;
      for (int hour = 1; sampled && hour < 24; hour += 9) {
        session_->State.RahuKetuCalculation = day % 2 == 0 ? 'M' : 'T';
        GetHeaderDetails(*session_, view, date + std::chrono::hours(hour));
        EXPECT_EQ(14U, view.SkyPlanets.Rows.size());
        EXPECT_NE("", view.Captions.Tithi);
        if (city.Latitude < 60) {
          EXPECT_NE("", view.Captions.CurrentHora);
          EXPECT_EQ(12U, view.NightHoras.Rows.size());
        }
      }
    }
  }
}

}  // namespace
}  // namespace orvex::panchang
