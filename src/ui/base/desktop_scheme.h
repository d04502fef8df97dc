// Whether the desktop is light or dark.
#pragma once

#include <QPalette>
#include <functional>

class QObject;

namespace orvex::ui {

// Calls `show` with true for a dark desktop: at once, and again whenever the desktop changes for as
// long as `owner` lives. The desktop's portal is asked; without one the palette that the desktop
// gave the program tells.
void FollowDesktopScheme(QObject& owner, const QPalette& ofDesktop,
                         const std::function<void(bool)>& show);

}  // namespace orvex::ui
