#include "transit/month_name.h"

#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::transit {

std::string MonthName(core::DateTime moment, bool abbreviate) {
  return core::Split(core::LongDateText(moment, abbreviate), ' ').at(1);
}

std::string MonthAndYear(core::DateTime moment, bool abbreviate, const std::string& between) {
  return MonthName(moment, abbreviate) + between + core::WholeText(core::PartsOf(moment).Year);
}

}  // namespace orvex::transit
