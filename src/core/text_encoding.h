// Texts of files that other programs wrote, as UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace orvex::core {

// A text as UTF-8: as it is where it is that, else its bytes read as Windows-1252, which holds
// Latin-1.
std::string Utf8Of(std::string_view bytes);

// Whether a UTF-8 text holds a control character; a tab is none.
bool HasControlCharacter(std::string_view text);

// The text with every control character, tabs and line breaks too, as a blank.
std::string WithoutControlCharacters(std::string_view text);

}  // namespace orvex::core
