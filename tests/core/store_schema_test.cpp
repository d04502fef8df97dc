#include "core/store_schema.h"

#include <gtest/gtest.h>

#include <set>

#include "core/text.h"
#include "support/test_home.h"

namespace orvex::core {
namespace {

std::string Script(const char* name) {
  return test::ReadFile(test::DataFolder() / "schema" / name);
}

// A store as an early release left it: the first tables only, wrong debilitations, no mark in the
// file, and two clients.
void MakeOldStore(const std::filesystem::path& file) {
  Store store = Store::Create(file);
  store.ExecuteScript(Script("001_tables.sql"));
  store.ExecuteScript(
      "insert into group_master (id, groupname) values (7, 'Old'), (9, 'Older');"
      "insert into settings (usercityid, DefaultChartType) values (1, 'S');"
      "insert into client_master (fullname, groupid) values ('One', 7), ('Two', 9);"
      "pragma application_id = 0;");
  for (int rashi = 1; rashi <= 12; ++rashi) {
    store.Execute("insert into zodiac_master (rashi, debilitatedplanet) values (" +
                  std::to_string(rashi) + ", 'Rahu')");
  }
}

// Tables and indexes with their columns, order aside.
std::set<std::string> SchemaOf(const Store& store) {
  std::set<std::string> schema;
  for (Result row = store.Query("Select type, name, sql from sqlite_master"); !row.AtEnd();
       row.Next()) {
    schema.insert(row.Text("type") + " " + row.Text("name"));
    if (row.Text("type") == "table") {
      for (Result column =
               store.Query("Select name, type from pragma_table_info('" + row.Text("name") + "')");
           !column.AtEnd(); column.Next()) {
        schema.insert(row.Text("name") + "." + column.Text("name") + " " + column.Text("type"));
      }
    }
  }
  return schema;
}

TEST(StoreSchema, AnOldStoreAndANewOneEndWithTheSameSchema) {
  const test::TempFolder folder;
  MakeOldStore(folder.Path() / "old");
  CreateStore(folder.Path() / "new", test::DataFolder());
  Store oldStore = Store::Open(folder.Path() / "old");
  Store newStore = Store::Open(folder.Path() / "new");
  ApplyStoreUpgrades(oldStore, test::DataFolder());
  ApplyStoreUpgrades(newStore, test::DataFolder());
  EXPECT_EQ(SchemaOf(oldStore), SchemaOf(newStore));
  EXPECT_GT(SchemaOf(newStore).size(), 100U);
}

TEST(StoreSchema, AnOldStoreGetsTheTextsAndOrbsOfANewOne) {
  const test::TempFolder folder;
  MakeOldStore(folder.Path() / "old");
  Store store = Store::Open(folder.Path() / "old");
  ApplyStoreUpgrades(store, test::DataFolder());
  const Result settings = store.Query("Select Top 1 * from settings");
  const std::pair<const char*, const char*> wanted[] = {
      {"SortByField", "CLN"},   {"ICGroupID", "7"}, {"StatusBarDegreeCalc", "A"},
      {"Orbit_30", "3"},        {"Orbit_60", "5"},  {"Orbit_120", "8"},
      {"Orbit_45", "3"},        {"Orbit_90", "5"},  {"Orbit_135", "3"},
      {"Orbit_150", "3"},       {"Orbit_180", "8"}, {"AstrologerName", ""},
      {"DefaultChartType", "S"}};
  for (const auto& [column, value] : wanted) {
    EXPECT_EQ(settings.Text(column), value) << column;
  }
  EXPECT_EQ(
      store.Query("Select count(*) as n from client_master where AscDegreeType = 'A'").Integer("n"),
      2);
}

TEST(StoreSchema, TheSignTableIsMendedOnEveryStartAndValuesOfTheUserStay) {
  const test::TempFolder folder;
  MakeOldStore(folder.Path() / "old");
  Store store = Store::Open(folder.Path() / "old");
  ApplyStoreUpgrades(store, test::DataFolder());
  store.Execute("Update zodiac_master set debilitatedplanet = 'Ketu' where rashi in (2, 10)");
  store.Execute("Update settings set Orbit_30 = 1, SortByField = 'EML'");
  store.Execute("Update client_master set AscDegreeType = 'M'");
  ApplyStoreUpgrades(store, test::DataFolder());
  std::string debilitated;
  for (Result row = store.Query("Select debilitatedplanet from zodiac_master order by rashi");
       !row.AtEnd(); row.Next()) {
    debilitated += row.Text("debilitatedplanet") + ",";
  }
  EXPECT_EQ(debilitated, "Rahu,,,Rahu,,Rahu,Rahu,Rahu,,Jupiter,,Rahu,");
  const Result settings = store.Query("Select Top 1 * from settings");
  EXPECT_EQ(settings.Text("Orbit_30") + settings.Text("SortByField"), "1EML");
  EXPECT_EQ(
      store.Query("Select count(*) as n from client_master where AscDegreeType = 'M'").Integer("n"),
      2);
}

TEST(StoreSchema, ANewStoreIsFilled) {
  const Store store = Store::Open(test::TemplateStore());
  const std::pair<const char*, int> counts[] = {
      {"city_master", 50390}, {"ascendants", 249},     {"star_details", 108}, {"star_master", 27},
      {"zodiac_master", 12},  {"planet_master", 9},    {"tithi_master", 60},  {"settings", 1},
      {"group_master", 1},    {"planet_positions", 9}, {"client_master", 0}};
  for (const auto& [table, count] : counts) {
    EXPECT_EQ(store.Query(std::string("Select count(*) as n from ") + table).Integer("n"), count)
        << table;
  }
  const Result city = store.Query("Select * from city_master where id = 19");
  EXPECT_EQ(
      city.Text("cityname") + city.Text("latitude") + city.Text("longitude") + city.Text("offset"),
      "Dubai25.0772555.309274");
  EXPECT_EQ(store.Query("Select count(*) as n from city_master where offset is null").Integer("n"),
            0);
  EXPECT_EQ(store.Query("Select groupname from group_master").Text("groupname"), "General");
}

// The classical tables in sums that a slip of the pen would break.
TEST(StoreSchema, TheClassicalTablesKeepTheirSums) {
  const Store store = Store::Open(test::TemplateStore());
  const std::pair<const char*, int> counts[] = {
      {"Select sum(dashayears) as n from planet_master", 120},
      {"Select sum(astronumber) as n from planet_master", 45},
      {"Select count(distinct exaltedplanet) as n from zodiac_master where exaltedplanet <> ''", 7},
      {"Select count(distinct debilitatedplanet) as n from zodiac_master "
       "where debilitatedplanet <> ''",
       7},
      {"Select count(*) as n from zodiac_master a, zodiac_master b "
       "where a.exaltedplanet <> '' and a.exaltedplanet = b.debilitatedplanet "
       "and abs(a.rashi - b.rashi) = 6",
       7},
      {"Select count(*) as n from star_master where gana = 'D'", 9},
      {"Select count(*) as n from star_master where gana = 'M'", 9},
      {"Select count(*) as n from star_master where gana = 'R'", 9},
      {"Select count(distinct guna1 || guna2 || guna3) as n from star_master", 27},
      {"Select count(distinct starlord) as n from star_master", 9},
      {"Select sum(barren) * 100 + sum(mute) * 10 + sum(fruitful) as n from zodiac_master", 333}};
  for (const auto& [statement, count] : counts) {
    EXPECT_EQ(store.Query(statement).Integer("n"), count) << statement;
  }
}

// Each of the seven planets stands in exactly one list of every sign.
TEST(StoreSchema, NoPlanetIsInTwoListsOfASign) {
  const Store store = Store::Open(test::TemplateStore());
  for (Result row = store.Query("Select * from zodiac_master"); !row.AtEnd(); row.Next()) {
    const std::string lists = row.Text("beneficplanets") + ", " + row.Text("maleficplanets") +
                              ", " + row.Text("neutralplanets") + ",";
    for (const char* planet : {"Sun", "Moon", "Mercury", "Venus", "Mars", "Jupiter", "Saturn"}) {
      EXPECT_EQ(Split(ReplaceAll(lists, std::string(planet) + ",", "|"), '|').size(), 2U)
          << planet << " in " << row.Text("zodiac");
    }
  }
}

}  // namespace
}  // namespace orvex::core
