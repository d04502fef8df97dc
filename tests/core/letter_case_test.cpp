#include "core/letter_case.h"

#include <gtest/gtest.h>

namespace orvex::core {
namespace {

TEST(LetterCase, LettersOfEveryAlphabetHaveTheirUpperCase) {
  const std::pair<const char*, const char*> cases[] = {
      {"", ""},
      {"o'Neil 7", "O'NEIL 7"},
      {"\xC3\xA9t\xC3\xA9", "\xC3\x89T\xC3\x89"},
      {"\xD0\xBC\xD0\xB8\xD1\x80", "\xD0\x9C\xD0\x98\xD0\xA0"},
      {"\xE0\xA4\xB0\xE0\xA4\xAE", "\xE0\xA4\xB0\xE0\xA4\xAE"}};  // no case
  for (const auto& [text, upper] : cases) {
    EXPECT_EQ(UpperCaseOfAll(text), upper);
  }
}

// Each text stands before the next one in a list; those of one row stand at the same place.
TEST(LetterCase, TextsAreOrderedWithoutCaseAndAccents) {
  const std::vector<std::vector<const char*>> places = {{"", ""},
                                                        {"a", "A"},
                                                        {"ab", "AB",
                                                         "\xC3\xA4"
                                                         "b"},
                                                        {"abc", "AbC"},
                                                        {"b"},
                                                        {"e", "\xC3\x89"},
                                                        {"e a", "\xC3\xA9 A"},
                                                        {"Zoe", "zO\xC3\xAB"},
                                                        {"\xD0\xBC", "\xD0\x9C"},
                                                        {"\xE0\xA4\xB0"}};
  for (std::size_t i = 0; i < places.size(); ++i) {
    for (std::size_t j = 0; j < places.size(); ++j) {
      for (const char* left : places[i]) {
        for (const char* right : places[j]) {
          const int order = CompareFolded(left, right);
          EXPECT_EQ(order < 0, i < j) << left << " " << right;
          EXPECT_EQ(order > 0, i > j) << left << " " << right;
          EXPECT_EQ(FoldedText(left) < FoldedText(right), i < j) << left << " " << right;
        }
      }
    }
  }
}

}  // namespace
}  // namespace orvex::core
