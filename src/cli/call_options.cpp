#include "cli/call_options.h"

ORVEX_OPTION_TYPE(, std::string);
ORVEX_OPTION_TYPE(, std::optional<std::string>);
ORVEX_FLAG_TYPE();
