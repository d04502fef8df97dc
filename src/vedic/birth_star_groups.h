// The attributes that the Moon's sign and star give, as groups of names. Names are those of the
// reference tables.
#pragma once

#include <array>
#include <string_view>

namespace orvex::vedic {

// The text for every one of the names; unused places are empty.
struct NameGroup {
  std::string_view Text;
  std::array<std::string_view, 9> Names;
};

// By sign.
extern const std::array<NameGroup, 4> kVarnas;

// By the letter that the table of stars gives.
extern const std::array<NameGroup, 3> kGanas;

// By star.
extern const std::array<NameGroup, 3> kNadis;

// By star. Abhijit is no star of the tables and stands here for completeness.
extern const std::array<NameGroup, 14> kYonis;

// By sign, but for Sagittarius and Capricorn, whose halves differ.
extern const std::array<NameGroup, 5> kVasyas;

// By star.
extern const std::array<NameGroup, 5> kRajjus;

}  // namespace orvex::vedic
