// How pages look: inks, sizes and spaces, in tenths of a point.
#pragma once

#include <QColor>

#include "ui/painting/page_document.h"
#include "ui/painting/page_fonts.h"

namespace orvex::ui {

namespace ink {
inline constexpr QRgb kText = 0xFF1B2026;
inline constexpr QRgb kMuted = 0xFF545A62;
inline constexpr QRgb kAccent = 0xFF1D4E89;
inline constexpr QRgb kGood = 0xFF1B6839;
inline constexpr QRgb kHard = 0xFFA3261B;
inline constexpr QRgb kHair = 0xFFD9D6CE;
inline constexpr QRgb kHeadRule = 0xFF2B3036;
inline constexpr QRgb kHeadGround = 0xFFF3F2EE;
}  // namespace ink

// The size of everything on a page against its usual one; a sheet that must fit takes a smaller.
struct PageScale {
  double Factor = 1;

  int Size(double points) const { return static_cast<int>(points * kPointsToUnits * Factor); }
  double Space(double points) const { return points * kPointsToUnits * Factor; }
};

// The font, the ink and the space above of a text.
struct RoleStyle {
  double Points;
  bool Bold;
  bool Serif;
  bool Italic;
  QRgb Ink;
  double Above;  // points
};

RoleStyle StyleOf(PageRole role);
PageFont FontOf(PageRole role, PageScale scale);

}  // namespace orvex::ui
