#include "vedic/karakas.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/attempt.h"
#include "core/exact_numbers.h"

namespace orvex::vedic {

namespace {

// clang-format off
constexpr std::array<const char*, 7> kTitles = {
    "Atma Karaka (AK)",
    "Amatya Karaka (AmK)",
    "Bhratri Karaka (BK)",
    "Matri Karaka (MK)",
    "Putra Karaka (PK)",
    "Gnati Karaka (GK)",
    "Dara Karaka (DK)",
};
// clang-format on

// A planet that can be a karaka, in single precision, in which degrees are compared.
struct Candidate {
  std::string Planet;
  std::string DegreeText;
  float Degree;
};

std::vector<Candidate> Candidates(const chart::HoroscopeModel& model) {
  std::vector<Candidate> candidates;
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    core::Attempt([&] {
      const std::string& planet = chart::PlanetText(model, row, chart::PlanetColumn::Planet);
      const std::string& degree = chart::PlanetTag(model, row, chart::PlanetColumn::R);
      if (planet != "Rahu" && planet != "Ketu") {
        candidates.push_back({planet, degree, core::ToSingle(degree)});
      }
    });
  }
  return candidates;
}

}  // namespace

void SortDegrees(std::vector<float>& degrees) { std::sort(degrees.begin(), degrees.end()); }

void BuildKarakaTable(chart::HoroscopeModel& model) {
  core::Table& table = model.KarakaTable;
  table = {};
  table.Columns = {{"Karaka", 150}, {"Planet", 90}, {"Degree", 60}};

  const std::vector<Candidate> candidates = Candidates(model);
  std::vector<float> degrees;
  for (const Candidate& candidate : candidates) {
    degrees.push_back(candidate.Degree);
  }
  SortDegrees(degrees);
  std::reverse(degrees.begin(), degrees.end());

  // No planet is marked as used: the first of a tie fills every row of it.
  for (const float degree : degrees) {
    const auto found =
        std::find_if(candidates.begin(), candidates.end(),
                     [degree](const Candidate& candidate) { return candidate.Degree == degree; });
    const std::size_t row = table.Rows.size();
    table.AddRow();
    table.At(row, KarakaColumn::Karaka).Text = row < kTitles.size() ? kTitles.at(row) : "";
    table.At(row, KarakaColumn::Planet).Text = found->Planet;
    table.At(row, KarakaColumn::Degree).Text = found->DegreeText;
  }
}

}  // namespace orvex::vedic
