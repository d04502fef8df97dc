#include "core/typed_pieces.h"

#include <algorithm>

#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::core {

namespace {

bool IsTypedDigit(char c) { return c >= '0' && c <= '9'; }
bool IsTypedLetter(char c) { return c >= 'a' && c <= 'z'; }

std::string Gap(std::string_view text) {
  const std::string gap = Trim(text);
  return gap.empty() && !text.empty() ? " " : gap;
}

}  // namespace

bool Pieces::IsFramed() const {
  return !Behind.empty() || (!All.empty() && !Trim(All.front().Before).empty());
}

Pieces PiecesOf(std::string_view typed) {
  const std::string text = LowerCase(typed);
  Pieces pieces;
  std::size_t at = 0;
  std::size_t end = 0;
  while (at < text.size()) {
    if (!IsTypedDigit(text[at]) && !IsTypedLetter(text[at])) {
      ++at;
      continue;
    }
    const auto kind = IsTypedDigit(text[at]) ? IsTypedDigit : IsTypedLetter;
    const std::size_t begin = at;
    while (at < text.size() && kind(text[at])) {
      ++at;
    }
    pieces.All.push_back({begin, at, text.substr(begin, at - begin),
                          Gap(std::string_view(text).substr(end, begin - end))});
    end = at;
  }
  pieces.Behind = Trim(std::string_view(text).substr(end));
  return pieces;
}

int NumberOf(std::string_view digits) { return static_cast<int>(ParseWhole(digits).value()); }

PartSpan SpanOf(MomentPart part, const Piece& piece) { return {part, piece.Begin, piece.End}; }

MomentPart PartAt(std::vector<PartSpan> parts, std::size_t cursor) {
  std::sort(parts.begin(), parts.end(),
            [](const PartSpan& one, const PartSpan& other) { return one.Begin < other.Begin; });
  MomentPart part = parts.front().Part;
  for (const PartSpan& span : parts) {
    part = span.Begin <= cursor ? span.Part : part;
  }
  return part;
}

SteppedText SteppedOf(const std::string& text, const std::vector<PartSpan>& parts,
                      MomentPart part) {
  for (const PartSpan& span : parts) {
    if (span.Part == part) {
      return {text, span.Begin, span.End};
    }
  }
  return {text, 0, 0};
}

}  // namespace orvex::core
