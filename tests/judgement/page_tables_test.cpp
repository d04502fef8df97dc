// What the page of a matter makes of the tables: marks a house, tests of a planet, a sentence of
// facts, spans of years.
#include <gtest/gtest.h>

#include "chart/horary_numbers.h"
#include "chart/relations.h"
#include "core/text.h"
#include "judgement/chain_sentence.h"
#include "judgement/fruitful_tests.h"
#include "judgement/kept_moment.h"
#include "judgement/period_windows.h"
#include "judgement/ranked_periods.h"
#include "support/test_home.h"

namespace orvex::judgement {
namespace {

core::Table TableOf(const std::vector<std::string>& captions,
                    const std::vector<std::vector<std::string>>& rows) {
  core::Table table;
  for (const std::string& caption : captions) {
    table.Columns.push_back({caption});
  }
  for (const std::vector<std::string>& row : rows) {
    core::Row& added = table.AddRow();
    for (std::size_t cell = 0; cell < row.size(); ++cell) {
      added.Cells[cell].Text = row[cell];
    }
  }
  return table;
}

std::string LineOf(const core::Table& table, std::size_t row) {
  std::vector<std::string> texts;
  for (const core::Cell& cell : table.Rows.at(row).Cells) {
    texts.push_back(cell.Text);
  }
  return core::Join(texts, "|");
}

core::Table Planets() {
  return TableOf({"Planet", "Grade", "Supporting", "Denying", "Ruling", "Marks", "Fruitful"},
                 {{"Venus", "A", "2 11", "10", "Day", "", "Yes"},
                  {"Sun", "", "", "1 6", "Asc Star", "star of R", ""},
                  {"Moon", "D", "7", "", "", "R, sub of R, C", ""}});
}

TEST(RankedPeriods, MarkEachHouseByTheLordsThatSignifyItAndCountTheFruitfulOnes) {
  core::Table periods =
      TableOf({"Dasha", "Bhukti", "Antara", "From", "Until", "Age", "Houses", "Score"},
              {{"Venus", "Sun", "Venus", "1 Feb 2031", "2 Mar 2031", "40", "2 11", "3"},
               {"Moon", "Rahu", "Sun", "2 Mar 2031", "3 Apr 2031", "40", "7", "-1"}});
  periods.Rows[0].Cells[3].SortKey = "2031-02-01 00:00:00";
  const Matter marriage{1, "Marriage", 7, {2, 11}, {1, 10}, ""};
  const core::Table ranked = BuildRankedPeriods(periods, Planets(), marriage);
  std::string captions;
  for (const core::Column& column : ranked.Columns) {
    captions += column.Caption + "|";
  }
  EXPECT_EQ(captions, "#|Dasha|Bhukti|Antara|From|Until|Age|Houses|Score|Fruitful|7|2|11|1|10|");
  EXPECT_EQ(LineOf(ranked, 0),
            "1|Venus|Sun|Venus|1 Feb 2031|2 Mar 2031|40|2 11|3|2 of 3|○○○|●○●|●○●|□■□|■□■");
  EXPECT_EQ(LineOf(ranked, 1),
            "2|Moon|Rahu|Sun|2 Mar 2031|3 Apr 2031|40|7|-1|0 of 3|●○○|○○○|○○○|□□■|□□□");
  EXPECT_EQ(ranked.Rows[0].Tag, "2031-02-01 00:00:00");
}

TEST(FruitfulTests, SayWhichOfThemAPlanetPasses) {
  const core::Table tests = BuildFruitfulTests(Planets());
  EXPECT_EQ(LineOf(tests, 0), "Venus|A|2 11|10|Day|Yes|Yes||Yes");
  EXPECT_EQ(LineOf(tests, 1), "Sun|||1 6|Asc Star|No|Yes|star of R|No");
  EXPECT_EQ(LineOf(tests, 2), "Moon|D|7|||Yes|No|R, sub of R, C|No");
}

TEST(ChainSentence, TellsHousesWithTheirLevelsAndMarksAndNoVerdict) {
  const std::vector<std::string> captions = {"Role", "Planet",     "L1",      "L2",   "L3",
                                             "L4",   "Supporting", "Denying", "Marks"};
  const struct {
    std::vector<std::string> Row;
    const char* Sentence;
  } cases[] = {
      {{"Cusp Sub Lord", "Venus", "2", "8", "10", "1 8", "2", "1 10", ""},
       "Sub lord VE names 2 (L1) of the supporting houses and 1 (L4), 10 (L3) of the denying ones. "
       "It is not retrograde, nor in the star or sub of a retrograde planet."},
      {{"Cusp Sub Lord", "Saturn", "2 12", "2", "7", "", "2 7", "", "R, star of R"},
       "Sub lord SA names 2 (L1 L2), 7 (L3) of the supporting houses and none of the denying ones. "
       "It is retrograde, in the star of a retrograde planet."},
      {{"Cusp Sub Lord", "Moon", "", "", "", "6", "", "6", "C"},
       "Sub lord MO names none of the supporting houses and 6 (L4) of the denying ones. It is "
       "combust, not retrograde, nor in the star or sub of a retrograde planet."},
      {{"Cusp Sub Lord", "Sun", "", "", "", "", "", "", "sub of R, C"},
       "Sub lord SU names none of the supporting houses and none of the denying ones. It is in the "
       "sub of a retrograde planet, combust."},
      {{"Cusp Sub Lord", "", "", "", "", "", "", "", ""},
       "The chart does not tell the sub lord of this cusp."},
  };
  for (const auto& example : cases) {
    EXPECT_EQ(ChainSentence(TableOf(captions, {example.Row})), example.Sentence);
  }
  EXPECT_EQ(ChainSentence({}), "");
}

TEST(PeriodWindows, AgesAreReadAndGoFromBirthdayToBirthday) {
  const struct {
    const char* Typed;
    const char* Read;
  } cases[] = {{"27", "27"},
               {" 25-30 ", "25-30"},
               {"25 to 30", "25-30"},
               {"25 – 30", "25-30"},
               {"0", "0"},
               {"120", "120"},
               {"121", ""},
               {"30-25", ""},
               {"-5", "5"},
               {"", ""},
               {"x", ""},
               {"1 2 3", ""},
               {"25-", "25"},
               {"2.5", ""},
               {"30-30", "30"}};
  for (const auto& example : cases) {
    const std::optional<AgeSpan> ages = ReadAges(example.Typed);
    EXPECT_EQ(ages ? AgesText(*ages) : "", example.Read) << example.Typed;
  }
  const PeriodWindow window = WindowOfAges(test::Moment("1990-07-05 14:30"), {25, 30});
  EXPECT_EQ(core::StoredDateTimeText(window.From), "2015-07-05 00:00:00");
  EXPECT_EQ(core::StoredDateTimeText(window.To), "2021-07-05 00:00:00");
  EXPECT_EQ(core::StoredDateTimeText(YearsFrom(test::Moment("2024-02-29 10:00"), 1).To),
            "2025-02-28 10:00:00");
}

TEST(KeptMoment, OutlivesTheProgramAsATextAndNothingElseIsTakenForOne) {
  const KeptMoment kept{{test::Moment("2026-11-24 10:00:07"), {19.07283, -72.88261}, -5.75},
                        "San | Juan"};
  const std::optional<KeptMoment> read = ReadKept(KeptText(kept));
  ASSERT_TRUE(read);
  EXPECT_EQ(read->Moment.Local, kept.Moment.Local);
  EXPECT_EQ(read->Moment.Where.Latitude, 19.07283);
  EXPECT_EQ(read->Moment.Where.Longitude, -72.88261);
  EXPECT_EQ(read->Moment.Offset, -5.75);
  EXPECT_EQ(MomentText(read->Moment.Local, read->City), "24 Nov 2026 10:00 AM, San   Juan");
  for (const char* text : {"", "2026-11-24", "x|1|2|3|y", "2026-11-24 10:00:00|north|2|3|y",
                           "2026-11-24 10:00:00|1|2|3"}) {
    EXPECT_FALSE(ReadKept(text)) << text;
  }
}

TEST(Numbers, Are249SpansInOrderWithTheirLords) {
  test::TestHome own;
  const auto session = own.Start();
  const core::Table numbers = chart::HoraryNumbers(session->Reference);
  ASSERT_EQ(numbers.Rows.size(), 249U);
  EXPECT_EQ(LineOf(numbers, 0), "1|Aries|0.00|0.78|Mars|Ketu|Ketu");
  EXPECT_EQ(LineOf(numbers, 107).substr(0, 10), "108|Virgo|");
  EXPECT_EQ(numbers.Rows[248].Tag, "249");
  EXPECT_EQ(numbers.At(248, chart::NumberColumn::Sign).Text, "Pisces");
  EXPECT_EQ(numbers.At(248, chart::NumberColumn::To).Text, "360.00");
}

TEST(Relations, StandBehindTheirHouse) {
  EXPECT_EQ(chart::HouseWithRelation(7), "7 · spouse, partner");
  EXPECT_EQ(chart::HouseWithRelation(3), "3 · younger brothers and sisters");
  EXPECT_EQ(chart::HouseWithRelation(12), "12");
}

}  // namespace
}  // namespace orvex::judgement
