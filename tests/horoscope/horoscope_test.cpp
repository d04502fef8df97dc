#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>

#include "chart/client_saving.h"
#include "chart/dasha.h"
#include "chart/dasha_tree.h"
#include "chart/significators.h"
#include "chart/transit_now.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "horoscope/catalogue.h"
#include "horoscope/create_horoscope.h"
#include "horoscope/recalculation.h"
#include "support/test_home.h"
#include "vedic/divisional.h"

namespace orvex::horoscope {
namespace {

using chart::HoroscopeModel;
using chart::PeriodColumn;
using chart::PlanetColumn;

class Horoscope : public testing::Test {
 protected:
  Horoscope() { session_->StoreConnection.ExecuteScript("pragma synchronous = off"); }

  std::int32_t AddClient(const std::string& birth, const std::string& latitude,
                         const std::string& longitude, const std::string& offset) {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    form.FullName = "Client";
    form.Birth = test::Moment(birth);
    form.Latitude = latitude;
    form.Longitude = longitude;
    form.Offset = offset;
    const core::SaveResult saved = chart::SaveNewClient(*session_, form, 1);
    EXPECT_FALSE(saved.Refused) << birth << " " << latitude << " " << longitude << " " << offset;
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
    return saved.Id;
  }

  OpenedHoroscope Open(std::int32_t id) {
    std::optional<OpenedHoroscope> opened = CreateHoroscope(*session_, id);
    EXPECT_TRUE(opened);
    return std::move(*opened);
  }

