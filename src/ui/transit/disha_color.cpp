#include "ui/transit/disha_color.h"

#include <algorithm>
#include <vector>

#include "core/exact_numbers.h"
#include "core/text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

QColor DishaColor(const std::string& rgb) {
  constexpr int kDimmed = 135;  // per cent darker
  const std::vector<std::string> parts = core::Split(rgb, ',');
  if (parts.size() != 3) {
    return {};
  }
  const auto part = [&parts](std::size_t i) {
    return std::clamp(static_cast<int>(core::ParseWhole(core::Trim(parts[i])).value_or(255)), 0,
                      255);
  };
  const QColor color(part(0), part(1), part(2));
  return Theme::Mode() == ThemeMode::Dark ? color.darker(kDimmed) : color;
}

}  // namespace orvex::ui
