#include "horoscope/client_card.h"

#include <gtest/gtest.h>

#include "chart/client_saving.h"
#include "support/test_home.h"

namespace orvex::horoscope {
namespace {

TEST(AgeInWords, CountsWholeCalendarYearsAndMonths) {
  struct Case {
    const char* Birth;
    const char* Today;
    const char* Age;
  };
  for (const Case& one :
       std::initializer_list<Case>{{"1990-07-05 14:30:00", "2026-11-24", "36 years 4 months"},
                                   {"1990-07-25 14:30:00", "2026-11-24", "36 years 3 months"},
                                   {"1990-11-24 23:59:00", "2026-11-24", "36 years"},
                                   {"1990-11-25", "2026-11-24", "35 years 11 months"},
                                   {"2025-11-24", "2026-11-24", "1 year"},
                                   {"2026-10-24", "2026-11-24", "1 month"},
                                   {"2025-10-24", "2026-11-24", "1 year 1 month"},
                                   {"2026-10-25", "2026-11-24", "30 days"},
                                   {"2026-11-23 23:00:00", "2026-11-24", "1 day"},
                                   {"2026-11-24 10:00:00", "2026-11-24", "0 days"},
                                   {"2024-02-29", "2026-02-28", "1 year 11 months"},
                                   {"2026-11-25", "2026-11-24", ""}}) {
    EXPECT_EQ(AgeInWords(test::Moment(one.Birth), test::Moment(one.Today)), one.Age)
        << one.Birth << " " << one.Today;
  }
}

class ClientCardTest : public testing::Test {
 protected:
  ClientCard Card(const std::string& birth, const std::string& question = "") {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    chart::SelectCity(*session_, 1, form);
    form.FullName = "Asha Rao";
    form.Gender = "F";
    form.Birth = test::Moment(birth);
    form.Mobile = "98200";
    form.Email = "asha@example.org";
    form.Comments = "Asked about work.";
    form.Horary = !question.empty();
    form.HoraryNumber = "147";
    form.HoraryQuestion = question;
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
    std::optional<ClientCard> card = CardOf(*session_, chart::SaveNewClient(*session_, form, 1).Id);
    EXPECT_TRUE(card) << birth;
    return card.value_or(ClientCard{});
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

TEST_F(ClientCardTest, TellsOfABirthAndItsRunningPeriods) {
  session_->State.SunriseText = "6:00 AM";
  const ClientCard card = Card("1990-07-05 14:30:00");
  EXPECT_EQ(session_->State.SunriseText, "6:00 AM");
  EXPECT_EQ(card.Birth.substr(0, 23), "5 July 1990 02:30 PM \u00B7");
  EXPECT_EQ(card.Person, "F, 36 years 4 months \u00B7 Created On 24 November 2026");
  EXPECT_EQ(card.Question, "");
  EXPECT_EQ(card.Ascendant, card.Model.Captions.AscendantSign);
  EXPECT_NE(card.Moon.find(", Pada "), std::string::npos);
  EXPECT_EQ(card.Mobile + " " + card.Email + " " + card.Comments,
            "98200 asha@example.org Asked about work.");

  std::string path;
  for (const CardPeriod& period : card.Periods) {
    path += (path.empty() ? "" : "/") + period.Planet;
    const core::DateTime end = core::ParseLongDateText(period.End).value();
    EXPECT_GE(end, session_->Time.Today()) << period.Level;
    EXPECT_GE(period.Share, 0) << period.Level;
    EXPECT_LE(period.Share, 1) << period.Level;
  }
  ASSERT_EQ(card.Periods.size(), 4U);
  EXPECT_EQ(path.substr(0, card.Model.RunningPeriods.size()), card.Model.RunningPeriods);
  EXPECT_EQ(card.Periods.front().Level, "Dasha");
  EXPECT_EQ(card.Periods.back().Level, "Sookshma");
}

TEST_F(ClientCardTest, AShareIsTheDaysThatAreOver) {
  const ClientCard first = Card("1990-07-05 14:30:00");
  const core::DateTime end = core::ParseLongDateText(first.Periods.at(1).End).value();
  home_.Clock.Set(end - std::chrono::hours(24));
  const ClientCard last = Card("1990-07-05 14:30:00");
  EXPECT_EQ(last.Periods.at(1).End, first.Periods.at(1).End);
  EXPECT_GT(last.Periods.at(1).Share, first.Periods.at(1).Share);
  EXPECT_GT(last.Periods.at(1).Share, 0.99);
  EXPECT_LT(last.Periods.at(1).Share, 1);
}

TEST_F(ClientCardTest, NoPeriodsRunPastTheAgeOf120OrBeforeBirth) {
  for (const auto& [birth, any] :
       std::initializer_list<std::pair<const char*, bool>>{{"1930-11-24 10:00:00", true},
                                                           {"1905-11-24 10:00:00", false},
                                                           {"1879-03-14 11:30:00", false},
                                                           {"2026-11-24 09:00:00", true},
                                                           {"2027-11-24 09:00:00", false}}) {
    EXPECT_EQ(Card(birth).Periods.empty(), !any) << birth;
  }
}

TEST_F(ClientCardTest, AQueryHasItsQuestionAndNoAge) {
  const ClientCard card = Card("2026-11-20 09:00:00", "Will he come?");
  EXPECT_EQ(card.Question, "Will he come?");
  EXPECT_EQ(card.Person, "F \u00B7 Created On 24 November 2026");
  EXPECT_NE(card.Birth.find(" # 147 \u00B7 "), std::string::npos);
  EXPECT_FALSE(CardOf(*session_, 4711));
}

}  // namespace
}  // namespace orvex::horoscope
