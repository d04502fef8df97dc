// A chart as it is drawn: what each of the twelve fields of a regional style shows. Where the
// fields lie is the painter's.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "report/chart_cells.h"
#include "vedic/divisional.h"

namespace orvex::report {

struct PictureField {
  std::string Sign;                // number of the sign, "" where it is not known
  std::string Note;                // the cusp's degree, "" where none is shown
  std::vector<std::string> Codes;  // planets with their marks, and "Asc" in East style
  std::string Tooltip;
  bool Ascendant = false;
};

// Fields stand by house in style 'N', by sign in 'E' and 'S'.
struct ChartPicture {
  char Style = 'N';
  std::string Title;
  std::array<PictureField, chart::kHouses> Fields;
};

// The rashi chart and the chart of chalit houses; a style other than 'N' and 'E' counts as 'S'.
ChartPicture RashiPicture(const ChartCells& cells, char style);
ChartPicture ChalitPicture(const ChartCells& cells, char style);

// The same picture with the cusps' degrees in their signs, "14°40'"; how they are stored is told by
// the field.
ChartPicture WithDegreesInSign(ChartPicture picture);

// A division, with a title such as "Navamsha (D9)".
ChartPicture DivisionPicture(const vedic::DivisionChart& division, char style,
                             const std::string& title);

// The annual chart of a Lal Kitab table by house. It has no signs of its own: the number in a field
// is that of the house, which in styles by sign stands where the sign of that number does.
ChartPicture AnnualPicture(const core::Table& lalKitabYear, char style);

}  // namespace orvex::report
