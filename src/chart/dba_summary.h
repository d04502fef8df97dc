// The two summary tables of the selected periods, and the caption of the running ones.
#pragma once

#include "chart/horoscope_model.h"
#include "core/session.h"

namespace orvex::chart {

enum class DbaColumn { Description, Dasha, Bhukti, Antara, Sookshma };

enum class DbaRow { EndDate, Planet, StarLord, SubLord, StarOfSub, Conjunct };

// Rebuilds the period table and the house count from the selected row of each of the four lists. A
// level without a selection has empty cells.
void ShowDBA(const core::Session& session, HoroscopeModel& model);

// The caption of the running periods, which a user's picks do not change.
void WriteCurrentDba(HoroscopeModel& model);

}  // namespace orvex::chart
