#include "panchang/day_tables.h"

#include <algorithm>
#include <array>

#include "chart/zodiac_lookups.h"

namespace orvex::panchang {

namespace {

struct SolarMonth {
  const char* Ritu;
  const char* Masa;
};

struct BirdOfStar {
  const char* Star;
  const char* Bright;
  const char* Dark;
};

// clang-format off

// Aries first.
constexpr std::array<SolarMonth, 12> kMonths = {{
    {"Vasant",  "Chaitra"},
    {"Grishma", "Vaishakha"},
    {"Grishma", "Jyaishtha"},
    {"Varsha",  "Ashadha"},
    {"Varsha",  "Shravana"},
    {"Sharad",  "Bhadrapada"},
    {"Sharad",  "Ashvayuja"},
    {"Hemant",  "Kartika"},
    {"Hemant",  "Margashirsha"},
    {"Shishir", "Pushya"},
    {"Shishir", "Magha"},
    {"Vasant",  "Phalguna"},
}};

constexpr std::array<BirdOfStar, 27> kBirds = {{
    {"Ashwini",          "Vulture", "Peacock"},
    {"Bharani",          "Vulture", "Peacock"},
    {"Krittika",         "Vulture", "Peacock"},
    {"Rohini",           "Vulture", "Peacock"},
    {"Mrigshirsha",      "Vulture", "Peacock"},
    {"Ardra",            "Owl",     "Cock"},
    {"Punarvasu",        "Owl",     "Cock"},
    {"Pushya",           "Owl",     "Cock"},
    {"Ashlesha",         "Owl",     "Cock"},
    {"Magha",            "Owl",     "Cock"},
    {"Purvaphalguni",    "Owl",     "Cock"},
    {"Uttaraphalguni",   "Crow",    "Crow"},
    {"Hasta",            "Crow",    "Crow"},
    {"Chitra",           "Crow",    "Crow"},
    {"Swati",            "Crow",    "Crow"},
    {"Vishakha",         "Crow",    "Crow"},
    {"Anuradha",         "Cock",    "Owl"},
    {"Jyeshtha",         "Cock",    "Owl"},
    {"Mula",             "Cock",    "Owl"},
    {"Purvashadha",      "Cock",    "Owl"},
    {"Uttarashadha",     "Cock",    "Owl"},
    {"Shravana",         "Peacock", "Vulture"},
    {"Dhanishtha",       "Peacock", "Vulture"},
    {"Shatbhisha",       "Peacock", "Vulture"},
    {"Purvabhadrapada",  "Peacock", "Vulture"},
    {"Uttarabhadrapada", "Peacock", "Vulture"},
    {"Revati",           "Peacock", "Vulture"},
}};

constexpr std::array<Ganapathi, 16> kGanapathis = {{
    {"Padyami",    "Bala Ganapathi",      "Ruling Planet: Sun | Deity: Agni"},
    {"Vidiya",     "Taruna Ganapathi",    "Ruling Planet: Moon | Deity: Brahma"},
    {"Tadiya",     "Bhakti Ganapathi",    "Ruling Planet: Mars | Deity: Gauri"},
    {"Chavithi",   "Veera Ganapathi",     "Ruling Planet: Mercury | Deity: Ganapathi"},
    {"Panchimi",   "Shakti Ganapathi",    "Ruling Planet: Jupiter | Deity: Naga"},
    {"Sashti",     "Dhwija Ganapathi",    "Ruling Planet: Venus | Deity: Kartikeya/Muruga"},
    {"Saptami",    "Siddhi Ganapathi",    "Ruling Planet: Saturn | Deity: Indra/Surya"},
    {"Ashtami",    "Ucchistha Ganapathi", "Ruling Planet: Rahu | Deity: Durga/Kala Bhairava"},
    {"Navami",     "Vighna Ganapathi",    "Ruling Planet: Sun | Deity: Yama"},
    {"Dasimi",     "Kshipra Ganapathi",   "Ruling Planet: Moon | Deity: Dharmaraja"},
    {"Ekadasi",    "Heramha Ganapathi",   "Ruling Planet: Mars | Deity: Kubera/Vishwadeva"},
    {"Dwadasi",    "Lakshmi Ganapathi",   "Ruling Planet: Mercury | Deity: Vishnu"},
    {"Triodasi",   "Maha Ganapathi",      "Ruling Planet: Jupiter | Deity: Nandi/Kamadeva"},
    {"Chaturdasi", "Vijaya Ganapathi",    "Ruling Planet: Venus | Deity: Rudra/Shiva"},
    {"Purnima",    "Niruttha Ganapathi",  "Ruling Planet: Saturn | Deity: Lakshmi/Saraswati"},
    {"Amavasya",   "Niruttha Ganapathi",  "Ruling Planet: Rahu | Deity: Pitris"},
}};
// clang-format on

const SolarMonth* MonthOf(double sunDegree) {
  const int rashi = chart::RashiOfDegree(sunDegree);
  return rashi == 0 ? nullptr : &kMonths.at(static_cast<std::size_t>(rashi) - 1);
}

}  // namespace

std::string RituOf(double sunDegree) {
  const SolarMonth* month = MonthOf(sunDegree);
  return month == nullptr ? "" : month->Ritu;
}

std::string MasaOf(double sunDegree) {
  const SolarMonth* month = MonthOf(sunDegree);
  return month == nullptr ? "" : month->Masa;
}

int VikramSamvatYear(core::DateTime today) {
  constexpr int kApril = 4;
  constexpr int kLastDayOfOldYear = 15;
  const core::DateParts date = core::PartsOf(today);
  const bool oldYear =
      date.Month < kApril || (date.Month == kApril && date.Day <= kLastDayOfOldYear);
  return date.Year + (oldYear ? 56 : 57);
}

std::string PanchaPakshiBird(std::string_view starName, char paksha) {
  const auto* found = std::find_if(kBirds.begin(), kBirds.end(),
                                   [starName](const auto& row) { return row.Star == starName; });
  if (found == kBirds.end()) {
    return "";
  }
  return paksha == 'S' ? found->Bright : found->Dark;
}

const Ganapathi* TithiGanapathi(std::string_view tithiName) {
  const auto* found =
      std::find_if(kGanapathis.begin(), kGanapathis.end(),
                   [tithiName](const Ganapathi& row) { return row.Tithi == tithiName; });
  return found == kGanapathis.end() ? nullptr : found;
}

}  // namespace orvex::panchang
