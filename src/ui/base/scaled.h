// Pixels that are told for the usual text size, at the present one.
#pragma once

#include "ui/base/theme.h"

namespace orvex::ui {

inline int Scaled(int pixels) { return pixels * Theme::TextSize() / 100; }

}  // namespace orvex::ui
