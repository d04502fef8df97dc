#include "chart/client_checks.h"

#include "chart/place_checks.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::chart {

namespace {

using core::Refusal;
using core::Trim;

constexpr double kFullCircle = 360;
constexpr int kLastHoraryNumber = 249;

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
    return core::RefusalOf("Please enter a value between 1 to 249.", "horaryNumber");
  }
  if (form.Horary && Trim(form.HoraryQuestion).empty()) {
    return core::RefusalOf("Horary Question is a mandatory field.", "horaryQuestion");
  }
  if (!form.Horary && form.AscendantByHand && !IsWithin(form.AscendantDegree, 0, kFullCircle)) {
    return core::RefusalOf("Please enter a value between 0 to 360.", "ascendantDegree");
  }
  return std::nullopt;
}

std::optional<Refusal> CheckPlace(const core::Session& session, const ClientForm& form) {
  if (form.CityId == 0) {
    return core::RefusalOf(core::kNoCityChosen, "cityList");
  }
  if (std::optional<Refusal> refused = CheckOffset(form.Offset)) {
    return refused;
  }
  if (!form.CityInSight || !PlaceOfCity(session, form.CityId)) {
    return core::RefusalOf("No City selected. Cannot proceed.", "citySearch");
  }
  if (std::optional<Refusal> refused = CheckLatitude(form.Latitude)) {
    return refused;
  }
  return CheckLongitude(form.Longitude);
}

}  // namespace

std::optional<Refusal> CheckClient(const core::Session& session, const ClientForm& form) {
  if (Trim(form.FullName).empty()) {
    return core::RefusalOf("Client Name is a mandatory field.", "fullName");
  }
  if (std::optional<Refusal> refused = CheckQuery(form)) {
    return refused;
  }
  return CheckPlace(session, form);
}

}  // namespace orvex::chart
