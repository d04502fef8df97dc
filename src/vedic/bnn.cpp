#include "vedic/bnn.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "chart/planet_marks.h"
#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "vedic/bnn_aspects.h"
#include "vedic/karakas.h"

namespace orvex::vedic {

namespace {

using chart::HouseColumn;
using chart::HouseText;
using chart::PlanetColumn;

constexpr const char* kRahu = "RA";
constexpr const char* kKetu = "KE";

// A place in the order of degrees before it becomes a row.
struct Place {
  std::string Code;
  std::string Degree;
};

// The degrees within the sign, one a row of the planet table, in single precision, in which they
// are compared; nothing where the row has none.
std::vector<std::optional<float>> DegreesInSign(const chart::HoroscopeModel& model) {
  std::vector<std::optional<float>> degrees(model.PlanetTable.Rows.size());
  for (std::size_t row = 0; row < degrees.size(); ++row) {
    core::Attempt(
        [&] { degrees[row] = core::ToSingle(chart::PlanetTag(model, row, PlanetColumn::R)); });
  }
  return degrees;
}

// Of planets at one degree the last gets the first of their places and the others stay without a
// code.
std::vector<Place> PlacesByDegree(const chart::HoroscopeModel& model) {
  std::vector<std::optional<float>> open = DegreesInSign(model);
  std::vector<float> sorted;
  for (const std::optional<float>& degree : open) {
    if (degree) {
      sorted.push_back(*degree);
    }
  }
  SortDegrees(sorted);

  std::vector<Place> places;
  for (const float degree : sorted) {
    Place place{"", core::TwoDecimals(degree)};
    for (std::size_t row = 0; row < open.size(); ++row) {
      if (open[row] == degree) {
        place.Code = chart::PlanetCode(chart::PlanetText(model, row, PlanetColumn::Planet));
        open[row].reset();
      }
    }
    places.push_back(place);
  }
  return places;
}

void NameFirstEmpty(std::vector<Place>& places, const char* code) {
  const auto empty = std::find_if(places.begin(), places.end(),
                                  [](const Place& place) { return place.Code.empty(); });
  if (empty != places.end()) {
    empty->Code = code;
  }
}

// The nodes share a degree, so one of them lost its place; what is empty goes to them whoever lost
// it. The first place of Rahu stands and every other of his is Ketu's.
void SettleNodes(std::vector<Place>& places) {
  NameFirstEmpty(places, kRahu);
  NameFirstEmpty(places, kKetu);
  bool first = true;
  for (Place& place : places) {
    if (place.Code == kRahu) {
      place.Code = first ? kRahu : kKetu;
      first = false;
    }
  }
}

core::Table TableOf(const std::vector<Place>& places) {
  core::Table table;
  table.Columns = {{"PLN", 45, "Planet"},
                   {"DEG", 45, "Degree"},
                   {"Aspecting", 181},
                   {"BNN Seq", 190, "Bhrigu Nandi Nadi Planet Sequence"},
                   {"BNN Retro Seq", 190, "Bhrigu Nandi Nadi Retro Planet Sequence"}};
  for (std::size_t row = 0; row < places.size(); ++row) {
    table.AddRow();
    table.At(row, BnnColumn::Pln).Text = places[row].Code;
    table.At(row, BnnColumn::Deg).Text = places[row].Degree;
  }
  return table;
}

std::string CodeAt(const chart::HoroscopeModel& model, std::size_t row) {
  return core::FirstCharacters(model.BnnTable.At(row, BnnColumn::Pln).Text, 2);
}

std::optional<std::size_t> LastHouseOfCode(const chart::HoroscopeModel& model,
                                           const std::string& code) {
  std::optional<std::size_t> last;
  for (std::size_t row = 0; row < model.HouseTable.Rows.size(); ++row) {
    if (core::Contains(HouseText(model, row, HouseColumn::RcPlanets), code)) {
      last = row;
    }
  }
  return last;
}

void AppendPlanets(std::string& sequence, const std::string& planets) {
  sequence = core::Trim(sequence + " " + planets);
}

std::int64_t NumberIn(const std::string& text) { return core::ParseWhole(text).value(); }

// The planets of the rows whose house, or whose sign, is in one trine (1 5 9, 2 6 10, 3 7 11 or
// 4 8 12) with that of the given row.
void AppendTrine(const chart::HoroscopeModel& model, HouseColumn column, std::size_t from,
                 std::string& sequence) {
  constexpr std::int64_t kTrines = 4;
  const std::int64_t trine = NumberIn(HouseText(model, from, column)) % kTrines;
  for (std::size_t row = 0; row < model.HouseTable.Rows.size(); ++row) {
    core::Attempt([&] {
      if (NumberIn(HouseText(model, row, column)) % kTrines == trine) {
        AppendPlanets(sequence, HouseText(model, row, HouseColumn::RcPlanets));
      }
    });
  }
}

// A node in the seventh is no part of a sequence. Where both stand, Ketu stays.
void AppendSeventh(const chart::HoroscopeModel& model, std::size_t from, std::string& sequence) {
  const std::string& seventh = HouseText(model, from, HouseColumn::Asp7);
  for (std::size_t row = 0; row < model.HouseTable.Rows.size(); ++row) {
    if (HouseText(model, row, HouseColumn::House) == seventh) {
      const std::string& planets = HouseText(model, row, HouseColumn::RcPlanets);
      const char* node = core::Contains(planets, kRahu) ? kRahu : kKetu;
      AppendPlanets(sequence, core::ReplaceAll(planets, node, ""));
    }
  }
}

const std::string& PlanetsFrom(const chart::HoroscopeModel& model, std::size_t row,
                               std::size_t steps) {
  return HouseText(model, (row + steps) % chart::kHouses, HouseColumn::RcPlanets);
}

const std::string& PlanetsAfter(const chart::HoroscopeModel& model, std::size_t row) {
  return PlanetsFrom(model, row, 1);
}

const std::string& PlanetsBefore(const chart::HoroscopeModel& model, std::size_t row) {
  return PlanetsFrom(model, row, chart::kHouses - 1);
}

// The codes of a sequence in the order of the table; those that the table has not are dropped,
// those that come twice stay twice.
std::string InDegreeOrder(const chart::HoroscopeModel& model, const std::string& sequence) {
  const std::vector<std::string> tokens = core::SplitWords(sequence);
  std::vector<std::string> ordered;
  for (std::size_t row = 0; row < model.BnnTable.Rows.size(); ++row) {
    const std::string code = CodeAt(model, row);
    std::copy_if(tokens.begin(), tokens.end(), std::back_inserter(ordered),
                 [&code](const std::string& token) { return token == code; });
  }
  return core::Join(ordered, " ");
}

void FillSequence(chart::HoroscopeModel& model, std::size_t row) {
  const std::optional<std::size_t> house = LastHouseOfCode(model, CodeAt(model, row));
  if (!house) {
    return;
  }
  std::string sequence;
  AppendTrine(model, HouseColumn::House, *house, sequence);
  AppendSeventh(model, *house, sequence);
  AppendPlanets(sequence, PlanetsAfter(model, *house));
  AppendPlanets(sequence, PlanetsBefore(model, *house));
  model.BnnTable.At(row, BnnColumn::BnnSeq).Text = InDegreeOrder(model, sequence);
}

void MarkRetrograde(chart::HoroscopeModel& model, const std::string& code) {
  for (std::size_t row = 0; row < model.BnnTable.Rows.size(); ++row) {
    std::string& planet = model.BnnTable.At(row, BnnColumn::Pln).Text;
    if (planet == code) {
      planet += chart::kRetrogradeMark;
    }
  }
  for (std::size_t row = 0; row < model.HouseTable.Rows.size(); ++row) {
    core::Attempt([&] {
      if (core::Contains(HouseText(model, row, HouseColumn::RcPlanets), code)) {
        const std::int64_t sign = NumberIn(HouseText(model, row, HouseColumn::Rashi));
        model.HouseTable.At(row, HouseColumn::RetroRashi).Text =
            core::WholeText(sign == 1 ? chart::kSignCount : sign - 1);
      }
    });
  }
}

void MarkRetrogrades(chart::HoroscopeModel& model) {
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    core::Attempt([&] {
      if (chart::PlanetText(model, row, PlanetColumn::R) == "R") {
        MarkRetrograde(model,
                       chart::PlanetCode(chart::PlanetText(model, row, PlanetColumn::Planet)));
      }
    });
  }
}

// Unlike the direct sequence this one goes by signs, takes no house before and leaves the planet
// itself out of the house behind, which is its own.
void FillRetroSequence(chart::HoroscopeModel& model, std::size_t row) {
  if (!core::Contains(model.BnnTable.At(row, BnnColumn::Pln).Text, chart::kRetrogradeMark)) {
    return;
  }
  const std::string code = CodeAt(model, row);
  const std::optional<std::size_t> house = LastHouseOfCode(model, code);
  const std::optional<std::size_t> retro =
      house ? chart::HouseOfRashi(model, HouseText(model, *house, HouseColumn::RetroRashi))
            : std::nullopt;
  if (!retro) {
    return;
  }
  std::string sequence = code;
  AppendTrine(model, HouseColumn::Rashi, *retro, sequence);
  AppendSeventh(model, *retro, sequence);
  AppendPlanets(sequence, core::ReplaceAll(PlanetsAfter(model, *retro), code, ""));
  model.BnnTable.At(row, BnnColumn::BnnRetroSeq).Text = InDegreeOrder(model, sequence);
}

template <typename Fill>
void ForEachRow(chart::HoroscopeModel& model, Fill fill) {
  for (std::size_t row = 0; row < model.BnnTable.Rows.size(); ++row) {
    core::Attempt([&] { fill(model, row); });
  }
}

}  // namespace

void BuildBnnTable(chart::HoroscopeModel& model) {
  std::vector<Place> places = PlacesByDegree(model);
  SettleNodes(places);
  model.BnnTable = TableOf(places);
  CheckandShowAllAspects(model);
  ForEachRow(model, FillSequence);
  MarkRetrogrades(model);
  ForEachRow(model, FillRetroSequence);
}

void AppendBnnTooltips(chart::HoroscopeModel& model) {
  for (std::size_t planet = 0; planet < model.PlanetTable.Rows.size(); ++planet) {
    core::Attempt([&] {
      core::Cell& cell = model.PlanetTable.At(planet, PlanetColumn::Planet);
      for (std::size_t row = 0; row < model.BnnTable.Rows.size(); ++row) {
        if (CodeAt(model, row) != chart::PlanetCode(cell.Text)) {
          continue;
        }
        const std::string& retro = model.BnnTable.At(row, BnnColumn::BnnRetroSeq).Text;
        cell.Tooltip += "\nBNN Seq = " + model.BnnTable.At(row, BnnColumn::BnnSeq).Text +
                        (retro.empty() ? "" : " | BNN Retro Seq = " + retro);
        break;
      }
    });
  }
}

}  // namespace orvex::vedic
