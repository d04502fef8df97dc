// Tables of a page: the widths of their columns and one slab a row.
#pragma once

#include <vector>

#include "ui/painting/page_slab.h"
#include "ui/painting/page_style.h"

namespace orvex::ui {

// Where the columns of a table stand, and the size of its text.
struct ColumnPlaces {
  int Size = 0;  // of the text
  std::vector<double> Lefts;
  std::vector<double> Widths;      // with the room at their sides
  std::vector<bool> RightAligned;  // columns of figures
  std::vector<double> Behind;      // free room at the right of each, besides the usual
};

// The room that a table needs so that no cell breaks, at the usual size of its text.
double NaturalWidth(PageFonts& fonts, const PageTable& table, PageScale scale);

// Columns as wide as their content asks, spread over the room. Where it is too small, cells break
// at words; where words are too long for it, the text gets smaller, and at the smallest size words
// break.
ColumnPlaces PlaceColumns(PageFonts& fonts, const PageTable& table, double room, PageScale scale);

// One slab a row, each with the captions as its head; a row higher than `highest` becomes several.
// The first and the last two rows keep together.
std::vector<SharedSlab> TableSlabs(PageFonts& fonts, const PageTable& table,
                                   const ColumnPlaces& places, double highest, PageScale scale);

}  // namespace orvex::ui
