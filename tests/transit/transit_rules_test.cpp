// Rules of the transit tools that show on one day only: the first of a month, a day without hours,
// a dasha that is over.
#include <gmock/gmock.h>

#include <algorithm>
#include <set>

#include "chart/client_saving.h"
#include "core/cell_colors.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "horoscope/create_horoscope.h"
#include "support/test_home.h"
#include "transit/planet_sheet_home.h"
#include "transit/transit_calendar.h"
#include "vedic/karakas.h"
#include "vedic/vastu.h"

namespace orvex::transit {
namespace {

using testing::HasSubstr;

TEST(CalendarRules, AnEntryOfTheWholeDayHasDatesAndEndsWithTheNextDay) {
  const CalendarEvent event{"uid@x", test::Moment("2026-12-31"), true, "Sun enters", "All\nof it"};
  const std::string text = CalendarText({event}, test::Moment("2026-11-24 06:00"));
  for (const char* line :
       {"BEGIN:VCALENDAR\r\n", "VERSION:2.0\r\n", "BEGIN:VEVENT\r\n", "UID:uid@x\r\n",
        "DTSTAMP:20261124T060000Z\r\n", "DTSTART;VALUE=DATE:20261231\r\n",
        "DTEND;VALUE=DATE:20270101\r\n", "SUMMARY:Sun enters\r\n", "DESCRIPTION:All\\nof it\r\n",
        "TRANSP:TRANSPARENT\r\n", "END:VEVENT\r\n", "END:VCALENDAR\r\n"}) {
    EXPECT_THAT(text, HasSubstr(line));
  }
}

// The grid has no row before the first; what changed since the day before is an entry all the same.
TEST(CalendarRules, AChangeOfSignOnTheFirstOfAMonthIsAnEntryOfThatDay) {
  test::TestHome home;
  const auto session = home.Start();
  const GridView view = UserCityView(*session);
  const auto signs = [&](core::DateTime date) {
    const core::Table grid = GridOfDay(*session, view, date);
    std::vector<int> found;
    for (std::size_t column = 1; column < grid.Columns.size(); ++column) {
      found.push_back(
          static_cast<int>(core::ToDouble(grid.Rows.front().Cells[column].SortKey) / 30) % 12);
    }
    return found;
  };
  std::size_t changes = 0;
  for (int month = 1; month <= 12; ++month) {
    const core::DateTime first = core::MakeDateTime({2026, month, 1}).value();
    const std::vector<int> before = signs(first - std::chrono::days(1));
    const std::vector<int> after = signs(first);
    std::size_t wanted = 0;
    for (std::size_t planet = 0; planet < after.size(); ++planet) {
      wanted += before[planet] == after[planet] ? 0U : 1U;
    }
    std::size_t entries = 0;
    for (const CalendarEvent& event : GridEvents(*session, view, month, 2026)) {
      entries += event.Start == first && core::Contains(event.Summary, " enters ") ? 1U : 0U;
      EXPECT_THAT(event.Description, HasSubstr("Moon"));
    }
    EXPECT_EQ(entries, wanted) << month;
    changes += wanted;
  }
  EXPECT_GT(changes, 0U);
}

TEST(FindWords, EachEndOfASearchHasItsOwnSentence) {
  FindResult result;
  result.Hour = test::Moment("5400-01-02 03:00");
  const std::pair<SearchEnd, const char*> cases[] = {
      {SearchEnd::DaysOver, "Not found within the days to search."},
      {SearchEnd::EphemerisOver, "Not found: the ephemeris has no positions at 2 January 5400."},
      {SearchEnd::CalendarOver, "Not found up to the end of the calendar, 31 December 9999."},
      {SearchEnd::Found, ""},
      {SearchEnd::Canceled, ""}};
  for (const auto& [end, words] : cases) {
    result.End = end;
    EXPECT_EQ(WhyNotFound(result), words);
  }
}

TEST(FindWords, QuartersAndSignsBeginWhereTheStoreSays) {
  test::TestHome home;
  const auto session = home.Start();
  for (const core::PadaRow& pada : session->Reference.Padas) {
    FindForm form;
    form.Kind = TargetKind::Nakshatra;
    form.StarName = session->Reference.Stars.at(static_cast<std::size_t>(pada.StarId) - 1).StarName;
    form.Pada = pada.Pada;
    // Quarters are 3 degrees 20 minutes each.
    EXPECT_NEAR(TargetOf(session->Reference, form).Degree,
                ((pada.StarId - 1) * 4 + pada.Pada - 1) * 10.0 / 3, 0.01);
  }
  const FindChoices choices = ChoicesOf(session->Reference);
  EXPECT_EQ(choices.Planets.size(), 9U);
  EXPECT_TRUE(std::is_sorted(choices.Planets.begin(), choices.Planets.end()));
  EXPECT_TRUE(std::is_sorted(choices.Stars.begin(), choices.Stars.end()));
  EXPECT_EQ(choices.Zodiacs.front() + choices.Zodiacs.back(), "AriesPisces");
}

class SheetRules : public PlanetSheets {};

TEST_F(SheetRules, ADashaIsBlackWhileItRunsRedAfterAndBlueBefore) {
  const core::Table& dashas = model_.Periods.DashaList;
  for (std::size_t row = 0; row < dashas.Rows.size(); ++row) {
    const std::vector<std::string> span =
        core::Split(dashas.At(row, chart::DashaColumn::EndDate).Tag, '*');
    const core::DateTime first = core::ParseLongDateText(span.at(0)).value();
    const core::DateTime last = core::ParseLongDateText(span.at(1)).value();
    const std::chrono::days day(1);
    const std::pair<core::DateTime, const char*> cases[] = {
        {first - day, "0000FF"}, {first, "000000"}, {last, "000000"}, {last + day, "FF0000"}};
    const std::size_t planet =
        chart::RowOfPlanet(model_, dashas.At(row, chart::DashaColumn::Planet).Text).value();
    for (const auto& [today, color] : cases) {
      EXPECT_EQ(ShowPlanetDetails(model_, planet, today).DashaColor, color)
          << planet << " " << core::StoredDateTimeText(today);
    }
  }
}

TEST_F(SheetRules, EachKarakaIsNamedAtItsPlanet) {
  std::set<std::string> titles;
  for (std::size_t row = 0; row < 9; ++row) {
    const std::string karaka = Value(SheetOfRow(row), "Jamini Karaka");
    const std::string& name = chart::PlanetText(model_, row, chart::PlanetColumn::Planet);
    const bool node = name == "Rahu" || name == "Ketu";
    EXPECT_EQ(karaka == "N/A", node) << name;
    EXPECT_EQ(core::Contains(karaka, " Karaka ("), !node) << karaka;
    titles.insert(karaka);
  }
  EXPECT_EQ(titles.size(), 8U);
}

// The two lists of all sheets are the hits, each seen from both of its ends.
TEST_F(SheetRules, TheListsTellOtherEndDirectionAndKindOfEachHit) {
  std::multiset<std::string> fromSheets;
  std::multiset<std::string> toSheets;
  for (std::size_t row = 0; row < 9; ++row) {
    const PlanetSheet sheet = SheetOfRow(row);
    const std::string code =
        core::UpperCase(chart::PlanetText(model_, row, chart::PlanetColumn::Planet).substr(0, 2));
    const auto told = [&code](const core::Row& hit) {
      return code + "|" + hit.Cells[0].Text + "|" + hit.Cells[1].Text + "|" + hit.Cells[2].Text;
    };
    for (const core::Row& hit : sheet.Aspecting.Rows) {
      fromSheets.insert(told(hit));
    }
    for (const core::Row& hit : sheet.AspectedBy.Rows) {
      toSheets.insert(told(hit));
    }
    for (const core::Table* list : {&sheet.Aspecting, &sheet.AspectedBy}) {
      for (const core::Row& hit : list->Rows) {
        const core::Cell& angle = hit.Cells[2];
        EXPECT_EQ(angle.Background,
                  core::AspectCellColor(session_->State.AspectBands, core::ToSingle(angle.Text)))
            << angle.Text;
      }
    }
  }
  std::multiset<std::string> from;
  std::multiset<std::string> to;
  std::size_t differing = 0;
  using vedic::HitColumn;
  for (std::size_t row = 0; row < model_.HitsTable.Rows.size(); ++row) {
    const auto text = [&](HitColumn column) { return model_.HitsTable.At(row, column).Text; };
    from.insert(text(HitColumn::FromPlanet) + "|" + text(HitColumn::ToPlanet) +
                text(HitColumn::ToHouse) + "|" + text(HitColumn::ToDir) + "|" +
                text(HitColumn::Aspect));
    if (!text(HitColumn::ToPlanet).empty()) {
      to.insert(text(HitColumn::ToPlanet) + "|" + text(HitColumn::FromPlanet) + "|" +
                text(HitColumn::FromDir) + "|" + text(HitColumn::Aspect));
    }
    differing += text(HitColumn::FromDir) == text(HitColumn::ToDir) ? 0U : 1U;
  }
  EXPECT_GT(differing, 0U);
  EXPECT_EQ(fromSheets, from);
  EXPECT_EQ(toSheets, to);
}

TEST_F(SheetRules, EachPairOfTheSheetShowsTheCellThatItsLabelNames) {
  using chart::PlanetColumn;
  const std::pair<const char*, PlanetColumn> cells[] = {
      {"Rashi", PlanetColumn::Rashi},         {"Sign Lord", PlanetColumn::SignLord},
      {"Star Lord", PlanetColumn::StarLord},  {"Sub Lord", PlanetColumn::SubLord},
      {"Nakshatra", PlanetColumn::Nakshatra}, {"Pada", PlanetColumn::Pada},
      {"Gunas", PlanetColumn::Gunas}};
  for (std::size_t row = 0; row < 9; ++row) {
    const PlanetSheet sheet = SheetOfRow(row);
    for (const auto& [label, column] : cells) {
      EXPECT_EQ(Value(sheet, label), chart::PlanetText(model_, row, column)) << label;
    }
    EXPECT_EQ(sheet.Sheet.Rows.size(), 7U);
  }
}

}  // namespace
}  // namespace orvex::transit
