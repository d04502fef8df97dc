// The checks of offset, latitude and longitude that several dialogs share.
#pragma once

#include <optional>
#include <string>

#include "core/save_result.h"

namespace orvex::chart {

// The first check that a text fails; nothing where it may be taken. Offsets are hours from -27 to
// 27. The range of latitude and longitude is not tested.
std::optional<core::Refusal> CheckOffset(const std::string& offset);
std::optional<core::Refusal> CheckLatitude(const std::string& latitude);
std::optional<core::Refusal> CheckLongitude(const std::string& longitude);

}  // namespace orvex::chart
