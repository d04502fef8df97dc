// The Vimshottari lists of a horoscope, their drill-down and their selections.
#pragma once

#include <vector>

#include "chart/dasha_periods.h"
#include "chart/horoscope_model.h"
#include "core/session.h"

namespace orvex::chart {

// The balance caption and the Dasha list, from the Moon's star and quarter. A Moon without a degree
// or a star leaves the list empty.
void BuildDashaList(const core::Session& session, HoroscopeModel& model);

// The lower lists of the selected path. Each selects the row that holds today (of two that touch,
// the later one; the first row where none does) and builds the level below it.
void GenerateBhukti(const core::Session& session, HoroscopeModel& model,
                    const std::string& dashaPlanet, core::DateTime dashaEnd);
void GenerateAntara(const core::Session& session, HoroscopeModel& model,
                    const std::string& dashaPlanet, bool skipSookshma);
void GenerateSookshma(const core::Session& session, HoroscopeModel& model);

// The moves of a user: selects a row of a level, builds the levels below and the summary tables.
enum class DashaLevel { Dasha, Bhukti, Antara, Sookshma };
void SelectPeriod(const core::Session& session, HoroscopeModel& model, DashaLevel level,
                  std::size_t row);

// Selects the periods of birth, from which the Moon's sub-sub lord is written, then those of today,
// which are kept as the running ones.
void SelectCurrentPeriods(const core::Session& session, HoroscopeModel& model);

// Writes each planet's Dasha and the age at its end behind the tooltip of its name; the row of the
// first Dasha's planet is tinted.
void AppendDashaTooltips(HoroscopeModel& model);

// The periods of the Dasha list.
std::vector<Period> ListedDashas(const DashaCycle& cycle, const HoroscopeModel& model);

// The selected row of a list; nothing where none is.
std::optional<std::size_t> SelectedRow(const core::Table& list);

}  // namespace orvex::chart
