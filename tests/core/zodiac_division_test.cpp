#include "core/zodiac_division.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/exact_numbers.h"

namespace orvex::core {
namespace {

const std::vector<DashaLord> kCycle = {{"Ketu", 7},     {"Venus", 20},  {"Sun", 6},
                                       {"Moon", 10},    {"Mars", 7},    {"Rahu", 18},
                                       {"Jupiter", 16}, {"Saturn", 19}, {"Mercury", 17}};
const std::vector<std::string> kSignLords = {"Mars",    "Venus",   "Mercury", "Moon",
                                             "Sun",     "Mercury", "Venus",   "Mars",
                                             "Jupiter", "Saturn",  "Saturn",  "Jupiter"};

// How many rows hold a degree, both borders counted in.
std::size_t Holding(const TsvTable& table, const char* begin, const char* end, double degree) {
  std::size_t found = 0;
  for (const auto& row : table.Rows) {
    found += ToDouble(row[table.ColumnOf(begin)]) <= degree &&
                     degree <= ToDouble(row[table.ColumnOf(end)])
                 ? 1U
                 : 0U;
  }
  return found;
}

TEST(ZodiacDivision, EveryHundredthOfTheCircleLiesInExactlyOneRow) {
  const TsvTable subs = DivideIntoSubs(kCycle, kSignLords);
  const TsvTable padas = DivideIntoPadas();
  const TsvTable tithis = DivideIntoHalfTithis();
  for (int hundredths = 0; hundredths <= 36000; hundredths += 7) {
    const double degree = hundredths / 100.0;
    ASSERT_EQ(Holding(subs, "ascpointbegin", "ascpointend", degree), 1U) << degree;
    ASSERT_EQ(Holding(padas, "startcdegree", "endcdegree", degree), 1U) << degree;
    ASSERT_EQ(Holding(tithis, "startdegree", "enddegree", degree), 1U) << degree;
  }
}

TEST(ZodiacDivision, The249SubsFollowTheCycleWithinEachStar) {
  const TsvTable subs = DivideIntoSubs(kCycle, kSignLords);
  ASSERT_EQ(subs.Rows.size(), 249U);
  std::size_t row = 0;
  for (std::size_t star = 0; star < 27; ++star) {
    for (std::size_t part = 0; part < 9; ++part) {
      const std::string& lord = kCycle[(star + part) % 9].Name;
      EXPECT_EQ(subs.Rows[row][6], lord);
      EXPECT_EQ(subs.Rows[row][5], kCycle[star % 9].Name);
      ++row;
      // A sub that a sign border crosses stands in two rows.
      if (row < subs.Rows.size() && subs.Rows[row][6] == lord &&
          subs.Rows[row][5] == kCycle[star % 9].Name) {
        EXPECT_EQ(std::fmod(ToDouble(subs.Rows[row][1]), 30), 0);
        ++row;
      }
    }
  }
  EXPECT_EQ(row, 249U);
}

// Borders of the published table of subs, as degrees and minutes of the circle.
TEST(ZodiacDivision, PublishedBordersStandWhereTheyShould) {
  struct {
    std::size_t number;
    const char* begin;
    const char* end;
    const char* lords;
  } const cases[] = {
      {1, "0", "0.77999", "Mars/Ketu/Ketu"},          // 0.00 to 0.4640
      {2, "0.78", "3", "Mars/Ketu/Venus"},            // to 3.00
      {10, "13.34", "15.55999", "Mars/Venus/Venus"},  // from 13.20
      {23, "30", "31.22999", "Venus/Sun/Rahu"},
      {84, "120", "120.77999", "Sun/Ketu/Ketu"},
      {249, "357.89", "360", "Jupiter/Mercury/Saturn"},  // from 357.5320
  };
  const TsvTable subs = DivideIntoSubs(kCycle, kSignLords);
  for (const auto& c : cases) {
    const auto& row = subs.Rows.at(c.number - 1);
    EXPECT_EQ(row[0], std::to_string(c.number));
    EXPECT_EQ(row[1], c.begin) << c.number;
    EXPECT_NEAR(ToDouble(row[2]), ToDouble(c.end), 0.00002) << c.number;
    EXPECT_EQ(row[3] + "/" + row[5] + "/" + row[6], c.lords) << c.number;
  }
}

TEST(ZodiacDivision, PadasRunWithinTheirSigns) {
  const TsvTable padas = DivideIntoPadas();
  ASSERT_EQ(padas.Rows.size(), 108U);
  for (std::size_t i = 0; i < padas.Rows.size(); ++i) {
    const auto& row = padas.Rows[i];
    EXPECT_EQ(row[0] + row[1] + row[2],
              std::to_string(i / 4 + 1) + std::to_string(i % 4 + 1) + std::to_string(i / 9 + 1));
    EXPECT_NEAR(ToDouble(row[5]) - ToDouble(row[3]), 30.0 * static_cast<double>(i / 9), 1e-9);
  }
  EXPECT_EQ(padas.Rows[8][4], "29.99999");
  EXPECT_EQ(padas.Rows[107][4], "30");
  EXPECT_EQ(padas.Rows[107][6], "360");
}

TEST(ZodiacDivision, TheMonthRunsFromKimstughnaToNaga) {
  const TsvTable tithis = DivideIntoHalfTithis();
  struct {
    std::size_t half;
    const char* tithi;
    const char* karan;
    const char* type;
  } const cases[] = {{0, "Padyami", "Kimstughna", "S"},  {1, "Padyami", "Bava", "S"},
                     {7, "Chavithi", "Vishti", "S"},     {8, "Panchimi", "Bava", "S"},
                     {28, "Purnima", "Vishti", "P"},     {29, "Purnima", "Bava", "P"},
                     {30, "Padyami", "Balava", "K"},     {56, "Chaturdasi", "Vishti", "K"},
                     {57, "Chaturdasi", "Shakuni", "K"}, {58, "Amavasya", "Chatushpada", "A"},
                     {59, "Amavasya", "Naga", "A"}};
  for (const auto& c : cases) {
    const auto& row = tithis.Rows.at(c.half);
    EXPECT_EQ(row[0] + row[1] + row[2], std::string(c.tithi) + c.karan + c.type) << c.half;
  }
}

}  // namespace
}  // namespace orvex::core
