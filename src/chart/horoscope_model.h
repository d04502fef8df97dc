// The opened horoscope: tables of text cells that the analyses read and extend in a set order. It
// is read off the stored rows of a client; the chart is not computed again.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/date_text.h"
#include "core/table.h"

namespace orvex::chart {

// Twelve rows, house 1 first.
enum class HouseColumn {
  House,
  BcPlanets,   // codes by chalit house
  Rashi,       // sign number in the rashi chart
  RcPlanets,   // codes by sign
  RashiLord,   // tag: the bare name
  CuspDegree,  // as stored
  Asp3,        // houses that many places on, the row itself counted as 1
  Asp4,
  Asp5,
  Asp8,
  Asp9,
  Asp10,
  KpChartRashi,       // sign of the cusp
  KpChartRashiOwner,  // its lord
  Asp7,
  RetroRashi  // sign before, where a retrograde planet stands
};

// Twelve rows, house 1 first.
enum class CuspColumn {
  House,  // tag: the stored degree
  Degree,
  SignLord,
  StarLord,
  SubLord,
  SubSubLord,
  Nakshatra,
  Pada,
  PlanetsSig
};

// Nine rows in dasha order; the tag of a row is the planet's id.
enum class PlanetColumn {
  Planet,  // tag: the house whose sign is the planet's
  In,      // chalit house
  Rashi,   // tag: sign number
  Type,
  Owner,     // tag: the signified houses, chalit house first
  SignLord,  // lords carry their signified houses in brackets; tag: the bare name
  StarLord,
  SubLord,
  SubSubLord,
  Degree,  // tag: the same value
  Nakshatra,
  Pada,
  Gunas,
  Stu,   // tag: planet code
  DbEx,  // "DB" debilitated, "EX" exalted
  R,     // "R" retrograde; tag: the degree within the sign
  C      // "C" combust
};

// Places of the planets in the planet table, which stands in dasha order.
enum class PlanetPlace { Ketu, Venus, Sun, Moon, Mars, Rahu, Jupiter, Saturn, Mercury };

// All quarters of stars, in order.
enum class StarColumn {
  StarName,
  Gender,
  Guna1,
  Guna2,
  Guna3,
  StarLord,
  Rashi,
  Pada,
  StartDegree,
  EndDegree
};

enum class RulingColumn { Description, Planet };

// The four levels of periods. Only the Dasha list has the sequence and the years; the tag of an end
// date is start "*" end.
enum class DashaColumn { Sequence, Planet, DashaYears, EndDate };
enum class PeriodColumn { Planet, EndDate };

enum class AspectColumn { From, FromDir, To, ToDir, Angle };

// What the captions of the window and the report say. One that has a tag keeps a bare form for the
// report beside the shown one.
struct HoroscopeCaptions {
  std::string Title;
  std::string Date;
  std::string City;
  std::string Offset;
  std::string Latitude;
  std::string Longitude;
  std::string Sunrise;
  std::string Sunset;
  std::string Tithi;
  std::string YogaKaran;
  std::string Nakshatra;
  std::string NakshatraTag;
  std::string AscendantSign;
  std::string Numerology;
  std::string NumerologyTag;
  std::string DashaBalance;
  std::string CurrentDBA;
  std::string PartOfFortune;
  std::string BhriguBindu;
  std::string VarnaGana;
  std::string NadiYoni;
  std::string VasyaRajju;
  std::string BadhakHouse;
  std::string Rahu;
  std::string Ketu;
  std::string SaturnAspects;
  std::string MarsAspects;
  std::string JupiterAspects;
  std::string PlanetPositions;
  std::string StatusBar;
  std::string RulingPlanetsText;
  std::string LoShuTitle;
  std::string LoShuDate;
  std::string RunningYear;
};

// The selected row of a list is the one marked Selected; the drill-down and ShowDBA read only that.
struct DashaTree {
  core::Table DashaList;
  core::Table BhuktiList;
  core::Table AntaraList;
  core::Table SookshmaList;
};

struct HoroscopeModel {
  std::int32_t ClientId = 0;
  // The client's row, column by column, and the name of the city.
  std::vector<std::pair<std::string, std::string>> Client;

  bool Horary = false;
  std::string HoraryNo;
  std::string HoraryQuestion;
  std::string Comments;
  std::string Name;
  core::DateTime Birth{};  // local clock
  std::string Gender;
  std::string City;
  std::string Offset;
  std::string Latitude;
  std::string Longitude;
  std::string CuspDegree1;
  std::string SunDegree;
  std::string MoonDegree;
  int FirstRashiHouse = 0;
  int RunningYear = 1;         // year of life shown, 1 to 120
  std::string RunningPeriods;  // "Venus/Sun/Moon", whatever is picked in the lists
  int RotatedTo = 1;           // the house that counts as the first
  float BhriguBinduDegree = 0;
  // By number 1 to 9: how often it occurs, and the report's text of its cell ("*" between lines).
  std::array<int, 10> LoShuCount{};
  std::array<std::string, 10> LoShuCellText;

  HoroscopeCaptions Captions;

  core::Table TransitNow;
  core::Table HouseTable;
  core::Table CuspTable;
  core::Table PlanetTable;
  core::Table StarTable;
  core::Table RulingPlanets;
  core::Table RotatedTable;
  core::Table PlanetLevels;
  core::Table NadiTable;
  core::Table NadiHouseTimes;
  core::Table FourStepTable;
  core::Table FourStepRows;
  DashaTree Periods;
  core::Table DBAPeriods;
  core::Table DBAHouseCount;
  core::Table PlanetAspectList;
  core::Table AspectGrid;
  core::Table AshtakavargaTable;
  core::Table KarakaTable;
  core::Table BnnTable;
  core::Table LalKitabYear;
  core::Table LoShuGrid;
  core::Table LoShuPlanes;
  core::Table LoShuAnalysis;
  core::Table ImpactTable;
  core::Table HitsTable;
  core::Table VastuPads;
  core::Table RemedyTable;
};

inline constexpr std::size_t kHouses = 12;

// The text and the tag of a cell of the planet table.
const std::string& PlanetText(const HoroscopeModel& model, std::size_t row, PlanetColumn column);
const std::string& PlanetTag(const HoroscopeModel& model, std::size_t row, PlanetColumn column);

// The code of the planet of a row.
std::string CodeOfRow(const HoroscopeModel& model, std::size_t row);

// The text of a cell of the house table.
const std::string& HouseText(const HoroscopeModel& model, std::size_t row, HouseColumn column);

// The place of a row of the planet table.
constexpr std::size_t RowOf(PlanetPlace place) { return static_cast<std::size_t>(place); }

// The row of the planet of that name, or of that two-letter code in upper case; nothing where the
// table has none.
std::optional<std::size_t> RowOfPlanet(const HoroscopeModel& model, const std::string& name);
std::optional<std::size_t> RowOfCode(const HoroscopeModel& model, const std::string& code);

// The first house row whose planets of the rashi chart hold the code; nothing where none does.
std::optional<std::size_t> HouseOfCode(const HoroscopeModel& model, const std::string& code);

// The first house row with that sign in the rashi chart; nothing where there is none.
std::optional<std::size_t> HouseOfRashi(const HoroscopeModel& model, const std::string& rashi);

// A planet's houses: the one it stands in and those it owns, trimmed.
std::string HouseList(const HoroscopeModel& model, std::size_t row);

// "name (houses)" of a planet by its name; the bare name where the table has no such planet.
std::string WithHouses(const HoroscopeModel& model, const std::string& name);

}  // namespace orvex::chart
