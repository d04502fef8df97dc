// The store's statement dialect.
#pragma once

#include <string>
#include <string_view>

namespace orvex::core {

// The engine's form of a statement of the dialect: #mm/dd/yyyy hh:mm:ss# outside of quotes becomes
// a stored date-time text, "Select Top n" a limit of n rows. Texts in single quotes are left alone.
// std::invalid_argument on a date literal that is no date or is not closed.
std::string TranslateStatement(std::string_view statement);

}  // namespace orvex::core
