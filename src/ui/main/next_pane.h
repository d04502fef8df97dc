// The parts of a window, one after the other by a key.
#pragma once

#include <vector>

class QWidget;

namespace orvex::ui {

// Gives the focus to the part behind the one that has it, of those that are in sight; the first one
// where none has. A part that takes no keys gives them to its first widget that does.
void FocusNextPane(const QWidget& window, const std::vector<QWidget*>& panes);

}  // namespace orvex::ui
