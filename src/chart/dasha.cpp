#include "chart/dasha.h"

#include "chart/dba_summary.h"
#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::chart {

namespace {

constexpr const char* kFirstDashaTint = "FEF9D1";

std::string DateText(core::DateTime date) { return core::LongDateText(date, true); }

std::string SpanTag(const Period& period) {
  return DateText(period.Start) + "*" + DateText(period.End);
}

void WriteEnd(core::Cell& cell, const Period& period) {
  cell.Text = DateText(period.End);
  cell.Tag = SpanTag(period);
  cell.SortKey = core::StoredDateTimeText(period.End);
}

core::Table EmptyPeriodList() { return {{{"Planet"}, {"End Date"}}, {}}; }

core::Table PeriodList(const std::vector<Period>& periods) {
  core::Table table = EmptyPeriodList();
  for (const Period& period : periods) {
    table.AddRow();
    const std::size_t row = table.Rows.size() - 1;
    table.At(row, PeriodColumn::Planet).Text = period.Planet.Name;
    WriteEnd(table.At(row, PeriodColumn::EndDate), period);
  }
  return table;
}

core::DateTime DateOf(const std::string& text) {
  const std::optional<core::DateTime> date = core::ParseLongDateText(text);
  if (!date) {
    throw std::invalid_argument("a period without its dates");
  }
  return *date;
}

// The period of a row, its dates read back from the tag.
template <typename ColumnName>
Period PeriodOfRow(const DashaCycle& cycle, const core::Table& list, std::size_t row,
                   ColumnName planetColumn, ColumnName endColumn) {
  const DashaPlanet* planet = FindDashaPlanet(cycle, list.At(row, planetColumn).Text);
  const std::vector<std::string> span = core::Split(list.At(row, endColumn).Tag, '*');
  if (planet == nullptr || span.size() != 2) {
    throw std::invalid_argument("a row that is no period");
  }
  return {*planet, DateOf(span[0]), DateOf(span[1])};
}

Period DashaOfRow(const DashaCycle& cycle, const core::Table& list, std::size_t row) {
  return PeriodOfRow(cycle, list, row, DashaColumn::Planet, DashaColumn::EndDate);
}

Period PartOfRow(const DashaCycle& cycle, const core::Table& list, std::size_t row) {
  return PeriodOfRow(cycle, list, row, PeriodColumn::Planet, PeriodColumn::EndDate);
}

std::size_t NeededSelection(const core::Table& list) {
  const std::optional<std::size_t> row = SelectedRow(list);
  if (!row) {
    throw std::invalid_argument("a list without a selected row");
  }
  return *row;
}

void SelectRow(core::Table& list, std::size_t selected) {
  for (std::size_t row = 0; row < list.Rows.size(); ++row) {
    list.Rows[row].Selected = row == selected;
  }
}

// Selects the rows that hold a date, both ends counted in; the last of them stays. Where none does,
// what was selected stays.
void SelectHolding(const DashaCycle& cycle, core::Table& list, core::DateTime date) {
  for (std::size_t row = 0; row < list.Rows.size(); ++row) {
    const Period part = PartOfRow(cycle, list, row);
    if (part.Start <= date && date <= part.End) {
      SelectRow(list, row);
    }
  }
}

core::Table EmptyDashaList() {
  return {{{"Sequence", 0}, {"Planet"}, {"Dasha Years", 0}, {"End Date"}}, {}};
}

void AddDasha(const Period& period, core::Table& table) {
  table.AddRow();
  const std::size_t row = table.Rows.size() - 1;
  table.At(row, DashaColumn::Sequence).Text = core::WholeText(period.Planet.Sequence);
  table.At(row, DashaColumn::Planet).Text = period.Planet.Name;
  table.At(row, DashaColumn::DashaYears).Text = core::WholeText(period.Planet.Years);
  WriteEnd(table.At(row, DashaColumn::EndDate), period);
}

// The row of the star table with the Moon's star and quarter.
std::size_t MoonQuarter(const HoroscopeModel& model) {
  constexpr std::size_t kMoon = RowOf(PlanetPlace::Moon);
  for (std::size_t row = 0; row < model.StarTable.Rows.size(); ++row) {
    if (model.StarTable.At(row, StarColumn::StarName).Text ==
            PlanetText(model, kMoon, PlanetColumn::Nakshatra) &&
        model.StarTable.At(row, StarColumn::Pada).Text ==
            PlanetText(model, kMoon, PlanetColumn::Pada)) {
      return row;
    }
  }
  throw LookupError("the Moon stands in no star");
}

void FillDashaList(const DashaCycle& cycle, HoroscopeModel& model) {
  const std::size_t quarter = MoonQuarter(model);
  const core::Table& stars = model.StarTable;
  const DashaPlanet* first = FindDashaPlanet(cycle, stars.At(quarter, StarColumn::StarLord).Text);
  if (first == nullptr) {
    throw LookupError("a star lord outside the cycle");
  }
  const DashaBalance balance = BalanceAtBirth(
      core::ToDouble(model.MoonDegree),
      core::ToDouble(stars.At(quarter, StarColumn::StartDegree).Text),
      static_cast<int>(core::ParseWhole(stars.At(quarter, StarColumn::Pada).Text).value()),
      first->Years);
  model.Captions.DashaBalance = BalanceText(first->Name, balance);
  for (const Period& period : DashaPeriods(cycle, *first, model.Birth, balance)) {
    AddDasha(period, model.Periods.DashaList);
  }
}

// The rows that hold the birth, down to the Antara; its planet becomes the Moon's sub-sub lord.
void SelectBirthPeriods(const core::Session& session, HoroscopeModel& model) {
  const DashaCycle cycle = DashaCycleOf(session.Reference);
  const core::DateTime birth = core::DateOnly(model.Birth);
  DashaTree& periods = model.Periods;
  SelectRow(periods.DashaList, 0);
  const Period dasha = DashaOfRow(cycle, periods.DashaList, 0);
  GenerateBhukti(session, model, dasha.Planet.Name, dasha.End);
  SelectHolding(cycle, periods.BhuktiList, birth);
  GenerateAntara(session, model, dasha.Planet.Name, true);
  SelectHolding(cycle, periods.AntaraList, birth);
  const std::string& antara =
      periods.AntaraList.At(NeededSelection(periods.AntaraList), PeriodColumn::Planet).Text;
  const std::optional<std::size_t> row = RowOfPlanet(model, antara);
  core::Cell& cell = model.PlanetTable.At(RowOf(PlanetPlace::Moon), PlanetColumn::SubSubLord);
  cell.Text = antara + " (" + (row ? HouseList(model, *row) : "") + ")";
  cell.Tag = antara;
}

// A day on the border of two Dashas lies in neither: the first one's parts are shown then, and the
// selection stays.
void SelectTodaysPeriods(const core::Session& session, HoroscopeModel& model) {
  const DashaCycle cycle = DashaCycleOf(session.Reference);
  const core::DateTime today = session.Time.Today();
  core::Table& dashas = model.Periods.DashaList;
  Period shown = DashaOfRow(cycle, dashas, 0);
  for (std::size_t row = 0; row < dashas.Rows.size(); ++row) {
    const Period dasha = DashaOfRow(cycle, dashas, row);
    if (dasha.Start < today && today < dasha.End) {
      SelectRow(dashas, row);
      shown = dasha;
    }
  }
  GenerateBhukti(session, model, shown.Planet.Name, shown.End);
}

void KeepRunningPeriods(HoroscopeModel& model) {
  const auto selected = [](const core::Table& list, auto column) {
    const std::optional<std::size_t> row = SelectedRow(list);
    return row ? list.At(*row, column).Text : std::string();
  };
  model.RunningPeriods = selected(model.Periods.DashaList, DashaColumn::Planet) + "/" +
                         selected(model.Periods.BhuktiList, PeriodColumn::Planet) + "/" +
                         selected(model.Periods.AntaraList, PeriodColumn::Planet);
}

}  // namespace

