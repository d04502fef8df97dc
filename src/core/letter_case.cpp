#include "core/letter_case.h"

#include <unicode/locid.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <algorithm>

#include "core/text.h"

namespace orvex::core {

namespace {

bool IsAscii(char letter) { return static_cast<unsigned char>(letter) < 0x80; }

icu::UnicodeString Letters(std::string_view text) {
  return icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())});
}

std::string Bytes(const icu::UnicodeString& letters) {
  std::string bytes;
  letters.toUTF8String(bytes);
  return bytes;
}

// The letters apart from their accents, without those.
icu::UnicodeString WithoutAccents(const icu::UnicodeString& letters) {
  UErrorCode error = U_ZERO_ERROR;
  const icu::Normalizer2* apart = icu::Normalizer2::getNFKDInstance(error);
  if (U_FAILURE(error)) {
    return letters;
  }
  const icu::UnicodeString parted = apart->normalize(letters, error);
  icu::UnicodeString bare;
  for (std::int32_t at = 0; at < parted.length(); at = parted.moveIndex32(at, 1)) {
    if (u_charType(parted.char32At(at)) != U_NON_SPACING_MARK) {
      bare.append(parted.char32At(at));
    }
  }
  return U_FAILURE(error) ? letters : bare;
}

}  // namespace

std::string UpperCaseOfAll(std::string_view text) {
  if (std::all_of(text.begin(), text.end(), IsAscii)) {
    return UpperCase(text);
  }
  return Bytes(Letters(text).toUpper(icu::Locale::getRoot()));
}

std::string FoldedText(std::string_view text) {
  if (std::all_of(text.begin(), text.end(), IsAscii)) {
    return LowerCase(text);
  }
  return Bytes(WithoutAccents(Letters(text)).foldCase());
}

int CompareFolded(std::string_view left, std::string_view right) {
  const auto lower = [](char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
  };
  const std::size_t shorter = std::min(left.size(), right.size());
  std::size_t at = 0;
  while (at < shorter && IsAscii(left[at]) && lower(left[at]) == lower(right[at])) {
    ++at;
  }
  const bool plain =
      (at == left.size() || IsAscii(left[at])) && (at == right.size() || IsAscii(right[at]));
  if (!plain) {
    return FoldedText(left.substr(at)).compare(FoldedText(right.substr(at)));
  }
  if (at == left.size() || at == right.size()) {
    return static_cast<int>(left.size() > at) - static_cast<int>(right.size() > at);
  }
  return lower(left[at]) < lower(right[at]) ? -1 : 1;
}

}  // namespace orvex::core
