#include "core/application_state.h"

#include <algorithm>
#include <utility>

#include "core/text.h"

namespace orvex::core {

namespace {

// clang-format off
constexpr std::array<std::pair<std::string_view, const char*>, 6> kSortColumns = {{
    {"BHD", "cm.BirthDate"},
    {"CTY", "ct.CityName"},
    {"CLN", "cm.FullName"},
    {"CRD", "cm.CreatedDate"},
    {"EML", "cm.Email"},
    {"MBL", "cm.Mobile"},
}};
// clang-format on

constexpr const char* kDefaultSortColumn = "cm.FullName";

}  // namespace

std::string SortColumnOfCode(std::string_view code) {
  const std::string upper = UpperCase(code);
  const auto* found = std::find_if(kSortColumns.begin(), kSortColumns.end(),
                                   [&upper](const auto& entry) { return entry.first == upper; });
  return found == kSortColumns.end() ? kDefaultSortColumn : found->second;
}

}  // namespace orvex::core
