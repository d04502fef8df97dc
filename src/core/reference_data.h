// The reference tables of the store in memory. They never change while the program runs; rows stand
// in table order.
#pragma once

#include <string>
#include <vector>

#include "core/store.h"

namespace orvex::core {

// zodiac_master: the signs. Lists of planets are names joined with ", ".
struct SignRow {
  int Rashi = 0;
  std::string Zodiac;
  std::string Element;
  std::string StartDegree;
  std::string EndDegree;
  std::string Gender;
  std::string SignType;
  bool Barren = false;
  bool Mute = false;
  bool Fruitful = false;
  bool Voice = false;
  std::string ExaltedPlanet;
  std::string DebilitatedPlanet;
  std::string BeneficPlanets;
  std::string MaleficPlanets;
  std::string NeutralPlanets;
  std::string RulingPlanet;
};

// star_master: the 27 stars.
struct StarRow {
  int Sequence = 0;
  std::string StarName;
  std::string StarLord;
  std::string Gender;
  std::string Gana;
  std::string Guna1;
  std::string Guna2;
  std::string Guna3;
};

// star_details: the 108 quarters of stars, in degrees within the sign and cumulative.
struct PadaRow {
  int StarId = 0;
  int Pada = 0;
  int Rashi = 0;
  double StartDegree = 0;
  double EndDegree = 0;
  double StartCDegree = 0;
  double EndCDegree = 0;
};

// ascendants: the 249 subs.
struct SubRow {
  int AscNo = 0;
  double AscPointBegin = 0;
  double AscPointEnd = 0;
  std::string RashiLord;
  int RasiLordNo = 0;
  std::string StarLord;
  std::string SubLord;
};

// planet_master.
struct PlanetInfo {
  int Id = 0;
  std::string PlanetName;
  std::string PlanetCode;
  int AstroNumber = 0;
  int DashaYears = 0;
  int DashaSequence = 0;
};

// tithi_master: half tithis by the Moon's degrees ahead of the Sun.
struct TithiRow {
  std::string Tithi;
  std::string Karan;
  std::string TithiType;
  double StartDegree = 0;
  double EndDegree = 0;
};

struct ReferenceData {
  std::vector<SignRow> Signs;
  std::vector<StarRow> Stars;
  std::vector<PadaRow> Padas;
  std::vector<SubRow> Subs;
  std::vector<PlanetInfo> Planets;
  std::vector<TithiRow> Tithis;
};

// Reads all tables from the store. StoreError where one is missing.
ReferenceData LoadReferenceData(const Store& store);

}  // namespace orvex::core