std::optional<std::size_t> SelectedRow(const core::Table& list) {
  for (std::size_t row = 0; row < list.Rows.size(); ++row) {
    if (list.Rows[row].Selected) {
      return row;
    }
  }
  return std::nullopt;
}

std::vector<Period> ListedDashas(const DashaCycle& cycle, const HoroscopeModel& model) {
  std::vector<Period> dashas;
  for (std::size_t row = 0; row < model.Periods.DashaList.Rows.size(); ++row) {
    dashas.push_back(DashaOfRow(cycle, model.Periods.DashaList, row));
  }
  return dashas;
}

void BuildDashaList(const core::Session& session, HoroscopeModel& model) {
  model.Periods = {EmptyDashaList(), EmptyPeriodList(), EmptyPeriodList(), EmptyPeriodList()};
  core::Attempt([&] { FillDashaList(DashaCycleOf(session.Reference), model); });
}

void GenerateBhukti(const core::Session& session, HoroscopeModel& model,
                    const std::string& dashaPlanet, core::DateTime dashaEnd) {
  const DashaCycle cycle = DashaCycleOf(session.Reference);
  core::Table& list = model.Periods.BhuktiList;
  list = EmptyPeriodList();
  const DashaPlanet* planet = FindDashaPlanet(cycle, dashaPlanet);
  if (planet == nullptr) {
    return;
  }
  list = PeriodList(BhuktiPeriods(cycle, {*planet, dashaEnd, dashaEnd}));
  SelectRow(list, 0);
  SelectHolding(cycle, list, session.Time.Today());
  GenerateAntara(session, model, dashaPlanet, false);
}

