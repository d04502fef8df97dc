// Who stands beside a client in the list of its group.
#pragma once

#include <cstdint>
#include <optional>

#include "chart/horoscope_model.h"
#include "core/session.h"

namespace orvex::ui {

// The client so many rows after that of a horoscope (before it for a negative number) in the list
// of its group, in the order of the settings. Nothing beyond the ends, or where the client is gone.
std::optional<std::int32_t> NeighbourClient(const core::Session& session,
                                            const chart::HoroscopeModel& model, int by);

}  // namespace orvex::ui
