#include "chart/place_checks.h"

#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::chart {

namespace {

constexpr double kFarthestOffset = 27;

core::Refusal Refuse(const char* text, const char* field) {
  return {text, core::MessageIcon::Information, field};
}

}  // namespace

std::optional<core::Refusal> CheckOffset(const std::string& offset) {
  const std::optional<double> hours = core::ParseNumber(offset);
  if (!hours) {
    return Refuse("Please enter a numeric value.", "offset");
  }
  if (*hours < -kFarthestOffset || *hours > kFarthestOffset) {
    return Refuse("Incorrect Offset Value entered.", "offset");
  }
  return std::nullopt;
}

std::optional<core::Refusal> CheckLatitude(const std::string& latitude) {
  if (core::Trim(latitude).empty()) {
    return Refuse("Latitude is a mandatory field.", "latitude");
  }
  if (!core::IsNumeric(latitude)) {
    return Refuse("Latitude is a numeric field.", "latitude");
  }
  return std::nullopt;
}

std::optional<core::Refusal> CheckLongitude(const std::string& longitude) {
  if (core::Trim(longitude).empty()) {
    return Refuse("Longitude is a mandatory field.", "longitude");
  }
  if (!core::IsNumeric(longitude)) {
    return Refuse("Longitude is a numeric field.", "longitude");
  }
  return std::nullopt;
}

}  // namespace orvex::chart
