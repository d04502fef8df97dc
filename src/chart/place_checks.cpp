#include "chart/place_checks.h"

#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::chart {

namespace {

constexpr double kFarthestOffset = 27;

std::optional<core::Refusal> CheckCoordinate(const std::string& text, const std::string& name,
                                             const char* field) {
  if (core::Trim(text).empty()) {
    return core::RefusalOf(name + " is a mandatory field.", field);
  }
  if (!core::IsNumeric(text)) {
    return core::RefusalOf(name + " is a numeric field.", field);
  }
  return std::nullopt;
}

}  // namespace

std::optional<core::Refusal> CheckOffset(const std::string& offset) {
  const std::optional<double> hours = core::ParseNumber(offset);
  if (!hours) {
    return core::RefusalOf("Please enter a numeric value.", "offset");
  }
  if (*hours < -kFarthestOffset || *hours > kFarthestOffset) {
    return core::RefusalOf("Incorrect Offset Value entered.", "offset");
  }
  return std::nullopt;
}

std::optional<core::Refusal> CheckLatitude(const std::string& latitude) {
  return CheckCoordinate(latitude, "Latitude", "latitude");
}

std::optional<core::Refusal> CheckLongitude(const std::string& longitude) {
  return CheckCoordinate(longitude, "Longitude", "longitude");
}

}  // namespace orvex::chart
