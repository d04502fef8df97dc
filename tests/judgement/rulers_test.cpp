// The ruling planets of a sky made by hand, and the lord of the day.
#include "judgement/rulers.h"

#include <gtest/gtest.h>

#include <map>

#include "astro/sun_events.h"
#include "core/text.h"
#include "panchang/clock_text.h"
#include "support/test_home.h"

namespace orvex::judgement {
namespace {

using exact::Point;

class Rulers : public testing::Test {
 protected:
  // The Ascendant in the star of the Moon and the sub of Jupiter, the Moon in the star of Saturn
  // and the sub of Venus; nodes in Gemini and Sagittarius, which none of the first five touches.
  static RulerSky Sky() {
    RulerSky sky;
    sky.Ascendant = exact::UnitsOf(45);
    const std::map<Point, double> degrees = {
        {Point::Sun, 5},      {Point::Moon, 100}, {Point::Mercury, 50},
        {Point::Venus, 35},   {Point::Mars, 245}, {Point::Jupiter, 20},
        {Point::Saturn, 110}, {Point::Rahu, 65},  {Point::Ketu, 245}};
    for (const auto& [planet, degree] : degrees) {
      Place(sky, planet, degree);
    }
    sky.Day = {"Sun", "Sun"};
    return sky;
  }

  static void Place(RulerSky& sky, Point planet, double degree) {
    sky.Planets.at(static_cast<std::size_t>(planet)) = exact::UnitsOf(degree);
  }

  static void TurnBack(RulerSky& sky, Point planet) {
    sky.Retrograde.at(static_cast<std::size_t>(planet)) = true;
  }

  std::string TextOf(const RulerSky& sky) const {
    std::vector<std::string> rows;
    for (const core::Row& row : BuildRulers(zodiac_, sky).Rows) {
      rows.push_back(row.Cells.at(0).Text + ":" + row.Cells.at(1).Text +
                     (row.Cells.at(2).Text.empty() ? "" : " (" + row.Cells.at(2).Text + ")"));
    }
    return core::Join(rows, "; ");
  }

  std::string NodesOf(const RulerSky& sky) const {
    std::string nodes;
    for (const core::Row& row : BuildRulers(zodiac_, sky).Rows) {
      nodes += row.Cells.at(0).Text == "Node" ? row.Cells.at(1).Text + " " : "";
    }
    return nodes;
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
  exact::ExactZodiac zodiac_{session_->Reference};
};

TEST_F(Rulers, StandInTheOrderOfTheirStrength) {
  EXPECT_EQ(TextOf(Sky()),
            "Asc Star:Moon; Asc Sign:Venus; Moon Star:Saturn; Moon Sign:Moon; Day:Sun; "
            "Asc Sub:Jupiter; Moon Sub:Venus");
}

// The Sun stands in a star of Ketu, Jupiter in a sub of Rahu: nodes that go back mark nobody.
TEST_F(Rulers, CarryTheMarksOfTheMomentAndTheNodesNone) {
  RulerSky sky = Sky();
  for (const Point planet : {Point::Saturn, Point::Rahu, Point::Ketu}) {
    TurnBack(sky, planet);
  }
  Place(sky, Point::Venus, 62);  // with Rahu, in the star of Mars and the sub of Venus
  sky.Day = {"Saturn", "Sun"};
  EXPECT_EQ(TextOf(sky),
            "Asc Star:Moon (star of R); Asc Sign:Venus; Moon Star:Saturn (R); "
            "Moon Sign:Moon (star of R); Day:Saturn (calendar day: Sun, R); Asc Sub:Jupiter; "
            "Moon Sub:Venus; Node:Rahu; Node:Ketu");
  Place(sky, Point::Venus, 35);
  EXPECT_NE(TextOf(sky).find("Asc Sign:Venus (sub of R)"), std::string::npos) << TextOf(sky);
}

TEST_F(Rulers, TakeTheNodesThatAreAgentsOfTheFirstFive) {
  const struct {
    const char* What;
    Point Planet;
    double Degree;
    const char* Nodes;
  } cases[] = {{"stands in the sign", Point::Venus, 65, "Rahu Ketu "},
               {"aspects by the 7th", Point::Sun, 245, "Rahu Ketu "},
               {"Saturn's 3rd", Point::Saturn, 10, "Rahu "},
               {"Saturn's 10th", Point::Saturn, 160, "Rahu "},
               {"Saturn's 3rd on Ketu", Point::Saturn, 190, "Ketu "},
               {"the 3rd of another", Point::Venus, 10, ""},
               {"sign lord of Ketu's sign, which is no ruler", Point::Ketu, 275.5, "Ketu "},
               {"sign lord of Rahu's sign", Point::Rahu, 41, "Rahu "},
               {"a sub lord is none of the five", Point::Jupiter, 245, ""},
               {"no ruler at all", Point::Mercury, 65, ""}};
  for (const auto& c : cases) {
    RulerSky sky = Sky();
    if (c.Planet == Point::Rahu) {
      Place(sky, Point::Venus, 95);  // so that only its lordship counts
    }
    Place(sky, c.Planet, c.Degree);
    EXPECT_EQ(NodesOf(sky), c.Nodes) << c.What;
  }
}

// With the Ascendant in its star Rahu is the first ruler; it is no agent of itself or of Ketu.
TEST_F(Rulers, ANodeAmongTheFirstFiveIsNoAgentForThat) {
  RulerSky sky = Sky();
  sky.Ascendant = exact::UnitsOf(190);
  EXPECT_EQ(TextOf(sky).substr(0, 14), "Asc Star:Rahu;");
  EXPECT_EQ(NodesOf(sky), "");
}

TEST(LordOfDay, ChangesWithTheSunriseOfThePlace) {
  const exact::Place dubai{25.07725, 55.30927};
  const exact::Place north{60, 55.30927};
  const struct {
    const char* Local;
    exact::Place Where;
    const char* Lord;
  } cases[] = {{"2026-11-24 00:00", dubai, "Moon"},  {"2026-11-24 06:00", dubai, "Moon"},
               {"2026-11-24 07:15", dubai, "Mars"},  {"2026-11-24 23:59:59", dubai, "Mars"},
               {"2026-11-25 03:00", dubai, "Mars"},  {"2026-11-24 07:15", north, "Moon"},
               {"2026-12-20 03:00", {80, 20}, "Sun"}};
  for (const auto& c : cases) {
    const LordOfDay lord = LordOfDayAt({test::Moment(c.Local), c.Where, 4});
    EXPECT_EQ(lord.BySunrise, c.Lord) << c.Local << " at " << c.Where.Latitude;
  }
  EXPECT_EQ(LordOfDayAt({test::Moment("2026-11-24 00:00"), dubai, 4}).ByCalendar, "Mars");
}

TEST(LordOfDay, TheMinuteOfSunriseBelongsToTheNewDay) {
  core::ApplicationState state;
  const core::DateTime day = test::Moment("2026-11-24");
  astro::ComputeSunTimes(state, day, 4, 25.07725F, 55.30927F);
  const core::DateTime sunrise = panchang::ClockOn(day, state.SunriseText);
  const exact::Place dubai{25.07725, 55.30927};
  EXPECT_EQ(LordOfDayAt({sunrise, dubai, 4}).BySunrise, "Mars");
  EXPECT_EQ(LordOfDayAt({sunrise - std::chrono::seconds(1), dubai, 4}).BySunrise, "Moon");
}

}  // namespace
}  // namespace orvex::judgement
