#include "core/unicode_text.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace orvex::core {

namespace {

constexpr const char* kNoText = "\xEF\xBF\xBD";  // U+FFFD

struct CodeRange {
  std::uint32_t First;
  std::uint32_t Last;
};

// clang-format off
constexpr std::array<CodeRange, 5> kObeyed = {{
    {0x0080, 0x009F},  // C1 controls
    {0x061C, 0x061C},  // Arabic letter mark
    {0x200E, 0x200F},  // left-to-right and right-to-left mark
    {0x202A, 0x202E},  // embeddings and overrides
    {0x2066, 0x2069},  // isolates
}};

// By the number of bytes: the bits of the first byte that count, and the least code that needs them.
constexpr std::array<std::uint32_t, 5> kFirstBits = {0, 0x7F, 0x1F, 0x0F, 0x07};
constexpr std::array<std::uint32_t, 5> kLeastCode = {0, 0, 0x80, 0x800, 0x10000};
// clang-format on

std::uint32_t ByteAt(std::string_view text, std::size_t at) {
  return static_cast<unsigned char>(text[at]);
}

std::size_t LengthToldBy(std::uint32_t first) {
  if (first < 0x80) {
    return 1;
  }
  if ((first & 0xE0U) == 0xC0U) {
    return 2;
  }
  if ((first & 0xF0U) == 0xE0U) {
    return 3;
  }
  return (first & 0xF8U) == 0xF0U ? 4 : 0;
}

// The code of a character of so many bytes, whether or not it may be one.
std::uint32_t CodeOf(std::string_view text, std::size_t length) {
  std::uint32_t code = ByteAt(text, 0) & kFirstBits.at(length);
  for (std::size_t at = 1; at < length; ++at) {
    code = code << 6U | (ByteAt(text, at) & 0x3FU);
  }
  return code;
}

std::string Escape(std::uint32_t code) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string digits;
  for (const unsigned shift : {12U, 8U, 4U, 0U}) {
    digits += kDigits[code >> shift & 0xFU];
  }
  return "<U+" + digits + ">";
}

// U+2400 and those behind it picture the controls of ASCII in their order; U+2421 is delete.
std::string ControlPicture(std::uint32_t code) {
  const std::uint32_t low = code == 0x7F ? 0x21 : code;
  return {'\xE2', '\x90', static_cast<char>(0x80U + low)};
}

std::string Shown(std::string_view character, std::uint32_t code) {
  if (code == '\n' || code == '\t') {
    return std::string(character);
  }
  if (code < ' ' || code == 0x7F) {
    return ControlPicture(code);
  }
  const bool obeyed = std::any_of(kObeyed.begin(), kObeyed.end(), [code](const CodeRange& range) {
    return code >= range.First && code <= range.Last;
  });
  return obeyed ? Escape(code) : std::string(character);
}

}  // namespace

std::size_t CharacterLength(std::string_view text) {
  constexpr std::uint32_t kLastCode = 0x10FFFF;
  const std::size_t length = text.empty() ? 0 : LengthToldBy(ByteAt(text, 0));
  if (length == 0 || text.size() < length) {
    return 0;
  }
  for (std::size_t at = 1; at < length; ++at) {
    if ((ByteAt(text, at) & 0xC0U) != 0x80U) {
      return 0;
    }
  }
  const std::uint32_t code = CodeOf(text, length);
  const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
  return code < kLeastCode.at(length) || code > kLastCode || surrogate ? 0 : length;
}

bool IsUtf8Text(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = CharacterLength(text);
    if (length == 0 || text.front() == '\0') {
      return false;
    }
    text.remove_prefix(length);
  }
  return true;
}

std::string VisibleText(std::string_view text) {
  std::string visible;
  while (!text.empty()) {
    const std::size_t length = CharacterLength(text);
    visible += length == 0 ? kNoText : Shown(text.substr(0, length), CodeOf(text, length));
    text.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return visible;
}

}  // namespace orvex::core