void GenerateAntara(const core::Session& session, HoroscopeModel& model,
                    const std::string& dashaPlanet, bool skipSookshma) {
  const DashaCycle cycle = DashaCycleOf(session.Reference);
  core::Table& list = model.Periods.AntaraList;
  list = EmptyPeriodList();
  const DashaPlanet* dasha = FindDashaPlanet(cycle, dashaPlanet);
  if (dasha == nullptr) {
    return;
  }
  const core::Table& bhuktis = model.Periods.BhuktiList;
  const Period bhukti = PartOfRow(cycle, bhuktis, NeededSelection(bhuktis));
  list = PeriodList(AntaraPeriods(cycle, {*dasha, bhukti.Start, bhukti.End}, bhukti));
  SelectRow(list, 0);
  SelectHolding(cycle, list, session.Time.Today());
  if (!skipSookshma) {
    GenerateSookshma(session, model);
  }
}

void GenerateSookshma(const core::Session& session, HoroscopeModel& model) {
  const DashaCycle cycle = DashaCycleOf(session.Reference);
  core::Table& list = model.Periods.SookshmaList;
  list = EmptyPeriodList();
  const core::Table& antaras = model.Periods.AntaraList;
  list = PeriodList(SookshmaPeriods(cycle, PartOfRow(cycle, antaras, NeededSelection(antaras))));
  SelectRow(list, 0);
  SelectHolding(cycle, list, session.Time.Today());
}

void SelectPeriod(const core::Session& session, HoroscopeModel& model, DashaLevel level,
                  std::size_t row) {
  const DashaCycle cycle = DashaCycleOf(session.Reference);
  DashaTree& periods = model.Periods;
  switch (level) {
    case DashaLevel::Dasha: {
      SelectRow(periods.DashaList, row);
      const Period dasha = DashaOfRow(cycle, periods.DashaList, row);
      GenerateBhukti(session, model, dasha.Planet.Name, dasha.End);
      break;
    }
    case DashaLevel::Bhukti:
      SelectRow(periods.BhuktiList, row);
      GenerateAntara(
          session, model,
          periods.DashaList.At(NeededSelection(periods.DashaList), DashaColumn::Planet).Text,
          false);
      break;
    case DashaLevel::Antara:
      SelectRow(periods.AntaraList, row);
      GenerateSookshma(session, model);
      break;
    case DashaLevel::Sookshma:
      SelectRow(periods.SookshmaList, row);
      break;
  }
  ShowDBA(session, model);
}

void SelectCurrentPeriods(const core::Session& session, HoroscopeModel& model) {
  core::Attempt([&] { SelectBirthPeriods(session, model); });
  core::Attempt([&] { SelectTodaysPeriods(session, model); });
  KeepRunningPeriods(model);
}

void AppendDashaTooltips(HoroscopeModel& model) {
  const core::Table& dashas = model.Periods.DashaList;
  for (std::size_t row = 0; row < dashas.Rows.size(); ++row) {
    core::Attempt([&] {
      const std::string& planet = dashas.At(row, DashaColumn::Planet).Text;
      const std::size_t planetRow = RowOfCode(model, PlanetCode(planet)).value();
      const std::vector<std::string> span =
          core::Split(dashas.At(row, DashaColumn::EndDate).Tag, '*');
      const bool first = row == 0;
      model.PlanetTable.At(planetRow, PlanetColumn::Planet).Tooltip +=
          (first ? " Starting Dasha Period = " : " | Dasha Period = ") + span.at(0) + " to " +
          span.at(1) + " | Age when " + planet +
          " Dasha ends = " + core::AgeText(model.Birth, DateOf(span.at(1))).Text;
      if (first) {
        for (core::Cell& cell : model.PlanetTable.Rows[planetRow].Cells) {
          cell.Background = kFirstDashaTint;
        }
      }
    });
  }
}

}  // namespace orvex::chart
