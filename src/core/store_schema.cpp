#include "core/store_schema.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "core/aspect_bands.h"
#include "core/exact_numbers.h"
#include "core/schema_version.h"
#include "core/text.h"
#include "core/tsv.h"
#include "core/zodiac_division.h"

namespace orvex::core {

namespace {

namespace fs = std::filesystem;

struct NewColumn {
  const char* Table;
  const char* Name;
  const char* Type;
};

// clang-format off
constexpr std::array<NewColumn, 21> kNewColumns = {{
    {"settings",      "StatusBarDegreeCalc",      "text(1)"},
    {"settings",      "AstrologerName",           "text(50)"},
    {"settings",      "AstrologerOrganization",   "text(50)"},
    {"settings",      "AstrologerContactDetails", "text(250)"},
    {"settings",      "SortByField",              "text(3)"},
    {"settings",      "ICGroupID",                "integer"},
    {"settings",      "Orbit_30",                 "integer"},
    {"settings",      "Orbit_60",                 "integer"},
    {"settings",      "Orbit_120",                "integer"},
    {"settings",      "Orbit_45",                 "integer"},
    {"settings",      "Orbit_90",                 "integer"},
    {"settings",      "Orbit_135",                "integer"},
    {"settings",      "Orbit_150",                "integer"},
    {"settings",      "Orbit_180",                "integer"},
    {"settings",      "ExactAyanamsa",            "text(6)"},
    {"settings",      "BirthMoment",              "text(1)"},
    {"settings",      "DegreesShown",             "text(1)"},
    {"settings",      "TextSize",                 "integer"},
    {"settings",      "Theme",                    "text(7)"},
    {"client_master", "HoraryQuestion",           "text(100)"},
    {"client_master", "AscDegreeType",            "text(1)"},
}};
// clang-format on

std::string ReadWhole(const fs::path& file) {
  std::ifstream stream(file);
  std::ostringstream text;
  text << stream.rdbuf();
  if (!stream || text.str().empty()) {
    throw std::runtime_error("the file " + file.string() + " could not be read");
  }
  return text.str();
}

void Fill(Store& store, const std::string& name, const TsvTable& table) {
  store.InsertRows(name, table.Columns, table.Rows);
}

// The cities with the offset of their zone, which the gazetteer keeps once a zone.
TsvTable CitiesWithOffsets(TsvTable cities, const TsvTable& zones) {
  std::map<std::string, std::string> offsets;
  for (const std::vector<std::string>& zone : zones.Rows) {
    offsets[zone.at(zones.ColumnOf("timezone"))] = zone.at(zones.ColumnOf("offset"));
  }
  // Regions and other names are for the search alone, which reads them from the gazetteer.
  const std::size_t stored = cities.ColumnOf("region");
  const std::size_t zoneOf = cities.ColumnOf("timezone");
  cities.Columns.resize(stored);
  cities.Columns.emplace_back("offset");
  for (std::vector<std::string>& city : cities.Rows) {
    city.resize(stored);
    city.push_back(offsets.at(city.at(zoneOf)));
  }
  return cities;
}

void FillDivisions(Store& store, const TsvTable& planets, const TsvTable& signs) {
  std::vector<DashaLord> cycle(planets.Rows.size());
  for (const std::vector<std::string>& planet : planets.Rows) {
    const auto sequence = ParseWhole(planet.at(planets.ColumnOf("dashasequence"))).value();
    cycle.at(static_cast<std::size_t>(sequence) - 1) = {
        planet.at(planets.ColumnOf("planetname")),
        static_cast<int>(ParseWhole(planet.at(planets.ColumnOf("dashayears"))).value())};
  }
  std::vector<std::string> signLords;
  for (const std::vector<std::string>& sign : signs.Rows) {
    signLords.push_back(sign.at(signs.ColumnOf("rulingplanet")));
  }
  Fill(store, "ascendants", DivideIntoSubs(cycle, signLords));
  Fill(store, "star_details", DivideIntoPadas());
  Fill(store, "tithi_master", DivideIntoHalfTithis());
}

void FillReferenceTables(Store& store, const fs::path& shippedData) {
  const TsvTable planets = ReadTsv(shippedData / "planet_master.tsv");
  const TsvTable signs = ReadTsv(shippedData / "zodiac_master.tsv");
  const TsvTable zones = ReadTsv(shippedData / "timezone_master.tsv");
  Fill(store, "planet_master", planets);
  Fill(store, "zodiac_master", signs);
  Fill(store, "star_master", ReadTsv(shippedData / "star_master.tsv"));
  Fill(store, "timezone_master", zones);
  Fill(store, "city_master", CitiesWithOffsets(ReadTsv(shippedData / "city_master.tsv"), zones));
  FillDivisions(store, planets, signs);
  store.Execute("insert into planet_positions (planetname) select planetname from planet_master");
}

void FillUserTables(Store& store) {
  store.Execute("Insert into group_master (groupname) values ('General')");
  store.Execute(
      "Insert into settings (usercityid, DefaultChartType, RahuKetuCalculation) "
      "values (19, 'N', 'M')");
}

// The lower-case names of the fields of a table.
std::set<std::string> FieldsOf(const Store& store, const std::string& table) {
  std::set<std::string> fields;
  for (const std::string& name : store.Query("Select Top 1 * from " + table).FieldNames()) {
    fields.insert(LowerCase(name));
  }
  return fields;
}

// Adds what a probe of the two tables does not find and gives the names of what was added.
std::set<std::string> AddMissingColumns(Store& store) {
  std::set<std::string> added;
  for (const char* table : {"settings", "client_master"}) {
    const std::set<std::string> fields = FieldsOf(store, table);
    for (const NewColumn& column : kNewColumns) {
      if (column.Table == std::string_view(table) && !fields.contains(LowerCase(column.Name))) {
        store.Execute(std::string("alter table ") + table + " add column " + column.Name + " " +
                      column.Type);
        added.insert(column.Name);
      }
    }
  }
  return added;
}

// The debilitations of early releases were wrong in six signs.
void RepairSignTable(Store& store) {
  store.Execute("Update zodiac_master set debilitatedplanet = '' where rashi in (2, 3, 5, 9, 11)");
  store.Execute("Update zodiac_master set debilitatedplanet = 'Jupiter' where rashi = 10");
}

void FillAddedColumns(Store& store, const std::set<std::string>& added) {
  if (added.contains("SortByField")) {
    store.Execute("Update settings set SortByField = 'CLN'");
  }
  if (added.contains("ICGroupID")) {
    const Result group = store.Query("Select top 1 id from group_master order by id");
    store.Execute("Update settings set ICGroupID = " + group.Text("id"));
  }
  if (added.contains("StatusBarDegreeCalc")) {
    store.Execute("Update settings set StatusBarDegreeCalc = 'A'");
  }
  for (const AspectBand& aspect : kAspects) {
    if (added.contains(aspect.OrbColumn)) {
      store.Execute(std::string("Update settings set ") + aspect.OrbColumn + " = " +
                    WholeText(aspect.DefaultOrb));
    }
  }
  if (added.contains("AscDegreeType")) {
    store.Execute("Update client_master set AscDegreeType = 'A'");
  }
}

std::int64_t SchemaOf(const Store& store) {
  return store.Query("Select user_version from pragma_user_version").Integer("user_version");
}

void FillMatters(Store& store, const fs::path& shippedData) {
  Fill(store, "matter_master", ReadTsv(shippedData / "matter_master.tsv"));
}

// A schema file after the tables, and what fills the tables that it makes. Rows that the user
// deletes or changes stay so: a step is done once.
struct SchemaStep {
  int Number;  // as the file says it in user_version
  const char* File;
  void (*FillTables)(Store&, const fs::path&) = nullptr;
};

void RunNewerSchemaFiles(Store& store, const fs::path& shippedData) {
  constexpr std::array<SchemaStep, 3> kSteps = {{{2, "002_indexes.sql"},
                                                 {3, "003_search_indexes.sql"},
                                                 {4, "004_judgement.sql", FillMatters}}};
  static_assert(kSteps.back().Number == kSchemaVersion);
  const std::int64_t present = SchemaOf(store);
  for (const SchemaStep& step : kSteps) {
    if (present < step.Number) {
      store.ExecuteScript(ReadWhole(shippedData / "schema" / step.File));
      if (step.FillTables != nullptr) {
        step.FillTables(store, shippedData);
      }
    }
  }
}

}  // namespace

bool NeedsUpgrade(const Store& store) { return SchemaOf(store) < kSchemaVersion; }

void CreateStore(const fs::path& file, const fs::path& shippedData) {
  const fs::path beside = file.string() + ".new";
  for (const char* leftover : {"", "-journal"}) {
    fs::remove(beside.string() + leftover);
  }
  {
    Store store = Store::Create(beside);
    Batch batch(store);
    store.ExecuteScript(ReadWhole(shippedData / "schema" / "001_tables.sql"));
    FillReferenceTables(store, shippedData);
    FillUserTables(store);
    batch.Commit();
    ApplyStoreUpgrades(store, shippedData);
  }
  fs::remove(file.string() + "-journal");  // of a store that is gone
  fs::rename(beside, file);
}

void ApplyStoreUpgrades(Store& store, const fs::path& shippedData) {
  Batch batch(store);
  const std::set<std::string> added = AddMissingColumns(store);
  RepairSignTable(store);
  FillAddedColumns(store, added);
  RunNewerSchemaFiles(store, shippedData);
  batch.Commit();
  SyncStore(store);
}

}  // namespace orvex::core
