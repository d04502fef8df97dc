// The bench of the birth time against the long way: every candidate saved, opened and judged.
#include "judgement/birth_times.h"

#include <gtest/gtest.h>

#include "chart/client_saving.h"
#include "chart/dasha_tree.h"
#include "chart/zodiac_lookups.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "exact/exact_tables.h"
#include "horoscope/create_horoscope.h"
#include "horoscope/exact_reading.h"
#include "judgement/rulers.h"
#include "support/test_home.h"

namespace orvex::judgement {
namespace {

struct Place {
  const char* Latitude;
  const char* Longitude;
  const char* Offset;
};

constexpr Place kMumbai{"19.07283", "72.88261", "5.5"};
constexpr Place kNewYork{"40.71427", "-74.00597", "-5"};

class BirthTimes : public testing::Test {
 protected:
  std::int32_t Add(core::DateTime birth, const Place& place) {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    form.FullName = "Client";
    form.Birth = birth;
    form.CityId = 1;
    form.Latitude = place.Latitude;
    form.Longitude = place.Longitude;
    form.Offset = place.Offset;
    home_.Clock.Set(saveClock_ += std::chrono::seconds(1));
    return chart::SaveNewClient(*session_, form, 1).Id;
  }

  horoscope::OpenedHoroscope Open(std::int32_t id) {
    return horoscope::CreateHoroscope(*session_, id).value();
  }

  core::Table Bench(std::int32_t id, int minutes) {
    const horoscope::OpenedHoroscope opened = Open(id);
    return BuildBirthTimes(*session_, opened.Model, minutes, rulers_,
                           EventsOfClient(*session_, id));
  }

