#include "horoscope/catalogue.h"

namespace orvex::horoscope {

namespace {

using chart::HoroscopeCaptions;
using chart::HoroscopeModel;

template <auto Member>
const core::Table& TableOf(const HoroscopeModel& model) {
  return model.*Member;
}

template <auto Member>
const core::Table& PeriodListOf(const HoroscopeModel& model) {
  return model.Periods.*Member;
}

}  // namespace

// clang-format off
const std::vector<TableEntry>& HoroscopeTables() {
  using M = HoroscopeModel;
  using T = chart::DashaTree;
  static const std::vector<TableEntry> kTables = {
      {"HouseTable",        "Houses",              "Chart",         &TableOf<&M::HouseTable>},
      {"CuspTable",         "Cusps",               "Chart",         &TableOf<&M::CuspTable>},
      {"PlanetTable",       "Planets",             "Chart",         &TableOf<&M::PlanetTable>},
      {"StarTable",         "Stars",               "Chart",         &TableOf<&M::StarTable>},
      {"TransitNow",        "Transit now",         "Chart",         &TableOf<&M::TransitNow>},
      {"RulingPlanets",     "Ruling planets",      "Chart",         &TableOf<&M::RulingPlanets>},
      {"RotatedTable",      "Rotated houses",      "Chart",         &TableOf<&M::RotatedTable>},
      {"PlanetLevels",      "Planet levels",       "Significators", &TableOf<&M::PlanetLevels>},
      {"NadiTable",         "Nadi significators",  "Significators", &TableOf<&M::NadiTable>},
      {"NadiHouseTimes",    "Nadi house count",    "Significators", &TableOf<&M::NadiHouseTimes>},
      {"FourStepTable",     "Significations",      "Four step",     &TableOf<&M::FourStepTable>},
      {"FourStepRows",      "Four step check",     "Four step",     &TableOf<&M::FourStepRows>},
      {"DashaList",         "Dasha",               "Dasha",         &PeriodListOf<&T::DashaList>},
      {"BhuktiList",        "Bhukti",              "Dasha",         &PeriodListOf<&T::BhuktiList>},
      {"AntaraList",        "Antara",              "Dasha",         &PeriodListOf<&T::AntaraList>},
      {"SookshmaList",      "Sookshma",            "Dasha",         &PeriodListOf<&T::SookshmaList>},
      {"DBAPeriods",        "Selected periods",    "Dasha",         &TableOf<&M::DBAPeriods>},
      {"DBAHouseCount",     "House count",         "Dasha",         &TableOf<&M::DBAHouseCount>},
      {"PlanetAspectList",  "Planet aspects",      "Aspects",       &TableOf<&M::PlanetAspectList>},
      {"AspectGrid",        "Aspects to cusps",    "Aspects",       &TableOf<&M::AspectGrid>},
      {"AshtakavargaTable", "Ashtakavarga",        "Ashtakavarga",  &TableOf<&M::AshtakavargaTable>},
      {"KarakaTable",       "Jaimini karakas",     "Sequences",     &TableOf<&M::KarakaTable>},
      {"BnnTable",          "Bhrigu Nandi Nadi",   "Sequences",     &TableOf<&M::BnnTable>},
      {"LalKitabYear",      "Annual chart",        "Annual chart",  &TableOf<&M::LalKitabYear>},
      {"LoShuGrid",         "Lo Shu grid",         "Lo Shu",        &TableOf<&M::LoShuGrid>},
      {"LoShuPlanes",       "Planes",              "Lo Shu",        &TableOf<&M::LoShuPlanes>},
      {"LoShuAnalysis",     "Numbers",             "Lo Shu",        &TableOf<&M::LoShuAnalysis>},
      {"ImpactTable",       "Impacts",             "Vastu",         &TableOf<&M::ImpactTable>},
      {"HitsTable",         "Hits",                "Vastu",         &TableOf<&M::HitsTable>},
      {"VastuPads",         "Pads",                "Vastu",         &TableOf<&M::VastuPads>},
      {"RemedyTable",       "Remedies",            "Remedies",      &TableOf<&M::RemedyTable>},
  };
  return kTables;
}

const std::vector<CaptionEntry>& HoroscopeCaptionTexts() {
  using C = HoroscopeCaptions;
  static const std::vector<CaptionEntry> kCaptions = {
      {"Title",             &C::Title},
      {"Date",              &C::Date},
      {"City",              &C::City},
      {"Offset",            &C::Offset},
      {"Latitude",          &C::Latitude},
      {"Longitude",         &C::Longitude},
      {"Sunrise",           &C::Sunrise},
      {"Sunset",            &C::Sunset},
      {"Tithi",             &C::Tithi},
      {"YogaKaran",         &C::YogaKaran},
      {"Nakshatra",         &C::Nakshatra},
      {"AscendantSign",     &C::AscendantSign},
      {"Numerology",        &C::Numerology},
      {"NumerologyTag",     &C::NumerologyTag},
      {"DashaBalance",      &C::DashaBalance},
      {"CurrentDBA",        &C::CurrentDBA},
      {"PartOfFortune",     &C::PartOfFortune},
      {"BhriguBindu",       &C::BhriguBindu},
      {"VarnaGana",         &C::VarnaGana},
      {"NadiYoni",          &C::NadiYoni},
      {"VasyaRajju",        &C::VasyaRajju},
      {"BadhakHouse",       &C::BadhakHouse},
      {"Rahu",              &C::Rahu},
      {"Ketu",              &C::Ketu},
      {"SaturnAspects",     &C::SaturnAspects},
      {"MarsAspects",       &C::MarsAspects},
      {"JupiterAspects",    &C::JupiterAspects},
      {"PlanetPositions",   &C::PlanetPositions},
      {"StatusBar",         &C::StatusBar},
      {"RulingPlanetsText", &C::RulingPlanetsText},
      {"LoShuTitle",        &C::LoShuTitle},
      {"LoShuDate",         &C::LoShuDate},
      {"RunningYear",       &C::RunningYear},
  };
  return kCaptions;
}
// clang-format on

}  // namespace orvex::horoscope
