// The assembly of a horoscope: one saved client becomes the model that every view reads.
#pragma once

#include <optional>
#include <string>

#include "chart/horoscope_model.h"
#include "chart/rotation.h"
#include "core/session.h"

namespace orvex::horoscope {

// An opened horoscope and what its rotations start from.
struct OpenedHoroscope {
  chart::HoroscopeModel Model;
  chart::BirthTables Birth;
};

// Builds the model of a client from its stored rows; the chart is not computed again. Nothing where
// there is no such client. Statements that fail are passed over one by one and leave cells empty.
std::optional<OpenedHoroscope> CreateHoroscope(core::Session& session, std::int32_t clientId);

// Reads the horoscope from another house (1 to 12) as the first and rebuilds what hangs on the
// houses. std::invalid_argument for any other number.
void RotateNow(const core::Session& session, OpenedHoroscope& horoscope, int house);

// Shows another year of life (1 to 120) in the annual chart. std::invalid_argument for any other.
void ShowYear(OpenedHoroscope& horoscope, int year);

}  // namespace orvex::horoscope
