#include "horoscope/moved_lords.h"

#include <array>

#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "exact/crossings_table.h"

namespace orvex::horoscope {

namespace {

constexpr std::array<MovedLordsColumn, 4> kLords = {
    MovedLordsColumn::SignLord, MovedLordsColumn::StarLord, MovedLordsColumn::SubLord,
    MovedLordsColumn::SubSubLord};

core::Table EmptyTable() {
  return {{{"Ascendant", 80},
           {"Position", 110},
           {"Sign Lord", 80},
           {"Star Lord", 80},
           {"Sub Lord", 80},
           {"Sub Sub Lord", 90}},
          {}};
}

exact::Units AscendantOf(core::Session& session, const chart::ChartInput& input) {
  const exact::ExactSky sky(session.Ephemeris, exact::ReadingOf(session),
                            session.State.RahuKetuCalculation);
  const core::DateTime ut =
      core::DateAdd(core::DateInterval::Seconds,
                    -exact::OffsetOf(core::ToDouble(input.Offset)).count(), input.Birth);
  return exact::UnitsOf(
      sky.AscendantAt(ut, {core::ToDouble(input.Latitude), core::ToDouble(input.Longitude)}));
}

void AddLords(const exact::ExactZodiac& zodiac, const char* name, exact::Units ascendant,
              core::Table& table) {
  const exact::Lords lords = zodiac.LordsOf(ascendant);
  table.AddRow();
  const std::size_t row = table.Rows.size() - 1;
  table.At(row, MovedLordsColumn::Of).Text = name;
  table.At(row, MovedLordsColumn::Position).Text = zodiac.PositionText(ascendant);
  table.At(row, MovedLordsColumn::SignLord).Text = lords.Sign;
  table.At(row, MovedLordsColumn::StarLord).Text = lords.Star;
  table.At(row, MovedLordsColumn::SubLord).Text = lords.Sub;
  table.At(row, MovedLordsColumn::SubSubLord).Text = lords.SubSub;
}

void MarkNewLords(core::Table& table) {
  for (const MovedLordsColumn lord : kLords) {
    core::Cell& cell = table.At(1, lord);
    if (cell.Text != table.At(0, lord).Text) {
      cell.Bold = true;
      cell.Background = kMovedColor;
    }
  }
}

}  // namespace

core::Table MovedLords(core::Session& session, const chart::HoroscopeModel& model,
                       const RecalculationForm& form) {
  core::Table table = EmptyTable();
  const chart::ChartInput old = ChartInputOf(session, model, OpenRecalculation(model));
  if (old.Ascendant != chart::AscendantChoice::Computed || CheckRecalculation(form)) {
    return table;
  }
  const exact::ExactZodiac zodiac(session.Reference);
  const bool moved = core::Attempt([&] {
    AddLords(zodiac, "Old", AscendantOf(session, old), table);
    AddLords(zodiac, "New", AscendantOf(session, ChartInputOf(session, model, form)), table);
  });
  if (!moved) {
    table.Rows.clear();
    return table;
  }
  MarkNewLords(table);
  return table;
}

}  // namespace orvex::horoscope
