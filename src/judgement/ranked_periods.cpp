#include "judgement/ranked_periods.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>

#include "core/exact_numbers.h"
#include "judgement/houses.h"
#include "judgement/matter_periods.h"
#include "judgement/matter_planets.h"

namespace orvex::judgement {

namespace {

constexpr std::array<MatterPeriodColumn, 3> kLordColumns = {
    MatterPeriodColumn::Dasha, MatterPeriodColumn::Bhukti, MatterPeriodColumn::Antara};

using HousesByPlanet = std::map<std::string, std::vector<int>>;

HousesByPlanet HousesOfPlanets(const core::Table& matterPlanets) {
  HousesByPlanet houses;
  for (std::size_t row = 0; row < matterPlanets.Rows.size(); ++row) {
    std::vector<int>& own = houses[matterPlanets.At(row, MatterPlanetColumn::Planet).Text];
    for (const MatterPlanetColumn column :
         {MatterPlanetColumn::Supporting, MatterPlanetColumn::Denying}) {
      const std::vector<int> named = HousesOfText(matterPlanets.At(row, column).Text);
      own.insert(own.end(), named.begin(), named.end());
    }
  }
  return houses;
}

core::Table RankedTable(const Matter& matter) {
  core::Table table{{{"#", 30},
                     {"Dasha", 80},
                     {"Bhukti", 80},
                     {"Antara", 80},
                     {"From", 100},
                     {"Until", 100},
                     {"Age", 45},
                     {"Houses", 90},
                     {"Score", 50},
                     {"Fruitful", 70}},
                    {}};
  for (const int house : HousesOf(matter)) {
    table.Columns.push_back({core::WholeText(house), 60, "", true});
  }
  return table;
}

class Ranking {
 public:
  Ranking(const core::Table& periods, const core::Table& planets, const Matter& matter)
      : periods_(periods),
        houses_(HousesOf(matter)),
        giving_(GivingHouses(matter)),
        signified_(HousesOfPlanets(planets)),
        fruitful_(FruitfulPlanets(planets)),
        table_(RankedTable(matter)) {}

  core::Table Build() {
    for (std::size_t row = 0; row < periods_.Rows.size(); ++row) {
      AddPeriod(row);
    }
    return std::move(table_);
  }

 private:
  void AddPeriod(std::size_t row) {
    const std::vector<core::Cell>& period = periods_.Rows[row].Cells;
    core::Row& ranked = table_.AddRow();
    ranked.Tag = periods_.At(row, MatterPeriodColumn::From).SortKey;
    ranked.Cells.front().Text = core::WholeText(static_cast<int>(row) + 1);
    std::copy(period.begin(), period.end(), ranked.Cells.begin() + 1);
    int fruitful = 0;
    for (const MatterPeriodColumn lord : kLordColumns) {
      fruitful += fruitful_.contains(periods_.At(row, lord).Text) ? 1 : 0;
    }
    table_.At(row, RankedColumn::Fruitful).Text = core::WholeText(fruitful) + " of 3";
    for (std::size_t place = 0; place < houses_.size(); ++place) {
      ranked.Cells.at(core::Table::Index(RankedColumn::FirstHouse) + place).Text =
          MarksOf(row, houses_[place]);
    }
  }

  std::string MarksOf(std::size_t row, int house) const {
    const bool gives = HoldsHouse(giving_, house);
    std::string marks;
    for (const MatterPeriodColumn lord : kLordColumns) {
      const auto found = signified_.find(periods_.At(row, lord).Text);
      const bool signifies = found != signified_.end() && HoldsHouse(found->second, house);
      marks += signifies ? (gives ? kGives : kDenies) : (gives ? kGivesNot : kDeniesNot);
    }
    return marks;
  }

  const core::Table& periods_;
  std::vector<int> houses_;
  std::vector<int> giving_;
  HousesByPlanet signified_;
  std::set<std::string> fruitful_;
  core::Table table_;
};

}  // namespace

core::Table BuildRankedPeriods(const core::Table& matterPeriods, const core::Table& matterPlanets,
                               const Matter& matter) {
  return Ranking(matterPeriods, matterPlanets, matter).Build();
}

}  // namespace orvex::judgement
