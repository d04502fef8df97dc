#include "cli/context.h"

namespace orvex::cli {
void AddGroupCommands(CLI::App&, Context&) {}
}  // namespace orvex::cli
