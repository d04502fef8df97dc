// What lives for as long as the process does: the settings as values in memory and the user city.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/aspect_bands.h"

namespace orvex::core {

// The column that lists are ordered by, for a code of the settings row in any case; an unknown or
// empty code gives "cm.FullName".
std::string SortColumnOfCode(std::string_view code);

struct ApplicationState {
  char RahuKetuCalculation = 'M';  // 'M' mean node, 'T' true node
  char DefaultChartType = 'N';     // 'N' north, 'E' east, 'S' south
  std::string ChartPath;
  std::string AstrologerName;
  std::string AstrologerOrganization;
  std::string AstrologerContactDetails;
  std::array<std::int16_t, kAspectCount> Orbs = {};  // degrees, in the order of kAspects
  AspectBandLimits AspectBands = DefaultAspectBands();
  char StatusBarDegreeCalc = 'A';  // 'A' actual degree, 'R' degree within the sign
  std::string SortColumn = "cm.FullName";
  std::int32_t InstantChartGroupId = 0;
  std::string InstantChartGroupName;
  std::int32_t UserCityId = 19;
  std::string UserCityName = "Dubai";
  float UserCityLatitude = 25.07725F;        // degrees, north positive
  float UserCityLongitude = 55.30927F;       // degrees, east positive
  float UserCityOffset = 4;                  // hours east of Greenwich
  std::vector<std::int32_t> OpenHoroscopes;  // client ids
  std::string SunriseText;
  std::string SunsetText;
};

}  // namespace orvex::core
