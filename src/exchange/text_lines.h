// The lines of a text file of whatever origin.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvex::exchange {

struct FileLine {
  std::size_t Number = 0;  // from 1
  std::string Text;        // in UTF-8, without its line break; tabs are blanks
};

// The lines of a file: LF or CRLF, with or without a byte order mark, each in UTF-8 or, where it is
// not that, in Windows-1252. A last Ctrl-Z, as old systems end a text, is passed over.
std::vector<FileLine> LinesOf(std::string_view bytes);

// The reason why lines with control characters are refused.
inline constexpr const char* kControlCharacter = "the line holds a control character";

}  // namespace orvex::exchange
