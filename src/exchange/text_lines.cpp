#include "exchange/text_lines.h"

#include "core/text.h"
#include "core/text_encoding.h"
#include "exchange/file_birth.h"

namespace orvex::exchange {

std::vector<FileLine> LinesOf(std::string_view bytes) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  constexpr char kCtrlZ = '\x1A';
  if (bytes.substr(0, kByteOrderMark.size()) == kByteOrderMark) {
    bytes.remove_prefix(kByteOrderMark.size());
  }
  if (!bytes.empty() && bytes.back() == kCtrlZ) {
    bytes.remove_suffix(1);
  }
  std::vector<FileLine> lines;
  for (std::string& line : core::Split(bytes, '\n')) {
    if (!line.empty() && line.back() == '\r') {
      line.pop_back();
    }
    lines.push_back({lines.size() + 1, core::Utf8Of(core::ReplaceAll(line, "\t", " "))});
  }
  if (lines.back().Text.empty()) {
    lines.pop_back();  // behind the last line break
  }
  return lines;
}

std::string Shown(const std::string& text) {
  constexpr std::size_t kLongest = 40;
  return "\"" + core::FirstCharacters(text, kLongest) + "\"";
}

}  // namespace orvex::exchange
