#include "chart/four_step_check.h"

#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::chart {

namespace {

constexpr float kCuspOrb = 5;

// The houses that a planet owns by cusp and that hold no planet.
std::string OwnedEmpties(const HoroscopeModel& model, const std::string& code) {
  std::string houses;
  for (std::size_t row = 0; row < model.HouseTable.Rows.size(); ++row) {
    if (PlanetCode(HouseText(model, row, HouseColumn::KpChartRashiOwner)) == code &&
        HouseText(model, row, HouseColumn::BcPlanets).empty()) {
      houses += " " + HouseText(model, row, HouseColumn::House);
    }
  }
  return houses;
}

// The mark of the last cusp within the orb. The comparison does not wrap at 360 degrees.
std::string CuspMark(const HoroscopeModel& model, std::size_t planetRow) {
  const float planet = core::ToSingle(PlanetText(model, planetRow, PlanetColumn::Degree)) + 360;
  std::string mark;
  for (std::size_t row = 0; row < model.HouseTable.Rows.size(); ++row) {
    core::Attempt([&] {
      const float cusp = core::ToSingle(HouseText(model, row, HouseColumn::CuspDegree)) + 360;
      if (cusp - kCuspOrb < planet && planet < cusp + kCuspOrb) {
        mark = " " + HouseText(model, row, HouseColumn::House) + "/C";
      }
    });
  }
  return mark;
}

void AddSignification(HoroscopeModel& model, std::size_t row) {
  core::Table& table = model.FourStepTable;
  table.At(row, SignificationColumn::Planet).Text = CodeOfRow(model, row);
  table.At(row, SignificationColumn::Degree).Text = PlanetText(model, row, PlanetColumn::Degree);
  core::Cell& sig = table.At(row, SignificationColumn::Sig);
  sig.Tag = core::Trim(PlanetText(model, row, PlanetColumn::In) +
                       OwnedEmpties(model, CodeOfRow(model, row)));
  sig.Text = sig.Tag;
  sig.Text += CuspMark(model, row);
}

const core::Cell& SigOf(const HoroscopeModel& model, const std::string& code) {
  return model.FourStepTable.At(RowOfCode(model, code).value(), SignificationColumn::Sig);
}

// A star lord with its houses; behind a node stands the lord of the node's sign with its own.
std::string WithAgent(const HoroscopeModel& model, const std::string& star) {
  std::string text = star + " (" + SigOf(model, star).Text + ")";
  if (star == "RA" || star == "KE") {
    const std::size_t node = RowOfCode(model, star).value();
    const std::string agent = PlanetCode(PlanetText(model, node, PlanetColumn::SignLord));
    // Two blanks stand between them.
    text += agent.empty() ? "" : "  " + agent + " (" + SigOf(model, agent).Tag + ")";
  }
  return text;
}

bool GivesItself(const HoroscopeModel& model, std::size_t row) {
  const std::string& tenancy = PlanetText(model, row, PlanetColumn::Stu);
  return tenancy == "Untenanted" || tenancy == "Self";
}

}  // namespace

void BuildFourStep(HoroscopeModel& model) {
  model.FourStepTable = {{{"PL", 40}, {"Deg", 40}, {"Sig", 60}}, {}};
  model.FourStepRows = {
      {{"Planet", 75}, {"Step 1", 120}, {"Step 2", 120}, {"Step 3", 120}, {"Step 4", 120}}, {}};
  const std::size_t planets = model.PlanetTable.Rows.size();
  for (std::size_t row = 0; row < planets; ++row) {
    model.FourStepRows.AddRow();
    model.FourStepRows.At(row, FourStepColumn::Planet).Text =
        PlanetText(model, row, PlanetColumn::Planet);
    model.FourStepTable.AddRow();
    core::Attempt([&] { AddSignification(model, row); });
  }
  for (std::size_t row = 0; row < planets; ++row) {
    core::Attempt([&] { FourStepCheck(model, PlanetText(model, row, PlanetColumn::Planet), row); });
  }
}

void FourStepCheck(HoroscopeModel& model, const std::string& planetName, std::size_t rowIndex) {
  const std::optional<std::size_t> planet = RowOfPlanet(model, planetName);
  if (!planet) {
    return;
  }
  const auto step = [&](FourStepColumn column) -> std::string& {
    return model.FourStepRows.At(rowIndex, column).Text;
  };
  if (GivesItself(model, *planet)) {
    step(FourStepColumn::Step1) = SigOf(model, CodeOfRow(model, *planet)).Text;
  }
  core::Attempt([&] {
    step(FourStepColumn::Step2) =
        WithAgent(model, PlanetCode(PlanetText(model, *planet, PlanetColumn::StarLord)));
  });
  const std::string sub = PlanetCode(PlanetText(model, *planet, PlanetColumn::SubLord));
  step(FourStepColumn::Step3) = sub;
  core::Attempt([&] {
    const std::size_t subRow = RowOfCode(model, sub).value();
    if (GivesItself(model, subRow)) {
      step(FourStepColumn::Step3) += " (" + SigOf(model, sub).Text + ")";
    }
    step(FourStepColumn::Step4) =
        WithAgent(model, PlanetCode(PlanetText(model, subRow, PlanetColumn::StarLord)));
  });
}

}  // namespace orvex::chart
