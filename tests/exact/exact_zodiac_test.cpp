#include "exact/exact_zodiac.h"

#include <gtest/gtest.h>

#include <map>
#include <numeric>

#include "support/test_home.h"

namespace orvex::exact {
namespace {

class ExactZodiacTest : public ::testing::Test {
 protected:
  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
  ExactZodiac zodiac_{session_->Reference};
};

TEST_F(ExactZodiacTest, TheCircleIsCutInto12And36And249And2193SpansWithoutGap) {
  const std::pair<Depth, std::size_t> counts[] = {
      {Depth::Sign, 12}, {Depth::Star, 36}, {Depth::Sub, 249}, {Depth::SubSub, 2193}};
  for (const auto& [depth, count] : counts) {
    const std::vector<Span> spans = zodiac_.Spans(depth);
    EXPECT_EQ(spans.size(), count);
    Units end = 0;
    for (const Span& span : spans) {
      EXPECT_EQ(span.Begin, end);
      EXPECT_LT(span.Begin, span.End);
      end = span.End;
    }
    EXPECT_EQ(end, 46'656'000);
  }
}

// The parts of a star by the rule of thirds: every part holds its lord's years in 120 of the whole.
TEST_F(ExactZodiacTest, EveryPartIsAsWideAsItsLordsYears) {
  const std::map<std::string, Units> years = {{"Ketu", 7},     {"Venus", 20},  {"Sun", 6},
                                              {"Moon", 10},    {"Mars", 7},    {"Rahu", 18},
                                              {"Jupiter", 16}, {"Saturn", 19}, {"Mercury", 17}};
  std::map<std::string, Units> subs;
  std::map<std::pair<std::string, std::string>, Units> subSubs;
  for (const Span& span : zodiac_.Spans(Depth::SubSub)) {
    const Lords lords = zodiac_.LordsOf(span.Begin);
    subs[lords.Sub] += span.End - span.Begin;
    subSubs[{lords.Sub, lords.SubSub}] += span.End - span.Begin;
  }
  ASSERT_EQ(subs.size(), 9U);
  ASSERT_EQ(subSubs.size(), 81U);
  for (const auto& [lord, width] : subs) {
    EXPECT_EQ(width, 27 * 14'400 * years.at(lord)) << lord;
  }
  for (const auto& [lords, width] : subSubs) {
    EXPECT_EQ(width, 27 * 120 * years.at(lords.first) * years.at(lords.second));
  }
}

TEST_F(ExactZodiacTest, EveryBorderBelongsToTheSpanThatBeginsThere) {
  for (const Depth depth : {Depth::Sign, Depth::Star, Depth::Sub, Depth::SubSub}) {
    const std::vector<Span> spans = zodiac_.Spans(depth);
    for (std::size_t i = 0; i < spans.size(); ++i) {
      const Span before = spans[(i + spans.size() - 1) % spans.size()];
      const double border = DegreesOf(spans[i].Begin);
      constexpr double kBitOfUnit = 1e-7;
      EXPECT_EQ(zodiac_.SpanOf(UnitsOf(border), depth).Begin, spans[i].Begin);
      EXPECT_EQ(zodiac_.SpanOf(UnitsOf(border + kBitOfUnit), depth).Begin, spans[i].Begin);
      EXPECT_EQ(zodiac_.SpanOf(UnitsOf(border - kBitOfUnit), depth).Begin, before.Begin);
      EXPECT_EQ(zodiac_.SpanOf(spans[i].End - 1, depth).Begin, spans[i].Begin);
      if (depth == Depth::SubSub) {
        EXPECT_NE(zodiac_.LordsOf(before.Begin), zodiac_.LordsOf(spans[i].Begin));
      }
    }
  }
}

// The printed table of the 249 subs begins its rows at the same places, to a hundredth of a degree.
TEST_F(ExactZodiacTest, The249SubsAreThoseOfTheReferenceTable) {
  const std::vector<Span> spans = zodiac_.Spans(Depth::Sub);
  ASSERT_EQ(spans.size(), session_->Reference.Subs.size());
  for (std::size_t i = 0; i < spans.size(); ++i) {
    const core::SubRow& row = session_->Reference.Subs[i];
    EXPECT_NEAR(DegreesOf(spans[i].Begin), row.AscPointBegin, 0.01);
    const Lords lords = zodiac_.LordsOf(spans[i].Begin);
    EXPECT_EQ(lords.Sign + lords.Star + lords.Sub, row.RashiLord + row.StarLord + row.SubLord);
  }
}

TEST_F(ExactZodiacTest, LordsStopAtTheDepthAndTextsAreCutToTheSecond) {
  // 300 degrees: Aquarius, halfway through the star of Mars, where the sub of Mercury begins.
  const Units aquarius = 10 * kUnitsOfSign;
  EXPECT_EQ(zodiac_.LordsOf(aquarius), (Lords{"Saturn", "Mars", "Mercury", "Mercury"}));
  EXPECT_EQ(zodiac_.LordsOf(aquarius - 1), (Lords{"Saturn", "Mars", "Saturn", "Jupiter"}));
  EXPECT_EQ(zodiac_.LordsOf(aquarius, Depth::Sign), (Lords{"Saturn", "", "", ""}));
  EXPECT_EQ(zodiac_.LordsOf(aquarius, Depth::Star), (Lords{"Saturn", "Mars", "", ""}));
  EXPECT_EQ(zodiac_.LordsOf(aquarius, Depth::Sub), (Lords{"Saturn", "Mars", "Mercury", ""}));
  // A sign border inside a sub cuts the span and not the sub.
  const Units taurus = kUnitsOfSign;
  EXPECT_EQ(zodiac_.SpanOf(taurus, Depth::Sub).Begin, taurus);
  EXPECT_EQ(zodiac_.WholeSub(taurus).Begin, zodiac_.WholeSub(taurus - 1).Begin);

  EXPECT_EQ(zodiac_.PositionText(0), "00°00'00\" Ari");
  EXPECT_EQ(zodiac_.PositionText(kUnitsOfCircle - 1), "29°59'59\" Pis");
  EXPECT_EQ(zodiac_.PositionText(UnitsOf(180 + 14 + 40 / 60.0 + 45.99 / 3600)), "14°40'45\" Lib");
  EXPECT_EQ(ArcText(12 * kUnitsOfMinute + 41 * kUnitsOfSecond - 1), "0°12'40\"");
  EXPECT_EQ(ArcText(UnitsOf(23.63152)), "23°37'53\"");
}

TEST(Units, ALongitudeIsBroughtOntoTheCircle) {
  EXPECT_EQ(UnitsOf(360), 0);
  EXPECT_EQ(UnitsOf(-1), kUnitsOfCircle - kUnitsOfDegree);
  EXPECT_EQ(UnitsOf(359.9999999), kUnitsOfCircle - 1);
  EXPECT_EQ(OnCircle(-1), kUnitsOfCircle - 1);
  EXPECT_EQ(OnCircle(2 * kUnitsOfCircle), 0);
  EXPECT_EQ(DegreesOf(kUnitsOfStar * 3), 40);
}

}  // namespace
}  // namespace orvex::exact
