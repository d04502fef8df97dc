#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/plain_letters.h"
#include "core/typed_coordinate.h"

namespace orvex::core {
namespace {

struct PlaceCase {
  const char* Typed;
  const char* Read;  // "" where it is refused
};

TEST(TypedCoordinate, IsReadByTheLetterOfItsHalf) {
  for (const PlaceCase& one : std::vector<PlaceCase>{{"18N31", "18.51667"},
                                                     {"18n31'12", "18.52"},
                                                     {"18°31'N", "18.51667"},
                                                     {"18° 31′ 12″ S", "-18.52"},
                                                     {"18 31 12 n", "18.52"},
                                                     {"N 18 31", "18.51667"},
                                                     {"18.52 N", "18.52"},
                                                     {"18N31.2", "18.52"},
                                                     {"90N", "90"},
                                                     {"0S00", "0"},
                                                     {"90N01", ""},
                                                     {"18N60", ""},
                                                     {"18N31'60", ""},
                                                     {"18.5N31", ""},
                                                     {"18.52", ""},
                                                     {"18°31'", ""},
                                                     {"-18N31", ""},
                                                     {"18N31S", ""},
                                                     {"18 31 N 12", ""},
                                                     {"73E52", ""},
                                                     {"N", ""},
                                                     {"18N31 12 5", ""},
                                                     {"1e5", ""}}) {
    EXPECT_EQ(ReadTypedLatitude(one.Typed).value_or(""), one.Read) << one.Typed;
  }
  for (const PlaceCase& one : std::vector<PlaceCase>{{"73E52", "73.86667"},
                                                     {"74W00'22", "-74.00611"},
                                                     {"74°0'22\"W", "-74.00611"},
                                                     {"180E", "180"},
                                                     {"180W01", ""},
                                                     {"18N31", ""},
                                                     {"72,5", ""}}) {
    EXPECT_EQ(ReadTypedLongitude(one.Typed).value_or(""), one.Read) << one.Typed;
  }
}

TEST(PlainWords, AreSmallAndWithoutMarks) {
  for (const PlaceCase& one : std::vector<PlaceCase>{{"São Tomé", "sao tome"},
                                                     {"ZÜRICH", "zurich"},
                                                     {"Shāhpur", "shahpur"},
                                                     {"Ḩalab", "halab"},
                                                     {"Hà Nội", "ha noi"},
                                                     {"Z\u0075\u0308rich", "zurich"},
                                                     {"Sana'a", "sanaa"},
                                                     {"Sana\u2019a", "sanaa"},
                                                     {"Stratford-upon-Avon", "stratford upon avon"},
                                                     {"  Spring   Hill, FL ", "spring hill fl"},
                                                     {"मुंबई", "मुंबई"}}) {
    EXPECT_EQ(PlainWords(one.Typed), one.Read) << one.Typed;
  }
}

}  // namespace
}  // namespace orvex::core
