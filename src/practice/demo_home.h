// The demonstration: a home of its own, beside the user's, with charts of people whose birth data
// are public.
#pragma once

#include "core/startup.h"

namespace orvex::practice {

// The start of the demonstration in $XDG_DATA_HOME/orvex-demo (~/.local/share/orvex-demo). Its
// machine settings lie in that folder too, so that those of the user's own home stay as they are.
core::StartupPlan DemoPlan(core::StartMode mode);

// Whether the demonstration was never filled, or a fill broke off.
bool NeedsDemoClients(const core::Home& home);

// Fills the demonstration from the shipped lists: groups, clients with their charts, remedies. What
// is there already stays as it is; a fill that broke off is ended. The session must be one that
// writes. std::runtime_error where the lists are missing or hold what is refused.
void FillDemo(core::Session& session, const std::filesystem::path& shippedData);

}  // namespace orvex::practice
