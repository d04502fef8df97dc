#include "vedic/vastu_pads.h"

namespace orvex::vedic {

// clang-format off
const std::array<VastuPad, kPads> kVastuPads = {{
    {"N1",  2, "Rajyakasma",  "Roga",        kPlanWhite},
    {"N2",  3, "Rajyakasma",  "Naga",        kPlanWhite},
    {"N3",  3, "Mukhya",      "Mukhya",      kPlanWhite},
    {"N4",  6, "Bhallata",    "Bhallata",    kPlanWhite},
    {"N5",  6, "Soma",        "Soma",        kPlanGreen},
    {"N6",  4, "Bhujaga",     "Bhujaga",     kPlanWhite},
    {"N7",  4, "Aapah",       "Aditi",       kPlanBlue},
    {"N8",  9, "Aapah",       "Diti",        kPlanBlue},
    {"E1",  9, "Aapahvatsa",  "Shikhi",      kPlanGreen},
    {"E2",  5, "Aapahvatsa",  "Parjanya",    kPlanBlue},
    {"E3",  5, "Jayanta",     "Jayanta",     kPlanBlue},
    {"E4",  5, "Mahendra",    "Mahendra",    kPlanRed},
    {"E5",  1, "Ravi",        "Ravi",        kPlanGreen},
    {"E6",  1, "Satya",       "Satya",       kPlanYellow},
    {"E7", 12, "Savita",      "Brisha",      kPlanRed},
    {"E8", 12, "Savita",      "Akasha",      kPlanRed},
    {"S1", 12, "Savitra",     "Anila",       kPlanRed},
    {"S2", 10, "Savitra",     "Pusha",       kPlanGreen},
    {"S3", 10, "Vitatha",     "Vitatha",     kPlanYellow},
    {"S4", 10, "Grhaksta",    "Grhaksta",    kPlanYellow},
    {"S5", 10, "Yama",        "Yama",        kPlanYellow},
    {"S6",  8, "Gandharva",   "Gandharva",   kPlanWhite},
    {"S7",  8, "Indra",       "Bhringraja",  kPlanRed},
    {"S8",  8, "Indra",       "Mrigha",      kPlanRed},
    {"W1",  8, "Jaya",        "Pitra",       kPlanWhite},
    {"W2",  7, "Jaya",        "Dauvarika",   kPlanWhite},
    {"W3",  7, "Sugriva",     "Sugriva",     kPlanYellow},
    {"W4", 11, "Pushpadanta", "Pushpadanta", kPlanWhite},
    {"W5", 11, "Varuna",      "Varuna",      kPlanYellow},
    {"W6",  2, "Asura",       "Asura",       kPlanYellow},
    {"W7",  2, "Rudra",       "Sosa",        kPlanWhite},
    {"W8",  2, "Rudra",       "Papayaksma",  kPlanYellow},
}};
// clang-format on

}  // namespace orvex::vedic
