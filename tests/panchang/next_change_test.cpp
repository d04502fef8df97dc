#include "panchang/next_change.h"

#include <gtest/gtest.h>

#include "core/date_text.h"
#include "exact/crossings_table.h"
#include "panchang/sky_view.h"
#include "support/test_home.h"

namespace orvex::panchang {
namespace {

class NextChange : public testing::Test {
 protected:
  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

// From now to the told moment the lords stay; a minute later they are others.
TEST_F(NextChange, TheToldMomentIsTheEndOfWhatHoldsNow) {
  const exact::ExactZodiac zodiac(session_->Reference);
  const exact::ExactSky sky(session_->Ephemeris, exact::Reading::Kp,
                            session_->State.RahuKetuCalculation);
  const auto offset = exact::OffsetOf(static_cast<double>(session_->State.UserCityOffset));
  for (const exact::Point point : {exact::Point::Ascendant, exact::Point::Moon}) {
    for (int step = 0; step < 40; ++step) {
      const core::DateTime now =
          test::Moment("2026-11-24 10:00:00") + step * std::chrono::minutes(37);
      const std::string text = NextChangeText(*session_, point, now);
      SCOPED_TRACE(core::StoredDateTimeText(now) + " " + text);
      exact::CrossingSearch search;
      search.Body = point;
      search.From = now - offset;
      search.To = search.From + std::chrono::hours(30);
      search.Where = {static_cast<double>(session_->State.UserCityLatitude),
                      static_cast<double>(session_->State.UserCityLongitude)};
      const auto spans = exact::Crossings(sky, zodiac, search);
      const core::DateTime end = spans.at(0).Until + offset;
      const bool today = core::DateOnly(end) == core::DateOnly(now);
      EXPECT_NE(text.find(" at " + core::ShortTimeText(end)), std::string::npos);
      EXPECT_EQ(text.find(" on " + core::LongDateText(end, true)) == std::string::npos, today);
      EXPECT_EQ(text.rfind(exact::PointName(point) + " enters ", 0), 0U);
    }
  }
}

TEST_F(NextChange, TheSkyViewTellsBothBesideItsOwnAscendant) {
  SkyView view;
  GetCurrentTransit(*session_, view);
  const std::string ascendant = view.Captions.Ascendant;
  EXPECT_EQ(view.Captions.MoonNext,
            NextChangeText(*session_, exact::Point::Moon, home_.Clock.Now()));
  EXPECT_EQ(view.Captions.AscendantNext.rfind("Ascendant enters the ", 0), 0U);
  // The reading to the second leaves no trace in the positions of the next tick.
  GetCurrentTransit(*session_, view);
  EXPECT_EQ(view.Captions.Ascendant, ascendant);
}

}  // namespace
}  // namespace orvex::panchang
