#include <algorithm>

#include "core/exact_numbers.h"
#include "practice/cities.h"
#include "practice/client_list.h"
#include "practice/client_search.h"
#include "practice/groups.h"
#include "practice/records_home.h"
#include "practice/remedies.h"

namespace orvex::practice {
namespace {

using Strings = std::vector<std::string>;

class Search : public RecordsTest {
 protected:
  std::vector<std::string> Names(const SearchFilter& filter) const {
    std::vector<std::string> names;
    for (const core::Row& row : SearchClients(*session_, filter).Results.Rows) {
      names.push_back(row.Cells.front().Text);
    }
    return names;
  }

  // The same, with the cells read afterwards and the last row first.
  Strings NamesReadLate(const SearchFilter& filter) const {
    std::vector<FoundRow> found = FindRows(*session_, filter).Rows;
    std::reverse(found.begin(), found.end());
    Strings names;
    for (const core::Row& row : ReadFoundRows(*session_, filter, found)) {
      EXPECT_EQ(row.Tag, core::PaddedWhole(found.at(names.size()).ClientId, 1));
      names.push_back(row.Cells.at(0).Text);
    }
    std::reverse(names.begin(), names.end());
    return names;
  }
};

TEST_F(Search, EachFilterOfTheSearchNarrowsTheList) {
  Add("B", "1990-07-05 14:30", [](auto& f) { f.Comments = "knee; 50% better"; });
  Add("A", "2001-01-01 00:00", [](auto& f) { f.Gender = "F"; });
  Add("C", "1980-05-05 05:05", [](auto& f) {
    f.Gender = "O";
    f.Horary = true;
    f.HoraryNumber = "249";
    f.HoraryQuestion = "?";
  });
  session_->StoreConnection.Execute("Update client_planets set inretro = 0 where planetid = 4");
  session_->StoreConnection.Execute(
      "Update client_planets set inretro = 1 where planetid = 4 and clientid = 2");
  // The true of stores that came from elsewhere.
  session_->StoreConnection.Execute(
      "Update client_planets set inretro = -1 where planetid = 5 and clientid = 3");
  session_->StoreConnection.Execute(
      "Update client_planets set inretro = 0 where planetid = 5 and clientid < 3");
  session_->StoreConnection.Execute("Update client_master set cuspdegree1 = 29.99 where id = 1");
  session_->StoreConnection.Execute("Update client_master set cuspdegree1 = 330 where id = 2");
  session_->StoreConnection.Execute("Update client_master set cuspdegree1 = 359.99 where id = 3");
  const core::DateTime day = test::Moment("1990-07-05");
  const std::pair<Strings, SearchFilter> cases[] = {
      {{"A", "B", "C"}, {}},
      {{"A"}, {.Gender = "F"}},
      {{"C"}, {.Gender = "O"}},
      {{"A"}, {.RetrogradePlanetId = 4}},
      {{"C"}, {.RetrogradePlanetId = 5}},
      {{"B"}, {.AscendantRashi = 1}},
      {{"A", "C"}, {.AscendantRashi = 12}},
      {{"A"}, {.Name = " a "}},
      {{"B"}, {.Name = "b", .Text = "knee"}},
      {{}, {.Name = "a", .Text = "knee"}},
      {{}, {.Name = "x' or '1' = '1"}},
      {{"B"}, {.Text = "  KNEE "}},
      {{}, {.Text = "it's"}},
      {{}, {.Text = "x'; delete from client_master; --"}},
      {{"A", "B"}, {.Dates = DateRange::After, .From = day}},
      {{"C"}, {.Dates = DateRange::Before, .From = day}},
      {{"B", "C"},
       {.Dates = DateRange::Between,
        .From = test::Moment("1980-05-05 05:05"),
        .To = test::Moment("1990-07-05 14:30")}},
      {{"A", "B", "C"}, {.GroupIds = std::vector<std::int32_t>{1, 2}}},
      {{}, {.GroupIds = std::vector<std::int32_t>{2}}}};
  for (const auto& [names, filter] : cases) {
    EXPECT_EQ(Names(filter), names) << filter.Text << filter.Gender << filter.AscendantRashi;
    EXPECT_EQ(NamesReadLate(filter), names) << filter.Text << filter.Gender;
  }
  EXPECT_EQ(Count("client_master"), 3);
  const SearchResult all = SearchClients(*session_, {});
  EXPECT_EQ(all.ResultLine, "Found 3 record(s). Double click on a record to View Horoscope.");
  EXPECT_EQ(all.Results.At(2, ClientResultColumn::BirthDate).Text, "5 May 1980 (249)");
  EXPECT_EQ(all.Results.At(2, ClientResultColumn::Gender).Text, "Other");
  EXPECT_EQ(all.Results.Rows[2].Tag, "3");
  EXPECT_EQ(SearchClients(*session_, {.Text = "nowhere"}).ResultLine, "Found 0 record(s).");
  const SearchResult refused = SearchClients(*session_, {.GroupIds = std::vector<std::int32_t>{}});
  EXPECT_EQ(refused.Refused->Text, "You need to select at least one Group from the list.");
  EXPECT_EQ(refused.ResultLine, "Search Result(s):");
}

TEST_F(Search, AQuoteInANameIsPartOfIt) {
  Add("Mary O'Brien");
  Add("Mary Brien");
  EXPECT_EQ(Names({.Name = "o'b"}), Strings{"Mary O'Brien"});
}

TEST_F(Search, RemediesAreFoundByTheirOwnFilters) {
  const std::int32_t id = Add("A");
  Add("B");
  const core::DateTime date = test::Moment("2026-01-02");
  for (const char* problem : {"Sleep", "Work"}) {
    SaveNewRemedy(*session_, {problem[0] == 'S' ? 2 : 0, problem, "Pearl", date}, id);
  }
  const auto count = [this](SearchFilter filter) {
    filter.Mode = SearchMode::Remedies;
    return Names(filter).size();
  };
  EXPECT_EQ(count({}), 2U);  // two remedies are two rows
  EXPECT_EQ(count({.Name = "A"}), 2U);
  EXPECT_EQ(count({.Name = "B"}), 0U);
  EXPECT_EQ(count({.Text = "sleep"}), 1U);
  EXPECT_EQ(count({.Text = "pearl"}), 2U);
  EXPECT_EQ(count({.ForPlanetId = 2}), 1U);
  EXPECT_EQ(count({.ForPlanetId = 0}), 1U);
  EXPECT_EQ(count({.Dates = DateRange::After, .From = date}), 0U);
  EXPECT_EQ(count({.Gender = "F"}), 0U);
  const SearchResult all = SearchClients(*session_, {.Mode = SearchMode::Remedies});
  EXPECT_EQ(all.Results.At(0, RemedyResultColumn::RemedyDate).Text, "2 January 2026");
  EXPECT_EQ(all.Results.Columns.size(), 8U);
}

TEST_F(Search, ATypedTextThatMakesAnEndlessStatementFindsNothingAfterTwoSeconds) {
  Add("A", "1990-07-05 14:30", [](auto& f) { f.Comments = "knee"; });
  const std::string endless =
      "x%' or (with recursive n(i) as (select 1 union all select i + 1 from n) "
      "select count(*) from n) > 0 or cm.comments like '%";
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_EQ(SearchClients(*session_, {.Text = endless}).ResultLine, "Found 0 record(s).");
  const auto took = std::chrono::steady_clock::now() - begin;
  EXPECT_GE(took, std::chrono::milliseconds(1900));
  EXPECT_LT(took, std::chrono::seconds(10));
  EXPECT_EQ(Names({.Text = "knee"}), Strings{"A"});  // the limit goes with its statement
}

TEST_F(Search, EveryListStandsInOneOrderWithoutCase) {
  const Strings wanted = {"abe", "Ben", "\xC3\x89mile", "\xC3\xA9va", "Zoe"};
  for (const std::size_t next : {4U, 1U, 3U, 0U, 2U}) {
    Add(wanted[next]);
    AddGroup(*session_, wanted[next]);
    SaveNewRemedy(*session_, {0, "Sleep", "Pearl", {}},
                  static_cast<std::int32_t>(Count("client_master")));
    SaveNewCity(*session_, {"One order " + wanted[next], "Europe/Rome", "1", "1", "1"});
  }
  const auto texts = [](const core::Table& table) {
    Strings shown;
    for (const core::Row& row : table.Rows) {
      shown.push_back(row.Cells.front().Text);
    }
    return shown;
  };
  EXPECT_EQ(texts(LoadClientsOfGroup(*session_, 1)), wanted);
  EXPECT_EQ(Names({}), wanted);
  EXPECT_EQ(Names({.Mode = SearchMode::Remedies}), wanted);
  Strings groups = wanted;
  groups.insert(groups.begin() + 4, "General");
  EXPECT_EQ(texts(LoadGroups(*session_)), groups);
  Strings cities = wanted;
  for (std::string& city : cities) {
    city.insert(0, "One order ");
  }
  EXPECT_EQ(texts(SearchCities(*session_, "One order")), cities);
}

}  // namespace
}  // namespace orvex::practice
