#include "exact/exact_tables.h"

#include <cmath>
#include <functional>

#include "core/exact_numbers.h"

namespace orvex::exact {

namespace {

using std::chrono::seconds;

constexpr int kHouses = 12;
constexpr int kLongestSeconds = static_cast<int>(seconds(kLongestMove).count());

std::string LongitudeText(double degrees) { return core::FixedText(degrees, 6); }

// "+5:12", with the mark before it where the search ended.
std::string MoveText(const std::optional<int>& found, char sign) {
  constexpr int kMinute = 60;
  const int move = std::abs(found.value_or(kLongestSeconds));
  return std::string(found ? "" : "\u2026") + sign + core::PaddedWhole(move / kMinute, 1) + ":" +
         core::PaddedWhole(move % kMinute, 2);
}

Units CuspUnits(const astro::Cusps& cusps, std::size_t house) { return UnitsOf(cusps.at(house)); }

// Walks the seconds away from a moment, `step` 1 or -1, until every cusp has left its sub or the
// longest move is reached. Tells of each cusp once: the last move that still has the sub.
void WalkAway(const ExactSky& sky, const ExactZodiac& zodiac, core::DateTime ut, const Place& place,
              int step, const std::function<void(std::size_t, int)>& tell) {
  std::array<Span, kHouses> subs;
  const astro::Cusps now = sky.CuspsAt(ut, place);
  for (std::size_t house = 1; house <= kHouses; ++house) {
    subs.at(house - 1) = zodiac.SpanOf(CuspUnits(now, house), Depth::Sub);
  }
  std::array<bool, kHouses> left{};
  int open = kHouses;
  for (int away = 1; away <= kLongestSeconds && open > 0; ++away) {
    const astro::Cusps cusps = sky.CuspsAt(ut + seconds(step * away), place);
    for (std::size_t house = 0; house < kHouses; ++house) {
      const Units units = CuspUnits(cusps, house + 1);
      if (!left.at(house) && (units < subs.at(house).Begin || units >= subs.at(house).End)) {
        left.at(house) = true;
        --open;
        tell(house, step * (away - 1));
      }
    }
  }
}

// The arc to the end of the sub that lies ahead; a sign border inside the sub is no end.
std::string ToBorderText(const ExactZodiac& zodiac, Units units, bool retrograde) {
  const Span sub = zodiac.WholeSub(units);
  return ArcText(retrograde ? units - sub.Begin : sub.End - units);
}

template <typename ColumnName>
void FillLords(const Lords& lords, core::Table& table, std::size_t row, ColumnName signLord) {
  const std::array<const std::string*, 4> names = {&lords.Sign, &lords.Star, &lords.Sub,
                                                   &lords.SubSub};
  for (std::size_t level = 0; level < names.size(); ++level) {
    table.Rows.at(row).Cells.at(core::Table::Index(signLord) + level).Text = *names.at(level);
  }
}

}  // namespace

CuspHolds HoldsOf(const ExactSky& sky, const ExactZodiac& zodiac, core::DateTime ut,
                  const Place& place) {
  CuspHolds holds;
  WalkAway(sky, zodiac, ut, place, -1,
           [&holds](std::size_t cusp, int last) { holds.at(cusp).Since = last; });
  WalkAway(sky, zodiac, ut, place, 1,
           [&holds](std::size_t cusp, int last) { holds.at(cusp).Until = last + 1; });
  return holds;
}

std::vector<core::Column> ExactCuspColumns() {
  return {{"House"},    {"Position"},     {"Longitude"}, {"Sign Lord"}, {"Star Lord"},
          {"Sub Lord"}, {"Sub Sub Lord"}, {"Since"},     {"Until"},     {"Stored"}};
}

core::Table BuildExactCusps(const ExactZodiac& zodiac, const astro::Cusps& cusps,
                            const std::optional<CuspHolds>& holds) {
  core::Table table{ExactCuspColumns(), {}};
  for (std::size_t row = 0; row < kHouses; ++row) {
    const double longitude = cusps.at(row + 1);
    const Units units = UnitsOf(longitude);
    table.AddRow();
    table.At(row, ExactCuspColumn::House).Text =
        core::PaddedWhole(static_cast<std::int64_t>(row + 1), 1);
    table.At(row, ExactCuspColumn::Position).Text = zodiac.PositionText(units);
    table.At(row, ExactCuspColumn::Longitude).Text = LongitudeText(longitude);
    FillLords(zodiac.LordsOf(units), table, row, ExactCuspColumn::SignLord);
    if (holds) {
      table.At(row, ExactCuspColumn::Since).Text = MoveText(holds->at(row).Since, '-');
      table.At(row, ExactCuspColumn::Until).Text = MoveText(holds->at(row).Until, '+');
    }
  }
  return table;
}

core::Table BuildExactPlanets(const ExactSky& sky, const ExactZodiac& zodiac, core::DateTime ut,
                              const std::optional<astro::Cusps>& cusps) {
  core::Table table{{{"Planet"},
                     {"R"},
                     {"Position"},
                     {"Longitude"},
                     {"House"},
                     {"Sign Lord"},
                     {"Star Lord"},
                     {"Sub Lord"},
                     {"Sub Sub Lord"},
                     {"To Border"},
                     {"Stored"}},
                    {}};
  for (const Point planet : kPlanets) {
    const astro::Position position = sky.PositionOf(planet, ut);
    const Units units = UnitsOf(position.Longitude);
    const bool retrograde = position.Speed < 0;
    table.AddRow();
    const std::size_t row = table.Rows.size() - 1;
    table.At(row, ExactPlanetColumn::Planet).Text = PointName(planet);
    table.At(row, ExactPlanetColumn::R).Text = retrograde ? "R" : "";
    table.At(row, ExactPlanetColumn::Position).Text = zodiac.PositionText(units);
    table.At(row, ExactPlanetColumn::Longitude).Text = LongitudeText(position.Longitude);
    if (cusps) {
      table.At(row, ExactPlanetColumn::House).Text = core::PaddedWhole(HouseOf(*cusps, units), 1);
    }
    FillLords(zodiac.LordsOf(units), table, row, ExactPlanetColumn::SignLord);
    table.At(row, ExactPlanetColumn::ToBorder).Text = ToBorderText(zodiac, units, retrograde);
  }
  return table;
}

int HouseOf(const astro::Cusps& cusps, Units units) {
  for (std::size_t house = 1; house <= kHouses; ++house) {
    const Units begin = CuspUnits(cusps, house);
    const Units width = OnCircle(CuspUnits(cusps, house % kHouses + 1) - begin);
    if (OnCircle(units - begin) < width) {
      return static_cast<int>(house);
    }
  }
  return 1;
}

}  // namespace orvex::exact
