#include "horoscope/exact_reading.h"

#include <algorithm>
#include <array>
#include <vector>

#include "core/exact_numbers.h"
#include "core/text.h"
#include "exact/crossings_table.h"
#include "exact/exact_tables.h"
#include "horoscope/recalculation.h"
#include "horoscope/stored_moment.h"

namespace orvex::horoscope {

namespace {

using chart::CuspColumn;
using chart::PlanetColumn;
using exact::ExactCuspColumn;
using exact::ExactPlanetColumn;

// The columns of one lord in the exact and the stored table.
template <typename ExactColumn, typename StoredColumn>
struct LordPair {
  ExactColumn Exact;
  StoredColumn Stored;
};

constexpr std::array<LordPair<ExactCuspColumn, CuspColumn>, 4> kCuspLords = {
    {{ExactCuspColumn::SignLord, CuspColumn::SignLord},
     {ExactCuspColumn::StarLord, CuspColumn::StarLord},
     {ExactCuspColumn::SubLord, CuspColumn::SubLord},
     {ExactCuspColumn::SubSubLord, CuspColumn::SubSubLord}}};

constexpr std::array<LordPair<ExactPlanetColumn, PlanetColumn>, 4> kPlanetLords = {
    {{ExactPlanetColumn::SignLord, PlanetColumn::SignLord},
     {ExactPlanetColumn::StarLord, PlanetColumn::StarLord},
     {ExactPlanetColumn::SubLord, PlanetColumn::SubLord},
     {ExactPlanetColumn::SubSubLord, PlanetColumn::SubSubLord}}};

std::string MomentText(core::DateTime ut) { return core::StoredDateTimeText(ut) + " UT"; }

// Marks a lord that the stored chart names otherwise.
void Compare(core::Cell& cell, const std::string& stored, const std::string& caption,
             std::vector<std::string>& differing) {
  if (cell.Text != stored) {
    cell.Background = kDiffersColor;
    cell.Tooltip = "Stored: " + stored;
    differing.push_back(caption);
  }
}

void CompareCusps(const core::Table& stored, core::Table& cusps) {
  for (std::size_t row = 0; row < cusps.Rows.size() && row < stored.Rows.size(); ++row) {
    std::vector<std::string> differing;
    for (const auto& lord : kCuspLords) {
      Compare(cusps.At(row, lord.Exact), stored.At(row, lord.Stored).Text,
              cusps.Columns.at(core::Table::Index(lord.Exact)).Caption, differing);
    }
    cusps.At(row, ExactCuspColumn::Stored).Text = core::Join(differing, ", ");
  }
}

void ComparePlanet(const core::Table& stored, std::size_t storedRow, core::Table& planets,
                   std::size_t row) {
  std::vector<std::string> differing;
  const bool moon = planets.At(row, ExactPlanetColumn::Planet).Text == "Moon";
  for (const auto& lord : kPlanetLords) {
    if (moon && lord.Exact == ExactPlanetColumn::SubSubLord) {
      continue;
    }
    Compare(planets.At(row, lord.Exact), stored.At(storedRow, lord.Stored).Tag,
            planets.Columns.at(core::Table::Index(lord.Exact)).Caption, differing);
  }
  planets.At(row, ExactPlanetColumn::Stored).Text = core::Join(differing, ", ");
}

// A planet without a stored row is compared with nothing.
void ComparePlanets(const core::Table& stored, core::Table& planets) {
  for (std::size_t row = 0; row < planets.Rows.size(); ++row) {
    const std::string& name = planets.At(row, ExactPlanetColumn::Planet).Text;
    for (std::size_t at = 0; at < stored.Rows.size(); ++at) {
      if (stored.At(at, PlanetColumn::Planet).Text == name) {
        ComparePlanet(stored, at, planets, row);
      }
    }
  }
}

// The unit of an Ascendant that is given: the true border of a horary number, or the stored degree
// with its two decimals. Nothing where the Ascendant is computed.
std::optional<exact::Units> GivenAscendant(const exact::ExactZodiac& zodiac,
                                           const chart::ChartInput& input) {
  constexpr int kHundred = 100;
  if (input.Ascendant == chart::AscendantChoice::Horary) {
    const auto place = static_cast<std::size_t>(input.HoraryNumber) - 1;
    return zodiac.Spans(exact::Depth::Sub).at(place).Begin;
  }
  if (input.Ascendant == chart::AscendantChoice::ByHand) {
    const double degree = core::ToDouble(input.AscendantDegree);
    return exact::OnCircle(core::RoundToWhole(degree * kHundred) *
                           (exact::kUnitsOfDegree / kHundred));
  }
  return std::nullopt;
}

}  // namespace

core::DateTime ExactMomentUt(const chart::HoroscopeModel& model) {
  return core::DateAdd(core::DateInterval::Seconds,
                       -exact::OffsetOf(core::ToDouble(model.Offset)).count(), model.Birth);
}

ExactReading ReadToTheSecond(core::Session& session, const chart::HoroscopeModel& model,
                             const chart::BirthTables& birth, exact::Reading reading) {
  const chart::ChartInput input = ChartInputOf(session, model, OpenRecalculation(model));
  const core::DateTime ut = ExactMomentUt(model);
  ExactReading result;
  result.StoredMoment = MomentText(StoredMomentUt(session, model));
  const exact::ExactZodiac zodiac(session.Reference);
  const exact::ExactSky sky(session.Ephemeris, reading, session.State.RahuKetuCalculation);
  const exact::Place place{core::ToDouble(input.Latitude), core::ToDouble(input.Longitude)};
  const std::optional<exact::Units> given = GivenAscendant(zodiac, input);
  const std::optional<astro::Cusps> cusps =
      given ? sky.CuspsOfAscendant(*given, ut, place.Latitude) : sky.CuspsAt(ut, place);
  result.Moment = MomentText(ut);
  result.Ayanamsa = exact::ArcText(exact::UnitsOf(sky.AyanamsaAt(ut)));
  result.Reading = exact::ReadingName(reading);
  if (cusps) {
    result.Cusps = exact::BuildExactCusps(
        zodiac, *cusps,
        given ? std::nullopt : std::optional(exact::HoldsOf(sky, zodiac, ut, place)));
    CompareCusps(birth.CuspTable, result.Cusps);
  } else {
    result.Message = exact::kNoSuchAscendant;
    result.Cusps.Columns = exact::ExactCuspColumns();
  }
  result.Planets = exact::BuildExactPlanets(sky, zodiac, ut, cusps);
  ComparePlanets(birth.PlanetTable, result.Planets);
  return result;
}

}  // namespace orvex::horoscope