  // Whether the running lords of a stored horoscope, read on the event's day, stand in "Planet(s)
  // Sig" of a main or supporting cusp.
  bool ExplainsTheLongWay(std::int32_t id, const LifeEvent& event) {
    home_.Clock.Set(event.Date);
    const chart::HoroscopeModel model = Open(id).Model;
    std::string signified;
    for (const int house : GivingHouses(*event.What)) {
      signified +=
          model.CuspTable.At(static_cast<std::size_t>(house) - 1, chart::CuspColumn::PlanetsSig)
              .Text +
          " ";
    }
    for (const std::string& lord : core::Split(model.RunningPeriods, '/')) {
      if (!core::Contains(signified, chart::PlanetCode(lord))) {
        return false;
      }
    }
    return true;
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
  core::DateTime saveClock_ = test::Moment("2026-11-24 10:00");  // no two are saved in one second
  core::Table rulers_ =
      RulersAt(*session_, {test::Moment("2026-06-17 14:58"), {19.07283, 72.88261}, 5.5});
};

// The middle of each span, entered as a birth, has the Ascendant of its row and explains as many
// events; in the east by the clock's moment, in the west by local mean time.
TEST_F(BirthTimes, TheMiddleOfEachSpanEnteredAsABirthGivesItsRow) {
  for (const Place& place : {kMumbai, kNewYork}) {
    const std::int32_t id = Add(test::Moment("1977-01-14 02:13"), place);
    for (const auto& [date, matter] :
         {std::pair("2003-02-11", 1), std::pair("1999-07-01", 3), std::pair("2005-10-20", 8),
          std::pair("2010-04-15", 9), std::pair("2018-08-08", 6), std::pair("1995-06-06", 5)}) {
      ASSERT_FALSE(SaveNewEvent(*session_, {test::Moment(date), matter, ""}, id).Refused);
    }
    const std::vector<LifeEvent> events = EventsOfClient(*session_, id);
    ASSERT_EQ(events.size(), 6U);
    const core::Table bench = Bench(id, 60);
    ASSERT_GT(bench.Rows.size(), 15U);
    std::set<std::string> counts;
    for (std::size_t row = 0; row < bench.Rows.size(); ++row) {
      const std::int32_t candidate = Add(test::Moment(bench.Rows[row].Tag), place);
      const horoscope::OpenedHoroscope opened = Open(candidate);
      const core::Table cusps =
          horoscope::ReadToTheSecond(*session_, opened.Model, opened.Birth, exact::Reading::Kp)
              .Cusps;
      EXPECT_EQ(bench.At(row, BirthTimeColumn::SignLord).Text,
                cusps.At(0, exact::ExactCuspColumn::SignLord).Text);
      EXPECT_EQ(bench.At(row, BirthTimeColumn::StarLord).Text,
                cusps.At(0, exact::ExactCuspColumn::StarLord).Text);
      EXPECT_EQ(bench.At(row, BirthTimeColumn::SubLord).Text,
                cusps.At(0, exact::ExactCuspColumn::SubLord).Text);
      int explained = 0;
      std::vector<std::string> named;
      for (const LifeEvent& event : events) {
        if (ExplainsTheLongWay(candidate, event)) {
          ++explained;
          named.push_back(event.What->Name + ", " + core::LongDateText(event.Date, true));
        }
      }
      EXPECT_EQ(bench.At(row, BirthTimeColumn::Events).Tooltip, core::Join(named, "\n"));
      EXPECT_EQ(bench.At(row, BirthTimeColumn::Events).Text, core::WholeText(explained) + " of 6");
      counts.insert(bench.At(row, BirthTimeColumn::Events).Text);
    }
    EXPECT_GT(counts.size(), 1U) << "all candidates explain alike: the events tell nothing";
  }
}

TEST_F(BirthTimes, TheSpansReachSoFarOnBothSidesAndOneHoldsTheStoredTime) {
  const std::int32_t id = Add(test::Moment("1977-01-14 02:13:30"), kNewYork);
  const core::Table bench = Bench(id, 7);
  const auto text = [&bench](std::size_t row, BirthTimeColumn column) {
    return bench.At(row, column).Text;
  };
  const std::size_t last = bench.Rows.size() - 1;
  EXPECT_EQ(text(0, BirthTimeColumn::From), "1977-01-14 02:06:30");
  EXPECT_EQ(text(last, BirthTimeColumn::Until), "1977-01-14 02:20:30");
  int now = 0;
  for (std::size_t row = 0; row <= last; ++row) {
    EXPECT_EQ(text(row, BirthTimeColumn::Events), "0 of 0");
    if (row > 0) {
      EXPECT_EQ(text(row, BirthTimeColumn::From), text(row - 1, BirthTimeColumn::Until));
    }
    const bool holds = text(row, BirthTimeColumn::From) <= "1977-01-14 02:13:30" &&
                       "1977-01-14 02:13:30" < text(row, BirthTimeColumn::Until);
    EXPECT_EQ(text(row, BirthTimeColumn::Now), holds ? "Now" : "");
    now += holds ? 1 : 0;
  }
  EXPECT_EQ(now, 1);
}

// Rulers: the first five rows and the nodes count, the two sub lords do not, and a lord that comes
// twice counts twice.
TEST_F(BirthTimes, CountsTheLordsThatRule) {
  const std::int32_t id = Add(test::Moment("1977-01-14 02:13"), kMumbai);
  const auto rulers = [](const std::vector<std::pair<const char*, std::string>>& rows) {
    core::Table table{{{"Role"}, {"Planet"}, {"Marks"}}, {}};
    for (const auto& [role, planet] : rows) {
      table.Rows.push_back({{{role}, {planet}, {}}, "", false});
    }
    return table;
  };
  const horoscope::OpenedHoroscope opened = Open(id);
  const core::Table plain = Bench(id, 30);
  for (std::size_t row = 0; row < plain.Rows.size(); ++row) {
    const std::string sign = plain.At(row, BirthTimeColumn::SignLord).Text;
    const std::string star = plain.At(row, BirthTimeColumn::StarLord).Text;
    const std::string sub = plain.At(row, BirthTimeColumn::SubLord).Text;
    const core::Table ruling = rulers({{"Asc Star", star},
                                       {"Asc Sign", "-"},
                                       {"Moon Star", "-"},
                                       {"Moon Sign", "-"},
                                       {"Day", "-"},
                                       {"Asc Sub", sign},
                                       {"Moon Sub", "-"},
                                       {"Node", sub}});
    const std::string wanted = sign == star || sign == sub ? "3" : "2";
    const core::Table counted = BuildBirthTimes(*session_, opened.Model, 30, ruling, {});
    EXPECT_EQ(counted.At(row, BirthTimeColumn::Rulers).Text, wanted)
        << sign << " " << star << " " << sub;
    EXPECT_EQ(counted.At(row, BirthTimeColumn::SignLord).Bold, wanted == "3");
    EXPECT_TRUE(counted.At(row, BirthTimeColumn::StarLord).Bold);
    EXPECT_EQ(StrongRulers(ruling).size(), star == sub ? 2U : 3U);
  }
}

TEST_F(BirthTimes, ATakenTimeIsTheMiddleOfItsSpanAndTellsFromWhichItCame) {
  const std::int32_t id = Add(test::Moment("1977-01-14 02:13"), kMumbai);
  const core::Table bench = Bench(id, 10);
  const TakenTime taken = TakeTime(Open(id).Model, bench, 1);
  const auto at = [&bench](BirthTimeColumn column) {
    return test::Moment(bench.At(1, column).Text);
  };
  const auto before = taken.Birth - at(BirthTimeColumn::From);
  const auto after = at(BirthTimeColumn::Until) - taken.Birth;
  EXPECT_LE(std::chrono::abs(after - before), std::chrono::seconds(1));
  EXPECT_EQ(taken.Comment,
            "Birth time " + core::StoredDateTimeText(taken.Birth) +
                " taken in the place of 1977-01-14 02:13:00: Ascendant in the sign of " +
                bench.At(1, BirthTimeColumn::SignLord).Text + ", the star of " +
                bench.At(1, BirthTimeColumn::StarLord).Text + ", the sub of " +
                bench.At(1, BirthTimeColumn::SubLord).Text + "; events 0 of 0.");
  EXPECT_THROW(TakeTime(Open(id).Model, bench, bench.Rows.size()), std::out_of_range);
}

TEST_F(BirthTimes, AGivenAscendantAndAWindowOutOfBoundsAreRefused) {
  horoscope::OpenedHoroscope opened = Open(Add(test::Moment("1977-01-14 02:13"), kMumbai));
  for (const auto& [minutes, refused] :
       {std::pair(0, true), std::pair(1, false), std::pair(120, false), std::pair(121, true)}) {
    EXPECT_EQ(CheckBench(opened.Model, minutes).has_value(), refused) << minutes;
  }
  opened.Model.Horary = true;
  EXPECT_TRUE(CheckBench(opened.Model, 10));
}

// On the day on which two periods touch the later one runs.
TEST_F(BirthTimes, TheLordsOfADayAreThoseOfTheTree) {
  const chart::HoroscopeModel model = Open(Add(test::Moment("1977-01-14 02:13"), kMumbai)).Model;
  const std::vector<chart::TreeRow> tree =
      chart::FullDashaTree(session_->Reference, model, chart::TreeDepth::Antara);
  const auto lordsOn = [&](core::DateTime date) {
    const auto lords = chart::LordsRunningOn(session_->Reference, model, date);
    return lords ? core::Join({lords->begin(), lords->end()}, "/") : "";
  };
  for (std::size_t row = 0; row < tree.size(); ++row) {
    const auto& planets = tree[row].Planets;
    const std::string lords = planets[0] + "/" + planets[1] + "/" + planets[2];
    EXPECT_EQ(lordsOn(tree[row].Start + std::chrono::hours(13)), lords);
    EXPECT_EQ(lordsOn(tree[row].End - std::chrono::days(1)), lords);
  }
  EXPECT_EQ(lordsOn(tree.front().Start - std::chrono::days(1)), "");
  EXPECT_EQ(lordsOn(tree.back().End + std::chrono::days(1)), "");
}

}  // namespace
}  // namespace orvex::judgement
