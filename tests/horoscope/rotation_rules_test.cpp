// What must follow a rotation, and what a recalculation keeps of the client.
#include <gtest/gtest.h>

#include <functional>

#include "chart/client_saving.h"
#include "chart/dba_summary.h"
#include "chart/four_step_check.h"
#include "chart/transit_now.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "exact/exact_tables.h"
#include "horoscope/create_horoscope.h"
#include "horoscope/exact_reading.h"
#include "horoscope/moved_lords.h"
#include "support/test_home.h"

namespace orvex::horoscope {
namespace {

using chart::PlanetColumn;

class RotationRules : public testing::Test {
 protected:
  OpenedHoroscope Sample(const std::function<void(chart::ClientForm&)>& change = {}) {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    form.FullName = "Client";
    form.Birth = test::Moment("1985-09-05 11:58");
    form.Latitude = "40.71427";
    form.Longitude = "-74.00597";
    form.Offset = "-5";
    if (change) {
      change(form);
    }
    const core::SaveResult saved = chart::SaveNewClient(*session_, form, 1);
    EXPECT_FALSE(saved.Refused);
    return CreateHoroscope(*session_, saved.Id).value();
  }

  static std::string TextsOf(const core::Table& table) {
    std::string texts;
    for (const core::Row& row : table.Rows) {
      for (const core::Cell& cell : row.Cells) {
        texts += cell.Text + "|" + cell.Tag + "\n";
      }
    }
    return texts;
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

// Each table is what its step makes of the rotated ones, and not what it was at birth.
TEST_F(RotationRules, WhatHangsOnTheHousesIsBuiltAnewFromTheRotatedOnes) {
  OpenedHoroscope opened = Sample();
  const chart::HoroscopeModel birth = opened.Model;
  RotateNow(*session_, opened, 7);
  const chart::HoroscopeModel& rotated = opened.Model;
  chart::HoroscopeModel again = rotated;
  chart::BuildFourStep(again);
  chart::ShowDBA(*session_, again);
  const std::pair<core::Table chart::HoroscopeModel::*, const char*> tables[] = {
      {&chart::HoroscopeModel::FourStepTable, "four steps"},
      {&chart::HoroscopeModel::FourStepRows, "rows of the four steps"},
      {&chart::HoroscopeModel::DBAPeriods, "periods"},
      {&chart::HoroscopeModel::DBAHouseCount, "count of houses"}};
  for (const auto& [table, name] : tables) {
    EXPECT_EQ(TextsOf(rotated.*table), TextsOf(again.*table)) << name;
    EXPECT_NE(TextsOf(rotated.*table), TextsOf(birth.*table)) << name;
  }
  EXPECT_NE(rotated.Captions.Rahu, birth.Captions.Rahu);
  EXPECT_NE(rotated.Captions.Ketu, birth.Captions.Ketu);
}

TEST_F(RotationRules, EveryLordCarriesTheHousesThatItHasNow) {
  OpenedHoroscope opened = Sample();
  for (const int house : {1, 2, 7, 12}) {
    RotateNow(*session_, opened, house);
    const chart::HoroscopeModel& model = opened.Model;
    for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
      for (const PlanetColumn lord : {PlanetColumn::SignLord, PlanetColumn::StarLord,
                                      PlanetColumn::SubLord, PlanetColumn::SubSubLord}) {
        EXPECT_EQ(chart::PlanetText(model, row, lord),
                  chart::WithHouses(model, chart::PlanetTag(model, row, lord)))
            << house << " " << row;
      }
    }
    const auto node = [&model](const char* name, chart::PlanetPlace place) {
      return std::string(name) + " = " +
             chart::WithHouses(
                 model, chart::PlanetTag(model, chart::RowOf(place), PlanetColumn::SignLord)) +
             " + " +
             chart::WithHouses(
                 model, chart::PlanetTag(model, chart::RowOf(place), PlanetColumn::StarLord));
    };
    EXPECT_EQ(model.Captions.Rahu, node("Rahu", chart::PlanetPlace::Rahu));
    EXPECT_EQ(model.Captions.Ketu, node("Ketu", chart::PlanetPlace::Ketu));
  }
}

double MinutesOf(const std::string& clock) {
  const double noon = core::Contains(clock, "PM") ? 720 : 0;
  const std::vector<std::string> parts = core::Split(core::SplitWords(clock).at(0), ':');
  const std::int64_t hour = core::ParseWhole(parts.at(0)).value() % 12;
  return noon + static_cast<double>(hour * 60 + core::ParseWhole(parts.at(1)).value());
}

// New York, 5 September 1985: 05:28 and 18:22 by the almanac, in Eastern Standard Time; the user's
// city is Dubai.
TEST_F(RotationRules, TheSunRisesByTheClockOfTheBirthPlace) {
  const OpenedHoroscope opened = Sample();
  EXPECT_NEAR(MinutesOf(opened.Model.Captions.Sunrise), 5 * 60 + 28, 6);
  EXPECT_NEAR(MinutesOf(opened.Model.Captions.Sunset), 18 * 60 + 22, 6);
}

TEST_F(RotationRules, TheTooltipOfAPlanetTellsTheAgeAtTheEndOfItsDasha) {
  const OpenedHoroscope opened = Sample();
  const chart::HoroscopeModel& model = opened.Model;
  const core::Table& dashas = model.Periods.DashaList;
  for (std::size_t row = 0; row < dashas.Rows.size(); ++row) {
    const std::string& name = dashas.At(row, chart::DashaColumn::Planet).Text;
    const std::vector<std::string> span =
        core::Split(dashas.At(row, chart::DashaColumn::EndDate).Tag, '*');
    const core::DateTime end = core::ParseLongDateText(span.at(1)).value();
    const std::string& tooltip =
        model.PlanetTable.At(chart::RowOfPlanet(model, name).value(), chart::PlanetColumn::Planet)
            .Tooltip;
    EXPECT_TRUE(
        core::Contains(tooltip, span.at(0) + " to " + span.at(1) + " | Age when " + name +
                                    " Dasha ends = " + core::AgeText(model.Birth, end).Text))
        << tooltip;
    EXPECT_EQ(core::Contains(tooltip, "Starting Dasha Period"), row == 0) << tooltip;
    EXPECT_TRUE(core::Contains(tooltip, "Astro Number for " + name)) << tooltip;
  }
}

TEST_F(RotationRules, ABirthIsMovedByEachPartOfAShift) {
  const core::DateTime birth = test::Moment("2024-02-28 23:59:30");
  const std::pair<BirthShift, const char*> cases[] = {
      {{1, 0, 0, 0}, "2024-02-29 23:59:30"},   {{0, 1, 0, 0}, "2024-02-29 00:59:30"},
      {{0, 0, 1, 0}, "2024-02-29 00:00:30"},   {{0, 0, 0, 29}, "2024-02-28 23:59:59"},
      {{0, 0, 0, -31}, "2024-02-28 23:58:59"}, {{-1, -1, -1, -1}, "2024-02-27 22:58:29"}};
  for (const auto& [shift, moved] : cases) {
    EXPECT_EQ(core::StoredDateTimeText(ShiftedBirth(birth, shift)), moved);
  }
  const OpenedHoroscope opened = Sample();
  RecalculationForm form = OpenRecalculation(opened.Model);
  form.Shift.Seconds = 61;
  EXPECT_EQ(core::StoredDateTimeText(Recalculate(*session_, opened.Model, form).Birth),
            "1985-09-05 11:59:01");
}

// Two hours move the Ascendant by a sign or so; the old row stays, and each new lord is marked.
TEST_F(RotationRules, AMovedBirthHasItsOldAndItsNewLords) {
  const OpenedHoroscope opened = Sample();
  RecalculationForm form = OpenRecalculation(opened.Model);
  const core::Table same = MovedLords(*session_, opened.Model, form);
  ASSERT_EQ(same.Rows.size(), 2U);
  const core::Table exact =
      ReadToTheSecond(*session_, opened.Model, opened.Birth, exact::ReadingOf(*session_)).Cusps;
  EXPECT_EQ(same.At(0, MovedLordsColumn::Position).Text,
            exact.At(0, exact::ExactCuspColumn::Position).Text);
  EXPECT_EQ(same.At(0, MovedLordsColumn::SubSubLord).Text,
            exact.At(0, exact::ExactCuspColumn::SubSubLord).Text);
  for (const bool byTime : {true, false}) {
    form = OpenRecalculation(opened.Model);
    if (byTime) {
      form.Shift.Hours = 2;
    } else {
      form.Offset = "-7";
    }
    const core::Table moved = MovedLords(*session_, opened.Model, form);
    for (const MovedLordsColumn lord :
         {MovedLordsColumn::SignLord, MovedLordsColumn::StarLord, MovedLordsColumn::SubLord}) {
      EXPECT_EQ(moved.At(0, lord).Text, same.At(0, lord).Text);
      const bool differs = moved.At(1, lord).Text != moved.At(0, lord).Text;
      EXPECT_EQ(moved.At(1, lord).Bold, differs);
      EXPECT_EQ(moved.At(1, lord).Background, differs ? kMovedColor : "");
    }
    EXPECT_NE(moved.At(1, MovedLordsColumn::SignLord).Text,
              moved.At(0, MovedLordsColumn::SignLord).Text);
  }
  form.Latitude = "91x";
  EXPECT_TRUE(MovedLords(*session_, opened.Model, form).Rows.empty());
}

TEST_F(RotationRules, ARecalculationKeepsTheKindOfTheAscendant) {
  const std::pair<std::function<void(chart::ClientForm&)>, const char*> kinds[] = {
      {[](chart::ClientForm& form) {
         form.Horary = true;
         form.HoraryNumber = "147";
         form.HoraryQuestion = "?";
       },
       "query"},
      {[](chart::ClientForm& form) {
         form.AscendantByHand = true;
         form.AscendantDegree = "123.45";
       },
       "by hand"},
      {[](chart::ClientForm& /*form*/) {}, "computed"}};
  for (const auto& [change, kind] : kinds) {
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
    const OpenedHoroscope opened = Sample(change);
    const Recalculation same =
        Recalculate(*session_, opened.Model, OpenRecalculation(opened.Model));
    ASSERT_FALSE(same.Refused) << kind;
    EXPECT_EQ(MovedLords(*session_, opened.Model, OpenRecalculation(opened.Model)).Rows.empty(),
              std::string(kind) != "computed")
        << kind;
    for (std::size_t row = 0; row < 12; ++row) {
      EXPECT_EQ(same.Cusps.At(row, WorkCuspColumn::Degree).Text,
                opened.Model.CuspTable.At(row, chart::CuspColumn::Degree).Text)
          << kind << " " << row;
    }
    for (std::size_t row = 0; row < 9; ++row) {
      const std::string& planet = same.Planets.At(row, WorkPlanetColumn::Planet).Text;
      const std::size_t stored = chart::RowOfPlanet(opened.Model, planet).value();
      EXPECT_EQ(same.Planets.At(row, WorkPlanetColumn::ChalitHouse).Text,
                chart::PlanetText(opened.Model, stored, PlanetColumn::In));
      EXPECT_EQ(same.Planets.At(row, WorkPlanetColumn::SubSubLord).Text,
                chart::PlanetTag(opened.Model, stored, PlanetColumn::SubSubLord));
      EXPECT_EQ(same.Planets.At(row, WorkPlanetColumn::R).Text,
                chart::PlanetText(opened.Model, stored, PlanetColumn::R));
    }
  }
}

// Two clocks of one instant show one sky.
TEST_F(RotationRules, TheTransitOfNowGoesByTheClockOfTheUserCity) {
  const auto degrees = [this](const char* clock, float offset) {
    home_.Clock.Set(test::Moment(clock));
    session_->State.UserCityOffset = offset;
    chart::HoroscopeModel model;
    chart::BuildTransitNow(*session_, model);
    return TextsOf(model.TransitNow);
  };
  const std::string dubai = degrees("2026-11-24 10:00", 4);
  EXPECT_EQ(degrees("2026-11-24 01:00", -5), dubai);
  EXPECT_NE(degrees("2026-11-24 10:00", 0), dubai);
}

}  // namespace
}  // namespace orvex::horoscope
