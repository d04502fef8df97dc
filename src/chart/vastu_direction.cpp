#include "chart/vastu_direction.h"

#include <array>

namespace orvex::chart {

namespace {

struct SignDirection {
  const char* Direction;
  const char* Pads;
};

// clang-format off
constexpr std::array<SignDirection, 12> kDirections = {{
    {"E/ESE 6",  "E4, E5, E6"},       // Aries
    {"WNW/NW",   "W6, W7, W8, N1"},   // Taurus
    {"NNW",      "N2, N3"},           // Gemini
    {"NNE",      "N6, N7"},           // Cancer
    {"ENE",      "E2, E3"},           // Leo
    {"N",        "N4, N5"},           // Virgo
    {"WSW",      "W2, W3"},           // Libra
    {"SSW",      "S6, S7"},           // Scorpio
    {"NE",       "N8, E1"},           // Sagittarius
    {"SSE/S",    "S2, S3, S4, S5"},   // Capricorn
    {"W",        "W4, W5"},           // Aquarius
    {"ESE 7/SE", "E7, E8, S1"},       // Pisces
}};
// clang-format on

bool HasDirection(int rashi) { return rashi >= 1 && rashi <= static_cast<int>(kDirections.size()); }

}  // namespace

std::string VastuDirection(int rashi) {
  return HasDirection(rashi) ? kDirections.at(static_cast<std::size_t>(rashi) - 1).Direction : "";
}

std::string VastuPadsOfSign(int rashi) {
  return HasDirection(rashi) ? kDirections.at(static_cast<std::size_t>(rashi) - 1).Pads : "";
}

}  // namespace orvex::chart
