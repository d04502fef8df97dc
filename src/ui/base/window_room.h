// The room that a window has on its screen.
#pragma once

class QWidget;

namespace orvex::ui {

// Keeps a window, its frame and title counted, no larger than what its screen leaves free: its
// least size gives way a little, then the window shrinks and comes back from beyond the rim. Looked
// at when it is shown, and again once the desktop has given it its frame. What the user does with
// it later is the user's.
void KeepOnScreen(QWidget& window);

}  // namespace orvex::ui
