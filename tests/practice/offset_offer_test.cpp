#include "practice/offset_offer.h"

#include <gtest/gtest.h>

#include "practice/city_search.h"
#include "support/test_home.h"

namespace orvex::practice {
namespace {

TEST(OffsetOffer, IsMadeWhereTheClocksShowedAnotherOne) {
  test::TestHome home;
  const std::unique_ptr<core::Session> session = home.Start();
  const CitySearch search(*session, test::DataFolder());
  struct Case {
    const char* City;
    const char* Birth;
    const char* Offset;
    const char* Use;  // "" where nothing is asked
  };
  for (const Case& one : std::vector<Case>{{"mumbai", "1990-07-05 14:30", "5.5", ""},
                                           {"mumbai", "1990-07-05 14:30", " 5.50 ", ""},
                                           {"mumbai", "1990-07-05 14:30", "5", "Use 5.5"},
                                           {"mumbai", "1943-05-05 14:30", "5.5", "Use 6.5"},
                                           {"mumbai", "1943-05-05 14:30", "6.5", ""},
                                           {"new york city", "1990-07-05 14:30", "-5", "Use -4"},
                                           {"new york city", "1990-07-05 14:30", "-4", ""},
                                           // The hour came twice: both offsets were shown.
                                           {"new york city", "1990-10-28 01:30", "-4", ""},
                                           {"new york city", "1990-10-28 01:30", "-5", ""},
                                           {"new york city", "1990-10-28 01:30", "-6", "Use -4"},
                                           {"mumbai", "1990-07-05 14:30", "x", ""}}) {
    chart::ClientForm form;
    chart::SelectCity(*session, search.Find(one.City, 1).Best.front().Id, form);
    form.Birth = test::Moment(one.Birth);
    form.Offset = one.Offset;
    const std::optional<OffsetOffer> offer = OfferOffset(*session, form);
    EXPECT_EQ(offer ? offer->Use : "", one.Use) << one.City << one.Birth << one.Offset;
  }
}

TEST(OffsetOffer, TellsTheMomentInUtOfEachAnswer) {
  test::TestHome home;
  const std::unique_ptr<core::Session> session = home.Start();
  const CitySearch search(*session, test::DataFolder());
  chart::ClientForm form;
  chart::SelectCity(*session, search.Find("mumbai", 1).Best.front().Id, form);
  form.Birth = test::Moment("1943-05-05 02:30");
  EXPECT_EQ(CastForText(*session, form), "The chart is cast for 4 May 1943 21:00 UT.");
  const std::optional<OffsetOffer> offer = OfferOffset(*session, form);
  ASSERT_TRUE(offer);
  EXPECT_EQ(offer->Question,
            "Clocks in Asia/Kolkata showed 6.5 (+0630) then.\n\n"
            "With 6.5 the chart is cast for 4 May 1943 20:00 UT,\n"
            "with 5.5 for 4 May 1943 21:00 UT.");
  EXPECT_EQ(offer->Keep, "Keep 5.5");
  EXPECT_EQ(offer->Offset, "6.5");

  // West of Greenwich the local mean time of the longitude counts: 74.006 degrees are 4:56 hours.
  chart::SelectCity(*session, search.Find("new york city", 1).Best.front().Id, form);
  form.Birth = test::Moment("1990-01-05 14:30");
  EXPECT_EQ(CastForText(*session, form), "The chart is cast for 5 January 1990 19:26 UT.");
  form.Offset = "x";
  EXPECT_EQ(CastForText(*session, form), "");
}

}  // namespace
}  // namespace orvex::practice
