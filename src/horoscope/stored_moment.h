// The moment for which a stored chart was computed.
#pragma once

#include "chart/horoscope_model.h"
#include "core/session.h"

namespace orvex::horoscope {

// The moment in UT of the stored chart of a client, seconds 00. The store does not keep it, and
// west of Greenwich it depends on the settings of that day and on whether the client was an instant
// chart: of the moments that the program may have taken, the one that gives the stored degrees
// counts; where none does, that of the present settings.
core::DateTime StoredMomentUt(core::Session& session, const chart::HoroscopeModel& model);

}  // namespace orvex::horoscope
