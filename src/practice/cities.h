// Cities and time zones: the lists and the city dialog.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/save_result.h"
#include "core/session.h"
#include "core/table.h"

namespace orvex::practice {

// The tag of a name is the city's id. The offset is hidden.
enum class CityColumn { CityName, Country, Latitude, Longitude, Offset };
enum class ZoneColumn { TimeZone, Country, Offset };

// All cities, those that clients use already, and those whose name holds a text. Cities whose zone
// is not known are in none.
core::Table LoadCities(const core::Session& session);
core::Table PreviouslyUsedCities(const core::Session& session);
core::Table SearchCities(const core::Session& session, const std::string& text);

// All time zones by name, which is the tag of the row too.
core::Table LoadTimeZones(const core::Session& session);

// Why the choice of the pick-a-city dialog may not be taken: 0 is none. A change of tab and each
// change of the filter clear the choice.
std::optional<core::Refusal> CheckPickedCity(std::int32_t cityId);

// What the zone list of the city dialog shows while a stored city is edited.
inline constexpr const char* kZoneStays = "Time Zone can't be changed in Edit mode.";

// The fields of the city dialog, numbers as texts.
struct CityForm {
  std::string CityName;
  std::string TimeZone;  // not changed by an edit
  std::string Offset;
  std::string Latitude;
  std::string Longitude;
};

// The offset of a zone as the dialog takes it from the list; nothing for an unknown zone.
std::optional<std::string> OffsetOfZone(const core::Session& session, const std::string& zone);

// The zone of a city that the lists show; "" for any other id.
std::string ZoneOfCity(const core::Session& session, std::int32_t cityId);

// The zones that a new city may have; nothing where there are none, after the program's message.
std::optional<core::Table> OpenAddCity(core::Session& session);

// The form of a stored city; nothing where it is gone, after the program's message.
std::optional<CityForm> OpenEditCity(core::Session& session, std::int32_t cityId);

// Saves a new city, or the changes of a stored one. The first failed check is refused.
core::SaveResult SaveNewCity(core::Session& session, const CityForm& form);
core::SaveResult SaveCityChanges(core::Session& session, const CityForm& form, std::int32_t cityId);

}  // namespace orvex::practice
