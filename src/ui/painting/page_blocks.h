// The blocks of a document as slabs.
#pragma once

#include <vector>

#include "ui/painting/page_slab.h"
#include "ui/painting/page_style.h"

namespace orvex::ui {

// The room that blocks are set into.
struct BlockRoom {
  PageFonts& Fonts;
  PageScale Scale;
  double Width = 0;
  double Highest = 0;                    // of a slab that can be cut
  const std::vector<QString>& Sections;  // for the contents
};

// A block as slabs from top to bottom. PageStrands are not for this routine.
std::vector<SharedSlab> SlabsOf(const PageBlock& block, const BlockRoom& room);

// The strands of tables: how many, how wide, and their slabs, one after the other.
struct StrandSlabs {
  std::size_t Count = 1;
  double Width = 0;
  double Gap = 0;
  std::vector<SharedSlab> Slabs;
};
StrandSlabs SlabsOf(const PageStrands& strands, const BlockRoom& room);

}  // namespace orvex::ui
