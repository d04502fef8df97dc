// The drawn icons in the ink of their place: black words, disabled, or on the accent. They follow a
// change of the theme by themselves.
#pragma once

#include <QIcon>

namespace orvex::ui {

// Pixels: beside words, and over a word of the rail.
inline constexpr int kWordIcon = 16;
inline constexpr int kRailIcon = 20;

enum class IconInk { Text, Quiet, Accent, OnAccent, Amber, Now };

// The icon of that name, such as "rotate". An unknown name gives an icon that draws nothing; a test
// draws all that are shipped.
QIcon Icon(const char* name, IconInk ink = IconInk::Text);

}  // namespace orvex::ui
