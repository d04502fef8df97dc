// The windows that stand open beside the main window.
#pragma once

namespace orvex::ui {

// Deletes every window that would delete itself when closed.
void DeleteOpenWindows();

}  // namespace orvex::ui
