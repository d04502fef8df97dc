#include "transit/transit_calendar.h"

#include <gmock/gmock.h>

#include "core/text.h"
#include "support/test_home.h"
#include "transit/crossings_calendar.h"

namespace orvex::transit {
namespace {

using testing::HasSubstr;

TEST(Calendar, TextsAreEscapedAndLinesAreFolded) {
  const core::DateTime stamp = test::Moment("2026-11-24 06:00");
  CalendarEvent event{"a@b", stamp, false, "One, two; three \\ four\nfive", ""};
  for (int i = 0; i < 40; ++i) {
    event.Description += "\u0905 long, ";
  }
  const std::string text = CalendarText({event}, stamp);
  EXPECT_THAT(text, HasSubstr("SUMMARY:One\\, two\\; three \\\\ four\\nfive\r\n"));
  EXPECT_THAT(text, HasSubstr("DTSTART:20261124T060000Z\r\n"));
  EXPECT_THAT(text, HasSubstr("DTEND:20261124T070000Z\r\n"));
  for (const std::string& line : core::Split(text, '\n')) {
    EXPECT_LE(line.size(), 76U);
    EXPECT_TRUE(line.empty() || line.back() == '\r');
  }
}

TEST(Calendar, AMonthHasItsChangesOfSignAndStationsOnceAMonth) {
  test::TestHome home;
  const auto session = home.Start();
  const GridView view = UserCityView(*session);
  std::set<std::string> uids;
  std::size_t events = 0;
  std::size_t suns = 0;
  for (int month = 1; month <= 12; ++month) {
    for (const CalendarEvent& event : GridEvents(*session, view, month, 2026)) {
      EXPECT_TRUE(event.WholeDay);
      EXPECT_EQ(core::PartsOf(event.Start).Month, month);
      uids.insert(event.Uid);
      ++events;
      suns += event.Summary.starts_with("Sun enters") ? 1U : 0U;
    }
  }
  EXPECT_EQ(uids.size(), events);
  EXPECT_EQ(suns, 12U);
}

TEST(Calendar, EachChangeOfLordsIsAnEntryButNotTheSpanThatWasThereBefore) {
  test::TestHome home;
  const auto session = home.Start();
  const exact::ExactZodiac zodiac(session->Reference);
  const exact::ExactSky sky(session->Ephemeris, exact::Reading::Kp,
                            session->State.RahuKetuCalculation);
  exact::CrossingSearch search;
  search.From = test::Moment("2026-11-24 06:00");
  search.To = test::Moment("2026-11-25 06:00");
  const auto spans = exact::Crossings(sky, zodiac, search);
  const auto events = CrossingEvents(zodiac, search, spans);
  ASSERT_EQ(events.size(), spans.size() - 1);
  std::set<std::string> uids;
  for (std::size_t i = 0; i < events.size(); ++i) {
    EXPECT_EQ(events[i].Start, spans[i + 1].From);
    EXPECT_TRUE(events[i].Summary.starts_with("Moon enters ")) << events[i].Summary;
    EXPECT_THAT(events[i].Description, HasSubstr(" - " + spans[i + 1].Held.Sub));
    uids.insert(events[i].Uid);
  }
  EXPECT_EQ(uids.size(), events.size());
}

TEST(Calendar, AFoundTransitIsItsHourInUt) {
  test::TestHome home;
  const auto session = home.Start();
  const FindForm form{Planet::Jupiter, test::Moment("2029-09-25"), TargetKind::Degree, "201.7"};
  const auto results = FindTransits(*session, form, 201.7F, 1, {}, {});
  const auto events = PassageEvents(*session, results);
  ASSERT_EQ(events.size(), 1U);
  EXPECT_EQ(events[0].Start, test::Moment("2029-12-07 10:00"));
  EXPECT_EQ(events[0].Summary, "Jupiter - 201.7 degree(s)");
  EXPECT_THAT(events[0].Description, HasSubstr("at 14:00.\nDubai"));
}

}  // namespace
}  // namespace orvex::transit
