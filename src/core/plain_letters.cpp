#include "core/plain_letters.h"

#include <array>
#include <cstdint>

#include "core/text.h"

namespace orvex::core {

namespace {

struct LetterBlock {
  std::uint32_t First;
  std::string_view Plain;  // one plain letter for each; '?' stays as it is
};

// clang-format off
constexpr std::array<LetterBlock, 2> kBlocks = {{
    {0xC0,     // to U+017F
     "aaaaaaaceeeeiiiidnooooo ouuuuytsaaaaaaaceeeeiiiidnooooo ouuuuyty"
     "aaaaaaccccccccddddeeeeeeeeeegggggggghhhhiiiiiiiiiiiijjkkklllllll"
     "lllnnnnnnnnnoooooooorrrrrrssssssssttttttuuuuuuuuuuuuwwyyyzzzzzzs"},
    {0x1E00,   // to U+1EFF
     "aabbbbbbccddddddddddeeeeeeeeeeffgghhhhhhhhhhiiiikkkkkkllllllllmm"
     "mmmmnnnnnnnnoooooooopppprrrrrrrrssssssssssttttttttuuuuuuuuuuvvvv"
     "wwwwwwwwwwxxxxyyzzzzzzhtwyas??s?aaaaaaaaaaaaaaaaaaaaaaaaeeeeeeee"
     "eeeeeeeeiiiioooooooooooooooooooooooouuuuuuuuuuuuuuyyyyyyyy??????"},
}};
// clang-format on

constexpr std::string_view kDropped = "'`\u2018\u2019\u02BB\u02BC";

bool IsCombiningMark(std::uint32_t point) { return point >= 0x300 && point <= 0x36F; }

std::size_t LengthOf(char lead) {
  const auto byte = static_cast<unsigned char>(lead);
  return byte < 0xC0 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

// The code point of a character of two or three bytes; 0 for any other.
std::uint32_t PointOf(std::string_view character) {
  const auto bits = [&character](std::size_t at) {
    return static_cast<std::uint32_t>(static_cast<unsigned char>(character[at])) & 0x3FU;
  };
  const auto lead = static_cast<std::uint32_t>(static_cast<unsigned char>(character[0]));
  switch (character.size()) {
    case 2:
      return ((lead & 0x1FU) << 6U) | bits(1);
    case 3:
      return ((lead & 0x0FU) << 12U) | (bits(1) << 6U) | bits(2);
    default:
      return 0;
  }
}

void AppendMarked(std::string_view character, std::string& plain) {
  const std::uint32_t point = PointOf(character);
  if (IsCombiningMark(point)) {
    return;
  }
  for (const LetterBlock& block : kBlocks) {
    if (point >= block.First && point - block.First < block.Plain.size() &&
        block.Plain[point - block.First] != '?') {
      plain += block.Plain[point - block.First];
      return;
    }
  }
  plain += character;
}

bool IsLetterOrDigit(char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'); }

}  // namespace

std::string PlainWords(std::string_view text) {
  std::string plain;
  const std::string small = LowerCase(text);
  for (std::size_t at = 0; at < small.size();) {
    const std::string_view character = std::string_view(small).substr(at, LengthOf(small[at]));
    at += character.size();
    if (Contains(kDropped, character)) {
      continue;
    }
    if (character.size() > 1) {
      AppendMarked(character, plain);
    } else {
      plain += IsLetterOrDigit(character[0]) ? character[0] : ' ';
    }
  }
  return Join(SplitWords(plain), " ");
}

}  // namespace orvex::core
