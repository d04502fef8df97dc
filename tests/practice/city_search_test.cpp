#include "practice/city_search.h"

#include <gtest/gtest.h>

#include <ctime>
#include <vector>

#include "chart/client_saving.h"
#include "practice/cities.h"
#include "practice/zone_clock.h"
#include "support/test_home.h"

namespace orvex::practice {
namespace {

class CitySearchTest : public testing::Test {
 protected:
  CitySearchTest() : session_(home_.Start()) {}

  CitySearch Search() const { return {*session_, test::DataFolder()}; }

  void AddClientIn(std::int32_t cityId) {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    chart::SelectCity(*session_, cityId, form);
    form.FullName = "Asha Rao";
    ASSERT_NE(chart::SaveNewClient(*session_, form, 1).Id, 0);
  }

  // The first city found, as the field shows it.
  static std::string First(const CitySearch& search, const std::string& text) {
    const CitySearch::Result found = search.Find(text, 1);
    return found.Best.empty() ? "" : CityText(found.Best.front());
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_;
};

TEST_F(CitySearchTest, FindsByTheBeginningsOfWordsAndByOtherNames) {
  session_->State.UserCityId = 1;
  const CitySearch search = Search();
  struct Case {
    const char* Text;
    const char* First;
  };
  for (const Case& one : std::vector<Case>{{"mumb", "Mumbai, IN"},
                                           {"Bombay", "Mumbai, IN"},
                                           {"MADRAS", "Chennai, IN"},
                                           {"banaras", "Varanasi, IN"},
                                           {"மும்பை", "Mumbai, IN"},
                                           {"z\u00FCrich", "Zurich, CH"},
                                           {"zurich", "Zurich, CH"},
                                           {"leningrad", "Saint Petersburg, RU"},
                                           {"london", "London, GB"},
                                           {"  new   del", "New Delhi, IN"},
                                           {"umbai", ""},
                                           {"", ""},
                                           {" - ", ""}}) {
    EXPECT_EQ(First(search, one.Text), one.First) << one.Text;
  }
  EXPECT_EQ(search.Find("bombay", 1).Best.front().OtherName, "Bombay");
  EXPECT_EQ(search.Find("mumbai", 1).Best.front().OtherName, "");
}

TEST_F(CitySearchTest, UsedPlacesComeFirstThenTheOwnCountry) {
  session_->State.UserCityId = 1;
  // "Hyderabad" is a city of India and one of Pakistan.
  const CitySearch unused = Search();
  const std::vector<FoundCity> plain = unused.Find("hyderabad", 20).Best;
  ASSERT_GE(plain.size(), 2U);
  EXPECT_EQ(plain[0].Country, "IN");
  EXPECT_EQ(First(unused, "hyderabad pk"), "Hyderabad, PK");
  EXPECT_EQ(First(unused, "hyderabad sin"), "Hyderabad, PK");
  for (const FoundCity& city : unused.Find("sindh hyderabad", 20).Best) {
    ADD_FAILURE() << CityText(city);
  }

  AddClientIn(unused.Find("hyderabad pk", 1).Best.front().Id);
  const std::vector<FoundCity> used = Search().Find("hyderabad", 20).Best;
  EXPECT_EQ(used[0].Country, "PK");
  EXPECT_EQ(used[0].Clients, 1);
  EXPECT_EQ(used[1].Country, "IN");
}

TEST_F(CitySearchTest, NamesThatRepeatInACountryCarryTheirRegion) {
  const CitySearch search = Search();
  bool told = false;
  for (const FoundCity& city : search.Find("aurangabad", 20).Best) {
    told = told || (!city.Region.empty() &&
                    CityText(city) == city.Name + ", " + city.Region + ", " + city.Country);
    EXPECT_EQ(CityText(CityOf(*session_, test::DataFolder(), city.Id)), CityText(city));
  }
  EXPECT_TRUE(told);
  EXPECT_EQ(search.Of(19).Region, "");
  EXPECT_EQ(search.Of(0).Id, 0);
  EXPECT_EQ(CityText(CityOf(*session_, test::DataFolder(), 19)), "Dubai, AE");
  EXPECT_EQ(CityOf(*session_, test::DataFolder(), 0).Id, 0);
  EXPECT_EQ(search.Of(19).Name, "Dubai");
  EXPECT_EQ(CoordinatesText(search.Of(19)), "25.08 N 55.31 E");
}

TEST_F(CitySearchTest, KnowsTheCitiesThatTheUserAddedAndRenamed) {
  SaveNewCity(*session_, {"Our Village", "Asia/Kolkata", "5.5", "-19.5", "-72.5"});
  session_->StoreConnection.Execute("Update city_master set cityname = 'Bay City' where id = 1");
  const CitySearch search = Search();
  EXPECT_EQ(First(search, "our vill"), "Our Village, IN");
  EXPECT_EQ(CoordinatesText(search.Find("our vill", 1).Best.front()), "19.50 S 72.50 W");
  EXPECT_NE(First(search, "bombay"), "Bay City, IN");
}

TEST_F(CitySearchTest, AnswersEachKeyAtOnce) {
  const CitySearch search = Search();
  for (const char* text : {"s", "sa", "san", "san j", "hyderabad pk", "xyzzy"}) {
    // Processor time: the machine may be busy with other things.
    const std::clock_t begin = std::clock();
    search.Find(text, 20);
    const double milliseconds = 1000.0 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    // Ten times as much in a build without optimisation.
    EXPECT_LT(milliseconds, 300) << text;
  }
}

TEST(ClockOffset, IsWrittenAsClocksDo) {
  EXPECT_EQ(ClockOffsetText(5.5), "+5:30");
  EXPECT_EQ(ClockOffsetText(-3.5), "-3:30");
  EXPECT_EQ(ClockOffsetText(-0.25), "-0:15");
  EXPECT_EQ(ClockOffsetText(0), "+0:00");
  EXPECT_EQ(ClockOffsetText(4.85889), "+4:51:32");
}

}  // namespace
}  // namespace orvex::practice
