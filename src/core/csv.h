// Comma-separated tables as spreadsheets write and read them.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace orvex::core {

// One record and the line of the file, from 1, on which it begins.
struct CsvRecord {
  std::size_t Line = 0;
  std::vector<std::string> Fields;
};

// Thrown where a quoted field is not closed.
class CsvError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The records of a text, with or without a byte order mark; lines end with LF or CRLF, quoted
// fields may hold both. The separator is the semicolon where the first line holds more of them than
// commas, else the comma. Empty lines are passed over.
std::vector<CsvRecord> ReadCsv(std::string_view text);

// The fields as one line with its line break, quoted where they need it.
std::string CsvLine(const std::vector<std::string>& fields);

// Spreadsheets run a text that begins with =, +, -, @, a tab or a CR as a formula. GuardedText puts
// an apostrophe before such a text, UnguardedText takes it away: what one wrote the other gives
// back, whatever the text.
std::string GuardedText(const std::string& text);
std::string UnguardedText(const std::string& text);

}  // namespace orvex::core
