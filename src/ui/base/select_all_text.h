// A text field marks its whole text when it gets the focus, so that typing replaces it.
#pragma once

class QWidget;

namespace orvex::ui {

// Marks the whole text of a text field; any other widget stays as it is.
void SelectAllText(QWidget& field);

// From now on each text field inside of `window` marks its text when it gets the focus, by key, by
// mouse and by call. A second click sets the cursor, a drag marks what it goes over, and coming
// back from another window leaves the field as it was left.
void SelectAllTextOnFocus(QWidget& window);

}  // namespace orvex::ui
