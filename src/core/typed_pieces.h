// The runs of digits and letters of a typed date or time.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/typed_moment.h"

namespace orvex::core {

// A run of digits or of letters, with what stands between it and the run before.
struct Piece {
  std::size_t Begin = 0;
  std::size_t End = 0;
  std::string Text;    // in lower case
  std::string Before;  // without blanks, but " " where there is nothing else

  bool IsNumber() const { return Text.front() >= '0' && Text.front() <= '9'; }
  std::size_t Length() const { return Text.size(); }
};

// The runs of a text, and what stands behind the last one.
struct Pieces {
  std::vector<Piece> All;
  std::string Behind;

  // Whether anything but blanks stands around the runs.
  bool IsFramed() const;
};

Pieces PiecesOf(std::string_view typed);

// The number of a run of at most nine digits.
int NumberOf(std::string_view digits);

PartSpan SpanOf(MomentPart part, const Piece& piece);

// The part at the cursor: the last one that begins at it or before.
MomentPart PartAt(std::vector<PartSpan> parts, std::size_t cursor);

// A text after a step, with the span that the part has among `parts`.
SteppedText SteppedOf(const std::string& text, const std::vector<PartSpan>& parts, MomentPart part);

}  // namespace orvex::core
