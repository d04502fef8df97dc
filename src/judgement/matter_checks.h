// The checks of the matter dialog, in their order.
#pragma once

#include <optional>

#include "judgement/matters.h"

namespace orvex::judgement {

// Reads a form into a matter, lists ascending; the refusal of the first check that fails, naming
// the field. `id` is the row that is changed, 0 for a new one: its own name is not taken.
std::optional<core::Refusal> ReadMatter(const core::Session& session, const MatterForm& form,
                                        std::int32_t id, Matter& matter);

}  // namespace orvex::judgement
