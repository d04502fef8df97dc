// Which bytes are text, and how text that drives a terminal is shown.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvex::core {

// The length in bytes of the well-formed UTF-8 character (RFC 3629) that the text begins with: no
// surrogate, no overlong form, nothing beyond U+10FFFF. 0 where it begins with none, also for an
// empty text.
std::size_t CharacterLength(std::string_view text);

// Whether a text is well-formed UTF-8 without NUL.
bool IsUtf8Text(std::string_view text);

// The text with a visible mark for each character that a terminal would obey: a control picture for
// the controls of ASCII, "<U+202E>" for C1 controls and the marks of direction, U+FFFD for a byte
// that is no text. Tabs and line breaks stay.
std::string VisibleText(std::string_view text);

}  // namespace orvex::core
