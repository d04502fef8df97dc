// What the commands over an opened horoscope share.
#pragma once

#include <string>

#include "cli/context.h"
#include "horoscope/create_horoscope.h"

namespace orvex::cli {

struct ChartStyleOptions {
  std::string Id;
  std::string Style;
};

// The client's id, and the style N, E or S.
void AddStyleOptions(Command command, ChartStyleOptions& options);

// The style named, else that of the settings.
char StyleOf(Context& context, const ChartStyleOptions& options);

// The horoscope of a client. CommandFailed where there is no such client.
horoscope::OpenedHoroscope OpenHoroscope(Context& context, const std::string& id);

}  // namespace orvex::cli
