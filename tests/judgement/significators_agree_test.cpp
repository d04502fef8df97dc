// What must hold in any chart.
#include <gtest/gtest.h>

#include <random>
#include <set>

#include "chart/client_saving.h"
#include "chart/significators.h"
#include "chart/zodiac_lookups.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "horoscope/create_horoscope.h"
#include "horoscope/unsaved_horoscope.h"
#include "judgement/house_grades.h"
#include "support/test_home.h"

namespace orvex::judgement {
namespace {

class AnyChart : public testing::Test {
 protected:
  // A birth anywhere between the polar circles in two centuries.
  chart::ChartInput RandomBirth() {
    const auto between = [this](int low, int high) {
      return std::uniform_int_distribution<int>(low, high)(random_);
    };
    const int hours = between(-11, 12);
    chart::ChartInput input;
    input.Birth = test::Moment("1850-01-01") + std::chrono::minutes(between(0, 200 * 365 * 1440));
    input.Offset = core::WholeText(hours);
    input.CityOffset = hours;
    input.Latitude = core::DoubleText(between(-6500, 6500) / 100.0);
    input.Longitude = core::DoubleText(hours * 15 + between(-700, 700) / 100.0);
    return input;
  }

  static std::set<std::string> CodesOf(const chart::HoroscopeModel& model, int house) {
    std::set<std::string> codes;
    for (const std::vector<std::size_t>& grade : GradesOf(model, house)) {
      for (const std::size_t row : grade) {
        codes.insert(chart::PlanetCode(PlanetText(model, row, chart::PlanetColumn::Planet)));
      }
    }
    return codes;
  }

  static void ExpectGradesOfAllHouses(const chart::HoroscopeModel& model, const std::string& what) {
    for (int house = 1; house <= static_cast<int>(chart::kHouses); ++house) {
      const auto words = core::SplitWords(
          model.CuspTable.At(static_cast<std::size_t>(house) - 1, chart::CuspColumn::PlanetsSig)
              .Text);
      EXPECT_EQ(CodesOf(model, house), std::set<std::string>(words.begin(), words.end()))
          << what << ", house " << house;
    }
  }

  std::string Saved(const chart::ChartInput& input, std::int32_t& id) {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    form.FullName = core::StoredDateTimeText(input.Birth);
    form.Birth = input.Birth;
    form.Latitude = input.Latitude;
    form.Longitude = input.Longitude;
    form.Offset = input.Offset;
    form.CityId = 1;
    const core::SaveResult saved = chart::SaveNewClient(*session_, form, 1);
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
    id = saved.Id;
    return saved.Refused ? saved.Refused->Text : "";
  }

  std::mt19937 random_{20261124};
  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

TEST_F(AnyChart, TheFourGradesAreTheSignificatorsOfEveryHouse) {
  for (int i = 0; i < 500; ++i) {
    const chart::ChartInput input = RandomBirth();
    chart::HoroscopeModel model = horoscope::UnsavedHoroscope(*session_, input);
    ASSERT_EQ(model.PlanetTable.Rows.size(), 9U);
    chart::CuspSignificators(model);
    ExpectGradesOfAllHouses(model, core::StoredDateTimeText(input.Birth));
  }
}

TEST_F(AnyChart, AnUnsavedHoroscopeHasTheTablesOfTheStoredOneAndRotationKeepsTheGrades) {
  const auto texts = [](const core::Table& table, auto... columns) {
    std::string all;
    for (std::size_t row = 0; row < table.Rows.size(); ++row) {
      ((all += table.At(row, columns).Text + "/" + table.At(row, columns).Tag + "|"), ...);
    }
    return all;
  };
  const auto everything = [&](const chart::HoroscopeModel& model) {
    return texts(model.HouseTable, chart::HouseColumn::Rashi, chart::HouseColumn::RcPlanets,
                 chart::HouseColumn::CuspDegree, chart::HouseColumn::KpChartRashiOwner) +
           texts(model.CuspTable, chart::CuspColumn::SubLord) +
           texts(model.PlanetTable, chart::PlanetColumn::Planet, chart::PlanetColumn::In,
                 chart::PlanetColumn::Owner, chart::PlanetColumn::SignLord,
                 chart::PlanetColumn::StarLord, chart::PlanetColumn::SubLord,
                 chart::PlanetColumn::R) +
           texts(model.Periods.DashaList, chart::DashaColumn::EndDate);
  };
  for (int i = 0; i < 12; ++i) {
    chart::ChartInput input = RandomBirth();
    std::int32_t id = 0;
    ASSERT_EQ(Saved(input, id), "");
    horoscope::OpenedHoroscope opened = horoscope::CreateHoroscope(*session_, id).value();
    input.CityOffset = core::ToDouble(chart::PlaceOfCity(*session_, 1)->Offset);
    EXPECT_EQ(everything(horoscope::UnsavedHoroscope(*session_, input)), everything(opened.Model));
    horoscope::RotateNow(*session_, opened, i + 1);
    ExpectGradesOfAllHouses(opened.Model, "rotated to " + core::WholeText(i + 1));
  }
}

}  // namespace
}  // namespace orvex::judgement
