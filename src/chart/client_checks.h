// The checks of the client dialog.
#pragma once

#include <optional>

#include "chart/client_saving.h"

namespace orvex::chart {

// The first check that a form fails, in the dialog's order; nothing where it may be saved.
std::optional<core::Refusal> CheckClient(const core::Session& session, const ClientForm& form);

}  // namespace orvex::chart
