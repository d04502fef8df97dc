// Latitudes and longitudes as maps and almanacs write them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvex::core {

// The degrees north (east) of a text with the letter of its half: "18N31", "18n31'15", "18°31'N",
// "18 31 15 N", "N 18 31", "18.52 N"; south and west are negative. As a decimal text of at most
// five decimals. Nothing for any other text, a plain number too, for minutes or seconds of 60 or
// more, and beyond 90 (180) degrees.
std::optional<std::string> ReadTypedLatitude(std::string_view text);
std::optional<std::string> ReadTypedLongitude(std::string_view text);

}  // namespace orvex::core
