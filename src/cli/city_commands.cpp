#include "cli/context.h"

namespace orvex::cli {
void AddCityCommands(CLI::App&, Context&) {}
}  // namespace orvex::cli
