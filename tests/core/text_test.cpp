#include "core/text.h"

#include <gtest/gtest.h>

#include "core/dialect.h"

namespace orvex::core {
namespace {

TEST(Text, EmailsNeedAnAddressAndADomainWithADot) {
  for (const char* good : {"a@b.c", "first.last@mail.example.com", "a@@b.c"}) {
    EXPECT_TRUE(IsValidEmail(good)) << good;
  }
  for (const char* bad : {"", "a", "@b.c", "a@b", "a@.c", "a@b..c", "a@b.c.", "a.b@c", "a@"}) {
    EXPECT_FALSE(IsValidEmail(bad)) << bad;
  }
}

TEST(Text, TheLastCompleteBracketCounts) {
  const std::pair<const char*, const char*> cases[] = {
      {"Rahu (2)", "2"},   {"a (1 2) b (3 4)", "3 4"},
      {"a (1) b (2", "1"}, {"none", ""},
      {"()", ""},          {"(x", ""},
      {"a) (b)", "b"}};
  for (const auto& [text, inside] : cases) {
    EXPECT_EQ(LastBracketText(text), inside) << text;
  }
}

TEST(Text, DigitSumsTakeDigitsAndBlanksOnly) {
  EXPECT_EQ(DigitSum("5 7 1990"), 31);
  EXPECT_EQ(DigitSum(""), 0);
  EXPECT_THROW(DigitSum("5/7"), std::invalid_argument);
}

TEST(Text, CharactersAreCountedNotBytes) {
  EXPECT_EQ(FirstCharacters("Zo\u00eb \u0905\u092c", 4), "Zo\u00eb ");
  EXPECT_EQ(FirstCharacters("ab", 5), "ab");
  EXPECT_EQ(FirstCharacters("\u0905\u092c", 1), "\u0905");
  EXPECT_EQ(CharacterCount("Zo\u00eb"), 3U);
  EXPECT_EQ(UpperCase("Zo\u00eb"), "ZO\u00eb");
  EXPECT_EQ(Trim(" \t a b \r\n"), "a b");
  EXPECT_EQ(Trim("  "), "");
}

TEST(Text, SplittingAndJoiningAreEachOthersReverse) {
  for (const char* text : {"", "a", "a*b", "*", "a**b*"}) {
    EXPECT_EQ(Join(Split(text, '*'), "*"), text);
  }
  EXPECT_EQ(SplitWords("  1  5 12 ").size(), 3U);
  EXPECT_EQ(ReplaceAll("aXbX", "X", "XX"), "aXXbXX");
  EXPECT_EQ(ReplaceAll("abc", "", "x"), "abc");
  EXPECT_EQ(CutAtNul(std::string_view("Sun\0xx", 6)), "Sun");
  EXPECT_EQ(Quoted("O'Neil's"), "'O''Neil''s'");
}

TEST(Dialect, DatesBecomeStoredTextsAndTextsInQuotesStay) {
  const std::pair<const char*, const char*> cases[] = {
      {"Select id from t where d = #07/05/1990 14:30:00#",
       "Select id from t where d = '1990-07-05 14:30:00'"},
      {"Select id from t where d between #1/2/1990# and #12/31/1990 11:59:59 PM#",
       "Select id from t where d between '1990-01-02 00:00:00' and '1990-12-31 23:59:59'"},
      {"Update t set n = '#5 O''Neil #', d = #01/01/2000#",
       "Update t set n = '#5 O''Neil #', d = '2000-01-01 00:00:00'"},
      {"Select Top 1 * from settings", "Select * from settings limit 1"},
      {"select top 12 id from t order by id", "Select id from t order by id limit 12"},
      {"Select topic from t", "Select topic from t"}};
  for (const auto& [statement, translated] : cases) {
    EXPECT_EQ(TranslateStatement(statement), translated);
  }
  EXPECT_THROW(TranslateStatement("Select #01/01/2000"), std::invalid_argument);
  EXPECT_THROW(TranslateStatement("Select #13/45/2000#"), std::invalid_argument);
}

}  // namespace
}  // namespace orvex::core
