#include "report/kp_sheet.h"

#include <gtest/gtest.h>

#include "chart/client_saving.h"
#include "chart/dasha_tree.h"
#include "core/text.h"
#include "exact/exact_tables.h"
#include "horoscope/exact_reading.h"
#include "support/test_home.h"

namespace orvex::report {
namespace {

class Sheet : public testing::Test {
 protected:
  std::int32_t Save(const char* birth, const char* latitude) {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    form.FullName = "Asha";
    form.Birth = test::Moment(birth);
    form.Latitude = latitude;
    form.Longitude = "72.88";
    form.Offset = "5.5";
    return chart::SaveNewClient(*session_, form, 1).Id;
  }

  horoscope::OpenedHoroscope Open(std::int32_t client) {
    return horoscope::CreateHoroscope(*session_, client).value();
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

// Every cusp and planet once, in the field of its sign, in the order of longitudes; the first
// house's sign is tinted.
TEST_F(Sheet, TheFigureHoldsCuspsAndPlanetsTogetherBySign) {
  const horoscope::OpenedHoroscope opened = Open(Save("1985-09-05 11:58", "19.07"));
  for (const char style : {'N', 'E', 'S'}) {
    const KpSheet sheet = SheetOf(*session_, opened, style);
    const std::string first = sheet.Cusps.At(0, SheetCuspColumn::Position).Text;
    std::size_t marks = 0;
    for (std::size_t i = 0; i < sheet.Figure.Fields.size(); ++i) {
      const PictureField& field = sheet.Figure.Fields[i];
      std::string before;
      for (const std::string& mark : field.Codes) {
        ++marks;
        const std::size_t degree = mark.find("\u00b0");
        const std::string minutes = mark.substr(mark.rfind(' ', degree) + 1);
        const std::string padded = std::string(3 - minutes.find("\u00b0"), '0') + minutes;
        EXPECT_LE(before, padded) << mark;
        before = padded;
      }
      const bool ascendant = core::Contains(core::Join(field.Codes, "|"), "(I ");
      EXPECT_EQ(field.Ascendant, ascendant) << style << i;
      if (style != 'N') {
        EXPECT_EQ(field.Sign, std::to_string(i + 1));
      } else if (i == 0) {
        EXPECT_TRUE(ascendant);
      }
    }
    EXPECT_EQ(marks, 21U);
    EXPECT_TRUE(first.ends_with("Sco")) << first;
    // Jupiter is retrograde in Capricorn, two signs on.
    const PictureField& jupiter = sheet.Figure.Fields[style == 'N' ? 2 : 9];
    EXPECT_TRUE(core::Contains(core::Join(jupiter.Codes, "|"), "JU~ ")) << style;
  }
}

TEST_F(Sheet, TablesAreThoseOfTheReadingAndTheSignificatorsThoseOfTheStoredChart) {
  horoscope::OpenedHoroscope opened = Open(Save("1985-09-05 11:58", "19.07"));
  const core::Table stored = opened.Birth.CuspTable;
  horoscope::RotateNow(*session_, opened, 7);
  const KpSheet sheet = SheetOf(*session_, opened, 'N');
  const horoscope::ExactReading reading = horoscope::ReadToTheSecond(
      *session_, opened.Model, opened.Birth, exact::ReadingOf(*session_));
  EXPECT_EQ(sheet.Name, "Asha");
  for (std::size_t row = 0; row < 12; ++row) {
    EXPECT_EQ(sheet.Cusps.At(row, SheetCuspColumn::Position).Text,
              reading.Cusps.At(row, exact::ExactCuspColumn::Position).Text);
    EXPECT_EQ(sheet.Cusps.At(row, SheetCuspColumn::SubSubLord).Text,
              reading.Cusps.At(row, exact::ExactCuspColumn::SubSubLord).Text);
    EXPECT_EQ(sheet.Cusps.At(row, SheetCuspColumn::Significators).Text,
              stored.At(row, chart::CuspColumn::PlanetsSig).Text);
  }
  for (std::size_t row = 0; row < 9; ++row) {
    EXPECT_EQ(sheet.Planets.At(row, SheetPlanetColumn::SubLord).Text,
              reading.Planets.At(row, exact::ExactPlanetColumn::SubLord).Text);
    EXPECT_EQ(sheet.Planets.At(row, SheetPlanetColumn::House).Text,
              reading.Planets.At(row, exact::ExactPlanetColumn::House).Text);
  }
}

TEST_F(Sheet, WithoutCuspsTheMessageStandsInTheirPlaceAndThePlanetsStay) {
  chart::ClientForm form = chart::OpenAddClient(*session_);
  form.FullName = "Query";
  form.Birth = test::Moment("1985-09-05 11:58");
  form.Latitude = "70";
  form.Longitude = "20";
  form.Offset = "1";
  form.Horary = true;
  form.HoraryQuestion = "When?";
  std::size_t without = 0;
  for (const char* number : {"1", "60", "120", "180", "249"}) {
    form.HoraryNumber = number;
    const core::SaveResult saved = chart::SaveNewClient(*session_, form, 1);
    if (saved.Id == 0) {
      continue;
    }
    const KpSheet sheet = SheetOf(*session_, Open(saved.Id), 'S');
    EXPECT_EQ(sheet.Question, "When?");
    EXPECT_EQ(sheet.Cusps.Rows.empty(), !sheet.Message.empty());
    EXPECT_EQ(sheet.Planets.Rows.size(), 9U);
    without += sheet.Message.empty() ? 0U : 1U;
  }
  RecordProperty("without", static_cast<int>(without));
}

TEST_F(Sheet, ThePeriodsAreThoseThatRunAtTheMoment) {
  const chart::HoroscopeModel model = Open(Save("1985-09-05 11:58", "19.07")).Model;
  const std::vector<chart::TreeRow> tree =
      chart::FullDashaTree(session_->Reference, model, chart::TreeDepth::Sookshma);
  const auto at = [&](core::DateTime moment) {
    return RunningPeriods(session_->Reference, model, moment);
  };
  const auto second = std::chrono::seconds(1);
  for (const std::size_t place : {std::size_t{0}, std::size_t{2500}, tree.size() - 1}) {
    for (const core::DateTime moment : {tree[place].Start, tree[place].End - second}) {
      const core::Table periods = at(moment);
      ASSERT_EQ(periods.Rows.size(), 4U) << place;
      for (std::size_t level = 0; level < 4; ++level) {
        EXPECT_EQ(periods.At(level, SheetPeriodColumn::Planet).Text, tree[place].Planets[level]);
      }
      EXPECT_EQ(periods.At(3, SheetPeriodColumn::From).Text,
                core::LongDateText(tree[place].Start, true));
      EXPECT_EQ(periods.At(3, SheetPeriodColumn::Until).Text,
                core::LongDateText(tree[place].End, true));
    }
  }
  // A Dasha spans from its first Sookshma to its last one.
  const core::Table first = at(tree[300].Start);
  EXPECT_EQ(first.At(0, SheetPeriodColumn::From).Text, core::LongDateText(tree[0].Start, true));
  EXPECT_EQ(first.At(0, SheetPeriodColumn::Until).Text, core::LongDateText(tree[728].End, true));
  EXPECT_EQ(first.At(1, SheetPeriodColumn::Until).Text, core::LongDateText(tree[323].End, true));
  EXPECT_TRUE(at(tree.front().Start - second).Rows.empty());
  EXPECT_TRUE(at(tree.back().End).Rows.empty());
}

}  // namespace
}  // namespace orvex::report
