// When within a month or a day the planets change, against a walk minute by minute.
#include "transit/changes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "exact/crossings_table.h"
#include "support/test_home.h"
#include "transit/transit_details.h"

namespace orvex::transit {
namespace {

constexpr float kZone = 5.5F;

class Changes : public testing::Test {
 protected:
  // "2026-11-24 10:00 Moon enters the sub of Saturn", row by row.
  static std::vector<std::string> Lines(const core::Table& table) {
    std::vector<std::string> lines;
    for (const core::Row& row : table.Rows) {
      EXPECT_EQ(row.Cells[0].Text, core::LongDateText(test::Moment(row.Tag), true));
      EXPECT_EQ(row.Cells[3].Text.rfind(row.Cells[2].Text + " ", 0), 0U);
      EXPECT_EQ(row.Cells[1].Text, row.Tag.substr(11, 5));
      lines.push_back(row.Tag.substr(0, 16) + " " + row.Cells[3].Text);
    }
    return lines;
  }

  // What a look at each whole minute tells.
  std::vector<std::string> Walked(exact::Point planet, core::DateTime from, core::DateTime to) {
    const exact::ExactZodiac zodiac(session_->Reference);
    const exact::ExactSky sky(session_->Ephemeris, exact::Reading::Kp, 'T');
    const auto at = [&](core::DateTime local) {
      return sky.PositionOf(planet, local - std::chrono::minutes(330));
    };
    std::vector<std::string> lines;
    for (core::DateTime minute = from; minute < to; minute += std::chrono::minutes(1)) {
      // The first second at which a change holds lies within the minute that is told.
      const astro::Position before = at(minute - std::chrono::seconds(1));
      const astro::Position after = at(minute + std::chrono::seconds(59));
      const std::string when = core::StoredDateTimeText(minute).substr(0, 16) + " ";
      const exact::Units one = exact::UnitsOf(before.Longitude);
      const exact::Units other = exact::UnitsOf(after.Longitude);
      if (zodiac.SpanOf(one, exact::Depth::Sub).Begin !=
          zodiac.SpanOf(other, exact::Depth::Sub).Begin) {
        lines.push_back(when + exact::ChangeText(zodiac, exact::PointName(planet), one, other,
                                                 exact::Depth::Sub));
      }
      if ((before.Speed < 0) != (after.Speed < 0)) {
        lines.push_back(when + exact::PointName(planet) + " turns " +
                        (after.Speed < 0 ? "retrograde" : "direct"));
      }
    }
    return lines;
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

TEST_F(Changes, AreThoseOfAWalkMinuteByMinute) {
  session_->State.RahuKetuCalculation = 'T';
  const struct {
    exact::Point Planet;
    const char* From;
    int Days;
  } cases[] = {{exact::Point::Moon, "2026-11-24 10:00:00", 4},
               {exact::Point::Mercury, "2026-10-22", 6},  // its station and the way back
               {exact::Point::Rahu, "2026-11-01", 14},
               {exact::Point::Sun, "2026-11-12", 6}};
  for (const auto& one : cases) {
    const core::DateTime from = test::Moment(one.From);
    const core::DateTime to = from + std::chrono::days(one.Days);
    const std::vector<std::string> walked = Walked(one.Planet, from, to);
    EXPECT_FALSE(walked.empty()) << exact::PointName(one.Planet);
    EXPECT_EQ(Lines(BuildChanges(*session_, {one.Planet}, from, to, kZone)), walked);
  }
}

TEST_F(Changes, OfAMonthAreThoseOfAllPlanetsInOrderAndOfADayThoseOfItsPlanet) {
  const std::vector<std::string> month = Lines(ChangesOfMonth(*session_, 11, 2026, kZone));
  EXPECT_TRUE(std::is_sorted(month.begin(), month.end(), [](const auto& one, const auto& other) {
    return one.substr(0, 16) < other.substr(0, 16);
  }));
  std::multiset<std::string> together;
  for (const exact::Point planet : exact::kPlanets) {
    for (const std::string& line : Lines(BuildChanges(
             *session_, {planet}, test::Moment("2026-11-01"), test::Moment("2026-12-01"), kZone))) {
      together.insert(line);
    }
  }
  EXPECT_EQ(std::multiset<std::string>(month.begin(), month.end()), together);
  EXPECT_EQ(std::count_if(month.begin(), month.end(),
                          [](const std::string& line) {
                            return line.rfind("2026-11-13", 0) == 0 &&
                                   line.find("Mercury turns direct") != std::string::npos;
                          }),
            1);
  EXPECT_THROW(ChangesOfMonth(*session_, 13, 2026, kZone), std::out_of_range);

  // The day of the details is that of the user's city.
  const core::DateTime day = test::Moment("2026-11-13");
  EXPECT_EQ(Lines(GetTransitForPlanet(*session_, Planet::Mercury, day).Changes),
            Lines(BuildChanges(*session_, {exact::Point::Mercury}, day, day + std::chrono::days(1),
                               session_->State.UserCityOffset)));
}

}  // namespace
}  // namespace orvex::transit
