#include "core/clock.h"

#include <ctime>

namespace orvex::core {

DateTime SystemClock::Now() const {
  const std::time_t seconds = std::time(nullptr);
  std::tm local{};
  localtime_r(&seconds, &local);
  // A leap second of the machine's clock is shown as the last second of its minute.
  const DateParts parts{local.tm_year + 1900, local.tm_mon + 1,
                        local.tm_mday,        local.tm_hour,
                        local.tm_min,         local.tm_sec > 59 ? 59 : local.tm_sec};
  return MakeDateTime(parts).value_or(DateTime{});
}

}  // namespace orvex::core
