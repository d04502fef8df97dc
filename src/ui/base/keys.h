// The one table of all keys: menus, buttons, tool tips and the guide's page of keys are made from
// it.
#pragma once

#include <QKeySequence>
#include <QString>
#include <vector>

class QAbstractButton;
class QShortcut;
class QWidget;

namespace orvex::ui {

// The headings of keys that are asked for by name: those of the main window, of the day of a
// planet, and those that mean the same in every list and dialog.
inline constexpr const char* kMainWindow = "Main window";
inline constexpr const char* kTransits = "Transits";
inline constexpr const char* kTables = "Tables and dialogs";

struct KeyEntry {
  const char* Window;  // the heading of the guide's page
  const char* Name;    // the object name of what the key does
  const char* Keys;    // in the portable form, "Ctrl+N"
  const char* Does;    // what the guide says
};

const std::vector<KeyEntry>& AllKeys();

// The key of a name in a window; std::out_of_range for a name that the table does not have.
QKeySequence KeysOf(const QString& window, const QString& name);
bool HasKeys(const QString& window, const QString& name);

// A text with its key behind it, "Rotate (Ctrl+R)", as tool tips say it.
QString WithKeys(const QString& text, const QKeySequence& keys);

// Gives a button its key, which presses it at once, and a tool tip that says so. The key works
// while the button is in sight.
void BindKeys(QAbstractButton& button, const QKeySequence& keys);

// A key of every list, "editChosen" or "deleteChosen", which works while that list has the focus.
QShortcut* KeyInList(QWidget& list, const char* name);

// The table under a heading of the guide's page, as Markdown.
QString GuideTableOfKeys(const QString& window);

}  // namespace orvex::ui
