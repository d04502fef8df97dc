#include "core/text_encoding.h"

#include <unicode/ucnv.h>

#include <algorithm>
#include <stdexcept>

#include "core/unicode_text.h"

namespace orvex::core {

namespace {

constexpr unsigned char kDelete = 0x7F;
constexpr unsigned char kC1Lead = 0xC2;  // U+0080 to U+009F are 0xC2 and one byte below 0xA0
constexpr unsigned char kC1End = 0xA0;

unsigned char Byte(char c) { return static_cast<unsigned char>(c); }

// The bytes of the control character that begins at a place: 0 where none does.
std::size_t ControlLength(std::string_view text, std::size_t at) {
  const unsigned char byte = Byte(text[at]);
  if (byte < ' ' || byte == kDelete) {
    return 1;
  }
  return byte == kC1Lead && at + 1 < text.size() && Byte(text[at + 1]) < kC1End ? 2 : 0;
}

std::string FromWindows1252(std::string_view bytes) {
  constexpr int kMostBytesOfLetter = 3;
  std::string text(bytes.size() * kMostBytesOfLetter, '\0');
  UErrorCode error = U_ZERO_ERROR;
  const std::int32_t length =
      ucnv_convert("UTF-8", "windows-1252", text.data(), static_cast<std::int32_t>(text.size()),
                   bytes.data(), static_cast<std::int32_t>(bytes.size()), &error);
  if (U_FAILURE(error) != 0) {
    throw std::runtime_error("The text could not be read.");
  }
  text.resize(static_cast<std::size_t>(length));
  return text;
}

}  // namespace

std::string Utf8Of(std::string_view bytes) {
  const bool isAscii =
      std::all_of(bytes.begin(), bytes.end(), [](char c) { return Byte(c) < 0x80U; });
  return isAscii || IsUtf8Text(bytes) ? std::string(bytes) : FromWindows1252(bytes);
}

bool HasControlCharacter(std::string_view text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != '\t' && ControlLength(text, at) > 0) {
      return true;
    }
  }
  return false;
}

std::string WithoutControlCharacters(std::string_view text) {
  std::string plain;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t control = ControlLength(text, at);
    plain += control > 0 ? ' ' : text[at];
    at += std::max<std::size_t>(control, 1);
  }
  return plain;
}

}  // namespace orvex::core
