#include "chart/client_checks.h"

#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::chart {

namespace {

using core::IsNumeric;
using core::Refusal;
using core::Trim;

constexpr double kFarthestOffset = 27;
constexpr double kFullCircle = 360;
constexpr int kLastHoraryNumber = 249;

Refusal Refuse(const char* text, const char* field) {
  return {text, core::MessageIcon::Information, field};
}

bool IsWithin(const std::string& text, double low, double high) {
  const std::optional<double> value = core::ParseNumber(text);
  return value && *value >= low && *value <= high;
}

bool IsHoraryNumber(const std::string& text) {
  const std::optional<std::int64_t> number = core::ParseWhole(text);
  return number && *number >= 1 && *number <= kLastHoraryNumber;
}

std::optional<Refusal> CheckQuery(const ClientForm& form) {
  if (form.Horary && !IsHoraryNumber(form.HoraryNumber)) {
    return Refuse("Please enter a value between 1 to 249.", "horaryNumber");
  }
  if (form.Horary && Trim(form.HoraryQuestion).empty()) {
    return Refuse("Horary Question is a mandatory field.", "horaryQuestion");
  }
  if (!form.Horary && form.AscendantByHand && !IsWithin(form.AscendantDegree, 0, kFullCircle)) {
    return Refuse("Please enter a value between 0 to 360.", "ascendantDegree");
  }
  return std::nullopt;
}

std::optional<Refusal> CheckPlace(const core::Session& session, const ClientForm& form) {
  if (form.CityId == 0) {
    return Refuse("Please select a City from the list.", "cityList");
  }
  if (!IsNumeric(form.Offset)) {
    return Refuse("Please enter a numeric value.", "offset");
  }
  if (!IsWithin(form.Offset, -kFarthestOffset, kFarthestOffset)) {
    return Refuse("Incorrect Offset Value entered.", "offset");
  }
  if (!PlaceOfCity(session, form.CityId)) {
    return Refuse("No City selected. Cannot proceed.", "citySearch");
  }
  if (Trim(form.Latitude).empty()) {
    return Refuse("Latitude is a mandatory field.", "latitude");
  }
  if (!IsNumeric(form.Latitude)) {
    return Refuse("Latitude is a numeric field.", "latitude");
  }
  if (Trim(form.Longitude).empty()) {
    return Refuse("Longitude is a mandatory field.", "longitude");
  }
  if (!IsNumeric(form.Longitude)) {
    return Refuse("Longitude is a numeric field.", "longitude");
  }
  return std::nullopt;
}

}  // namespace

std::optional<Refusal> CheckClient(const core::Session& session, const ClientForm& form) {
  if (Trim(form.FullName).empty()) {
    return Refuse("Client Name is a mandatory field.", "fullName");
  }
  if (const std::optional<Refusal> refused = CheckQuery(form)) {
    return refused;
  }
  return CheckPlace(session, form);
}

}  // namespace orvex::chart