  OpenedHoroscope Sample() {
    return Open(AddClient("1985-09-05 11:58", "40.71427", "-74.00597", "-5"));
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

std::string TextsOf(const core::Table& table) {
  std::string texts;
  for (const core::Row& row : table.Rows) {
    for (const core::Cell& cell : row.Cells) {
      texts += cell.Text + "|" + cell.Tag + "|" + cell.Background + "|" + cell.Foreground + "\n";
    }
  }
  return texts;
}

std::string TextsOf(const HoroscopeModel& model) {
  std::string texts = model.Captions.Title + model.Captions.StatusBar;
  for (const TableEntry& entry : HoroscopeTables()) {
    texts += entry.Name + std::string("\n") +
             (std::string(entry.Name) == "RotatedTable" ? "" : TextsOf(entry.Of(model)));
  }
  return texts;
}

core::DateTime DateAt(const core::Cell& end, std::size_t side) {
  return core::ParseLongDateText(core::Split(end.Tag, '*').at(side)).value();
}

// Periods follow each other without a gap, from one date to another.
void ExpectChain(const core::Table& list, std::size_t endColumn, core::DateTime start,
                 core::DateTime end) {
  ASSERT_EQ(list.Rows.size(), 9U);
  for (const core::Row& row : list.Rows) {
    EXPECT_EQ(DateAt(row.Cells[endColumn], 0), start);
    start = DateAt(row.Cells[endColumn], 1);
    EXPECT_EQ(row.Cells[endColumn].Text, core::LongDateText(start, true));
  }
  EXPECT_EQ(start, end);
}

void ExpectSoundPeriods(const HoroscopeModel& model) {
  const chart::DashaTree& periods = model.Periods;
  const core::DateTime first = DateAt(periods.DashaList.Rows[0].Cells[3], 0);
  const core::DateTime last = DateAt(periods.DashaList.Rows[8].Cells[3], 1);
  EXPECT_EQ(core::PartsOf(last).Year - core::PartsOf(first).Year, 120);
  ExpectChain(periods.DashaList, 3, first, last);
  const std::pair<const core::Table*, std::size_t> levels[] = {{&periods.DashaList, 3},
                                                               {&periods.BhuktiList, 1},
                                                               {&periods.AntaraList, 1},
                                                               {&periods.SookshmaList, 1}};
  for (std::size_t level = 1; level < 4; ++level) {
    const auto& [parents, column] = levels[level - 1];
    const core::Cell& parent = parents->Rows[chart::SelectedRow(*parents).value()].Cells[column];
    const core::DateTime start = DateAt(levels[level].first->Rows[0].Cells[1], 0);
    ExpectChain(*levels[level].first, 1, start, DateAt(parent, 1));
  }
}

bool IsAscending(const std::string& houses) {
  std::int64_t last = 0;
  for (const std::string& house : core::SplitWords(houses)) {
    const std::int64_t number = core::ParseWhole(house).value();
    if (number <= last || number > 12) {
      return false;
    }
    last = number;
  }
  return true;
}

void ExpectSoundTables(const HoroscopeModel& model) {
  ASSERT_EQ(model.PlanetTable.Rows.size(), 9U);
  for (std::size_t row = 0; row < 9; ++row) {
    for (const PlanetColumn lord : {PlanetColumn::SignLord, PlanetColumn::StarLord,
                                    PlanetColumn::SubLord, PlanetColumn::SubSubLord}) {
      EXPECT_TRUE(chart::RowOfPlanet(model, chart::PlanetTag(model, row, lord)));
    }
    const std::string& house = chart::PlanetText(model, row, PlanetColumn::In);
    const std::string code = chart::PlanetTag(model, row, PlanetColumn::Stu);
    const auto cusp = static_cast<std::size_t>(core::ParseWhole(house).value()) - 1;
    EXPECT_TRUE(core::Contains(model.CuspTable.At(cusp, chart::CuspColumn::PlanetsSig).Text, code));
    EXPECT_TRUE(IsAscending(chart::PlanetText(model, row, PlanetColumn::Owner)));
    EXPECT_TRUE(IsAscending(model.NadiTable.At(row, chart::NadiColumn::Planet).Tag));
  }
  EXPECT_EQ(model.AshtakavargaTable.Rows.back().Cells.back().Text, "337");
  EXPECT_EQ(model.AspectGrid.Rows.size(), 15U);
  EXPECT_EQ(model.VastuPads.Rows.size(), 32U);
}

TEST_F(Horoscope, FiveHundredChartsKeepTheirProperties) {
  std::mt19937 random(3);
  std::uniform_int_distribution<int> minute(0, 126 * 365 * 1440);
  std::uniform_real_distribution<double> latitude(-50, 50);
  std::uniform_real_distribution<double> longitude(-180, 180);
  for (int i = 0; i < 500; ++i) {
    const core::DateTime birth = test::Moment("1900-01-01") + std::chrono::minutes(minute(random));
    const double east = longitude(random);
    const OpenedHoroscope opened = Open(
        AddClient(core::StoredDateTimeText(birth), core::FixedText(latitude(random), 5),
                  core::FixedText(east, 5), core::DoubleText(core::RoundHalfEven(east / 7.5) / 2)));
    ExpectSoundPeriods(opened.Model);
    ExpectSoundTables(opened.Model);
    if (HasFailure()) {
      FAIL() << opened.Model.Captions.Date << " " << opened.Model.Latitude << " "
             << opened.Model.Longitude << opened.Model.Captions.Offset;
    }
  }
}

TEST_F(Horoscope, RotatingAroundOrBackToOneGivesTheFirstTablesAgain) {
  OpenedHoroscope opened = Sample();
  const std::string birth = TextsOf(opened.Model);
  for (int turn = 0; turn < 2; ++turn) {
    for (int house = 2; house <= 12; ++house) {
      RotateNow(*session_, opened, house);
      EXPECT_NE(TextsOf(opened.Model), birth) << house;
      ExpectSoundTables(opened.Model);
    }
    RotateNow(*session_, opened, 1);
    EXPECT_EQ(TextsOf(opened.Model), birth);
  }
  EXPECT_THROW(RotateNow(*session_, opened, 13), std::invalid_argument);
}

TEST_F(Horoscope, ARotatedRowIsTheOneSoManyHousesOn) {
  OpenedHoroscope opened = Sample();
  const core::Table houses = opened.Model.HouseTable;
  const core::Table cusps = opened.Model.CuspTable;
  RotateNow(*session_, opened, 4);
  for (std::size_t row = 0; row < 12; ++row) {
    const std::size_t source = (row + 3) % 12;
    const core::Row& rotated = opened.Model.RotatedTable.Rows[row];
    EXPECT_EQ(rotated.Cells[0].Text, std::to_string(row + 1));
    EXPECT_EQ(rotated.Cells[1].Text, houses.At(source, chart::HouseColumn::Rashi).Text);
    EXPECT_EQ(rotated.Cells[5].Text, houses.At(source, chart::HouseColumn::RcPlanets).Text);
    EXPECT_EQ(opened.Model.CuspTable.At(row, chart::CuspColumn::Degree).Text,
              cusps.At(source, chart::CuspColumn::Degree).Text);
  }
  EXPECT_EQ(opened.Model.Captions.Title, "Horoscope for Client (Rotated to 4)");
  // From the first house the signs stand in the order of the zodiac.
  RotateNow(*session_, opened, 1);
  for (std::size_t row = 0; row < 12; ++row) {
    EXPECT_EQ(opened.Model.RotatedTable.Rows[row].Cells[1].Text, std::to_string(row + 1));
  }
}

TEST_F(Horoscope, WhatIsReadFromTheBirthStaysThroughARotation) {
  OpenedHoroscope opened = Sample();
  const HoroscopeModel& model = opened.Model;
  const auto divisions = [&opened] {
    std::string texts;
    for (const vedic::Division division : {vedic::Division::Navamsha, vedic::Division::Dashamsha}) {
      const vedic::DivisionChart chart = vedic::BuildDivision(opened.Birth, division);
      for (std::size_t house = 1; house <= 12; ++house) {
        texts += chart.North.at(house) + "|" + chart.East.at(house) + "|";
      }
    }
    return texts;
  };
  const auto tinted = [&model] {
    std::string cells;
    for (const core::Row& row : model.PlanetTable.Rows) {
      for (const core::Cell& cell : row.Cells) {
        cells += cell.Background.empty() ? '.' : 'T';
      }
    }
    return cells;
  };
  const std::string divided = divisions();
  const std::string annual = TextsOf(model.LalKitabYear);
  const std::string tint = tinted();
  EXPECT_EQ(std::count(tint.begin(), tint.end(), 'T'), 17);  // one row, all of it
  RotateNow(*session_, opened, 5);
  EXPECT_EQ(divisions(), divided);
  EXPECT_EQ(TextsOf(model.LalKitabYear), annual);
  EXPECT_EQ(tinted(), tint);
  const int year = model.RunningYear;
  ShowYear(opened, 7);
  ShowYear(opened, year);
  EXPECT_EQ(TextsOf(model.LalKitabYear), annual);
}

TEST_F(Horoscope, TheRunningPeriodsAreTheSameWhateverIsPicked) {
  OpenedHoroscope opened = Sample();
  const std::string running = opened.Model.Captions.CurrentDBA;
  const int year = opened.Model.RunningYear;
  chart::SelectPeriod(*session_, opened.Model, chart::DashaLevel::Dasha, 7);
  chart::SelectPeriod(*session_, opened.Model, chart::DashaLevel::Bhukti, 4);
  ShowYear(opened, 3);
  ShowYear(opened, year);
  EXPECT_EQ(opened.Model.Captions.CurrentDBA, running);
}

TEST_F(Horoscope, BothNodesOfNowAreRetrogradeAsInTheSky) {
  const OpenedHoroscope opened = Sample();
  const core::Table& now = opened.Model.TransitNow;
  int nodes = 0;
  for (std::size_t row = 0; row < now.Rows.size(); ++row) {
    const std::string& planet = now.At(row, chart::TransitNowColumn::Planet).Text;
    if (planet == "Rahu" || planet == "Ketu") {
      ++nodes;
      EXPECT_EQ(now.At(row, chart::TransitNowColumn::R).Text, "R") << planet;
    }
  }
  EXPECT_EQ(nodes, 2);
  EXPECT_EQ(now.At(0, chart::TransitNowColumn::R).Text, "");
}

TEST_F(Horoscope, ADrillDownRebuildsTheLevelsBelow) {
  OpenedHoroscope opened = Sample();
  HoroscopeModel& model = opened.Model;
  const struct {
    chart::DashaLevel level;
    std::size_t row;
    std::vector<const char*> first;
  } moves[] = {{chart::DashaLevel::Dasha, 3, {"Mars", "Mars"}},
               {chart::DashaLevel::Bhukti, 2, {"Jupiter"}},
               {chart::DashaLevel::Antara, 8, {}},
               {chart::DashaLevel::Sookshma, 5, {}}};
  chart::SelectPeriod(*session_, model, moves[0].level, moves[0].row);
  EXPECT_EQ(model.Periods.BhuktiList.At(0, PeriodColumn::Planet).Text, "Mars");
  chart::SelectPeriod(*session_, model, moves[1].level, moves[1].row);
  EXPECT_EQ(model.Periods.AntaraList.At(0, PeriodColumn::Planet).Text, "Jupiter");
  chart::SelectPeriod(*session_, model, moves[2].level, moves[2].row);
  EXPECT_EQ(model.Periods.SookshmaList.At(0, PeriodColumn::Planet).Text, "Rahu");
  chart::SelectPeriod(*session_, model, moves[3].level, moves[3].row);
  ExpectSoundPeriods(model);
  EXPECT_EQ(model.DBAPeriods.Rows[1].Cells[1].Text, chart::WithHouses(model, "Mars"));
  EXPECT_EQ(model.DBAPeriods.Rows[1].Cells[4].Text,
            chart::WithHouses(model, model.Periods.SookshmaList.At(5, PeriodColumn::Planet).Text));
}

TEST_F(Horoscope, ADayOnTheBorderOfTwoDashasLiesInNeither) {
  OpenedHoroscope opened = Sample();
  const core::Cell& end = opened.Model.Periods.DashaList.Rows[4].Cells[3];
  home_.Clock.Set(DateAt(end, 1));
  const OpenedHoroscope onBorder = Open(opened.Model.ClientId);
  EXPECT_EQ(chart::SelectedRow(onBorder.Model.Periods.DashaList), 0U);
  EXPECT_EQ(onBorder.Model.Periods.BhuktiList.At(0, PeriodColumn::Planet).Text, "Venus");
  home_.Clock.Set(DateAt(end, 1) + std::chrono::days(1));
  EXPECT_EQ(chart::SelectedRow(Open(opened.Model.ClientId).Model.Periods.DashaList), 5U);
}

TEST_F(Horoscope, TheFullTreeHasNinePartsALevelAndEndsWithItsParents) {
  const OpenedHoroscope opened = Sample();
  const std::pair<chart::TreeDepth, std::size_t> depths[] = {{chart::TreeDepth::Bhukti, 81},
                                                             {chart::TreeDepth::Antara, 729},
                                                             {chart::TreeDepth::Sookshma, 6561}};
  for (const auto& [depth, rows] : depths) {
    const auto tree = chart::FullDashaTree(session_->Reference, opened.Model, depth);
    ASSERT_EQ(tree.size(), rows);
    EXPECT_EQ(tree.back().End, DateAt(opened.Model.Periods.DashaList.Rows[8].Cells[3], 1));
    for (std::size_t i = 1; i < tree.size(); ++i) {
      ASSERT_EQ(tree[i].Start, tree[i - 1].End) << i;
    }
  }
}

TEST_F(Horoscope, BrokenStoresOpenWithEmptyCells) {
  const std::int32_t id = AddClient("1990-07-05 14:30", "19.07", "72.88", "5.5");
  const char* damages[] = {
      "Delete from client_planets where planetid = 2",
      "Update client_planets set degree = 360 where planetid = 1",
      "Update client_planets set degree = null, chalithouse = null where planetid = 8",
      "Update client_master set CuspDegree1 = null, CuspDegree7 = 360",
      "Update client_master set firstrashihouse = 14, birthdate = 'nonsense'",
      "Delete from star_master",
      "Delete from client_planets where planetid > 4",
      "Delete from planet_master where id = 5",
      "Delete from client_planets",
      "Delete from ascendants"};
  for (const char* damage : damages) {
    session_->StoreConnection.Execute(damage);
    session_->Reference = core::LoadReferenceData(session_->StoreConnection);
    OpenedHoroscope opened = Open(id);
    EXPECT_EQ(opened.Model.HouseTable.Rows.size(), 12U) << damage;
    EXPECT_NO_THROW(RotateNow(*session_, opened, 5)) << damage;
    EXPECT_NO_THROW(RotateNow(*session_, opened, 1)) << damage;
  }
  EXPECT_FALSE(CreateHoroscope(*session_, 4711));
}

TEST_F(Horoscope, ARecalculationChecksItsFieldsAndSavesNothing) {
  const OpenedHoroscope opened = Sample();
  const std::pair<const char*, std::function<void(RecalculationForm&)>> refusals[] = {
      {"Please enter a numeric value.", [](auto& form) { form.Offset = "x"; }},
      {"Incorrect Offset Value entered.", [](auto& form) { form.Offset = "27.5"; }},
      {"Latitude is a mandatory field.", [](auto& form) { form.Latitude = " "; }},
      {"Latitude is a numeric field.", [](auto& form) { form.Latitude = "x"; }},
      {"Longitude is a mandatory field.", [](auto& form) { form.Longitude = ""; }},
      {"Longitude is a numeric field.", [](auto& form) { form.Longitude = "y"; }},
      {"The moment lies outside the years 100 to 9999.",
       [](auto& form) { form.Shift.Days = 100'000'000'000; }}};
  for (const auto& [text, spoil] : refusals) {
    RecalculationForm form = OpenRecalculation(opened.Model);
    spoil(form);
    EXPECT_EQ(Recalculate(*session_, opened.Model, form).Refused->Text, text);
  }
  RecalculationForm form = OpenRecalculation(opened.Model);
  const Recalculation same = Recalculate(*session_, opened.Model, form);
  for (std::size_t row = 0; row < 12; ++row) {
    EXPECT_EQ(same.Cusps.At(row, WorkCuspColumn::Degree).Text,
              opened.Model.CuspTable.At(row, chart::CuspColumn::Degree).Text);
  }
  form.Shift = {0, 0, 4, 0};
  const Recalculation later = Recalculate(*session_, opened.Model, form);
  EXPECT_EQ(core::StoredDateTimeText(later.Birth), "1985-09-05 12:02:00");
  EXPECT_NE(later.Cusps.At(0, WorkCuspColumn::Degree).Text,
            same.Cusps.At(0, WorkCuspColumn::Degree).Text);
  EXPECT_EQ(TextsOf(Open(opened.Model.ClientId).Model), TextsOf(opened.Model));
}

TEST_F(Horoscope, ARecalculationHasThePeriodsOfItsOwnMoon) {
  const OpenedHoroscope opened = Sample();
  RecalculationForm form = OpenRecalculation(opened.Model);
  const Recalculation same = Recalculate(*session_, opened.Model, form);
  ASSERT_EQ(same.Dashas.Rows.size(), 9U);
  for (std::size_t row = 0; row < 9; ++row) {
    EXPECT_EQ(same.Dashas.At(row, chart::DashaColumn::EndDate).Tag,
              opened.Model.Periods.DashaList.At(row, chart::DashaColumn::EndDate).Tag);
  }
  EXPECT_EQ(same.DashaBalance, opened.Model.Captions.DashaBalance);
  // What a client born so much later has.
  form.Shift = {1, 3, 0, 0};
  const Recalculation later = Recalculate(*session_, opened.Model, form);
  const OpenedHoroscope born = Open(AddClient("1985-09-06 14:58", "40.71427", "-74.00597", "-5"));
  EXPECT_NE(later.DashaBalance, same.DashaBalance);
  EXPECT_EQ(later.DashaBalance, born.Model.Captions.DashaBalance);
  EXPECT_EQ(later.Dashas.At(0, chart::DashaColumn::EndDate).Tag,
            born.Model.Periods.DashaList.At(0, chart::DashaColumn::EndDate).Tag);
}

TEST_F(Horoscope, AHoroscopeOpensWithEmptyHouses) {
  // No cusp in the Moon's sign nor in the next.
  OpenedHoroscope opened = Open(AddClient("1971-06-18 00:19", "60.12", "20", "0"));
  EXPECT_EQ(session_->StoreConnection
                    .Query("Select count(*) as n from client_planets where rashihouse is null")
                    .Integer("n") > 0,
            true);
  for (const int house : {1, 4}) {
    RotateNow(*session_, opened, house);
    ASSERT_EQ(opened.Model.PlanetTable.Rows.size(), 9U);
    std::string codes;
    for (std::size_t row = 0; row < 12; ++row) {
      codes += chart::HouseText(opened.Model, row, chart::HouseColumn::RcPlanets) + " ";
    }
    EXPECT_EQ(core::SplitWords(codes).size(), 9U) << house;  // by sign, none is lost
  }
  RecalculationForm form = OpenRecalculation(opened.Model);
  EXPECT_FALSE(Recalculate(*session_, opened.Model, form).Refused);
}

TEST_F(Horoscope, TheYearOfLifeRunsFrom1To120AndAround) {
  const std::pair<const char*, int> cases[] = {{"2026-11-23", 1},
                                               {"2025-11-20", 2},
                                               {"1907-01-01", 120},
                                               {"1906-06-01", 1},
                                               {"1905-06-01", 2}};
  for (const auto& [birth, year] : cases) {
    EXPECT_EQ(Open(AddClient(std::string(birth) + " 10:00", "19", "72", "5.5")).Model.RunningYear,
              year)
        << birth;
  }
  OpenedHoroscope opened = Sample();
  EXPECT_THROW(ShowYear(opened, 121), std::invalid_argument);
  ShowYear(opened, 13);
  EXPECT_TRUE(core::Contains(opened.Model.Captions.CurrentDBA, "Current BCP House: 1"));
}

}  // namespace
}  // namespace orvex::horoscope
