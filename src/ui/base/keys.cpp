#include "ui/base/keys.h"

#include <QAbstractButton>
#include <QShortcut>
#include <stdexcept>

namespace orvex::ui {

namespace {

constexpr const char* kHoroscope = "Horoscope";

}  // namespace

// clang-format off
const std::vector<KeyEntry>& AllKeys() {
  static const std::vector<KeyEntry> kKeys = {
      {kMainWindow, "addClient",        "Ctrl+N",       "new birth"},
      {kMainWindow, "newQuery",         "Ctrl+Shift+N", "new query"},
      {kMainWindow, "instantChart",     "Ctrl+I",       "chart of now: a horoscope of this moment"},
      {kMainWindow, "findAnyone",       "Ctrl+K",       "find anyone, in whatever group; once more: the page Search"},
      {kMainWindow, "viewHoroscope",    "Ctrl+Return",  "open the chosen client's horoscope"},
      {kMainWindow, "editClient",       "F2",           "edit the chosen client, or in the list of groups the group"},
      {kMainWindow, "deleteClient",     "Ctrl+Del",     "delete the chosen client"},
      {kMainWindow, "deleteChosen",     "Del",          "in a list: delete what is chosen"},
      {kMainWindow, "undoDelete",       "Ctrl+Z",       "bring back the client that was deleted last"},
      {kMainWindow, "moveClient",       "Ctrl+M",       "move the chosen client to another group"},
      {kMainWindow, "addGroup",         "Ctrl+G",       "add a group"},
      {kMainWindow, "importBirths",     "Ctrl+O",       "import births from files"},
      {kMainWindow, "exportClients",    "Ctrl+E",       "export clients"},
      {kMainWindow, "filterClients",    "Ctrl+F",       "narrow the list of clients"},
      {kMainWindow, "showClients",      "Ctrl+1",       "the page Clients"},
      {kMainWindow, "showSearch",       "Ctrl+2",       "the page Search"},
      {kMainWindow, "showTransits",     "Ctrl+3",       "the page Transits"},
      {kMainWindow, "showHoras",        "Ctrl+4",       "the page Horas"},
      {kMainWindow, "showToday",        "Ctrl+5",       "the page Today: the whole sky of now, and birthdays"},
      {kMainWindow, "transitGrid",      "Ctrl+T",       "the transits of the month"},
      {kMainWindow, "findTransit",      "Ctrl+Shift+F", "find a transit"},
      {kMainWindow, "hora",             "Ctrl+H",       "the horas of a date"},
      {kMainWindow, "previousMonth",    "Ctrl+PgUp",    "the month before, on the page Transits"},
      {kMainWindow, "nextMonth",        "Ctrl+PgDown",  "the month after"},
      {kMainWindow, "previousDay",      "Alt+Left",     "the day before, on the page Horas"},
      {kMainWindow, "nextDay",          "Alt+Right",    "the day after"},
      {kMainWindow, "allColumns",       "F4",           "all columns of the list of clients, and back"},
      {kMainWindow, "refreshSky",       "F5",           "refresh the sky"},
      {kMainWindow, "nextPane",         "F6",           "the next part of the window"},
      {kMainWindow, "foldSky",          "F8",           "fold the sky, and back"},
      {kMainWindow, "mainMenu",         "F10",          "the menus"},
      {kMainWindow, "printPage",        "Ctrl+P",       "print the page in sight"},
      {kMainWindow, "saveGraph",        "Ctrl+S",       "save the graph of the month as SVG, on the page Transits"},
      {kMainWindow, "settings",         "Ctrl+,",       "settings"},
      {kMainWindow, "guide",            "F1",           "this guide"},
      {kMainWindow, "quit",             "Ctrl+Q",       "exit"},
      {kHoroscope, "nextPage",         "Ctrl+PgDown",  "next page"},
      {kHoroscope, "previousPage",     "Ctrl+PgUp",    "page before"},
      {kHoroscope, "nextStyle",        "Ctrl+T",       "next style of charts"},
      {kHoroscope, "rotationMenu",     "Ctrl+R",       "rotate; then a digit is the house"},
      {kHoroscope, "resetRotation",    "Ctrl+0",       "back to the first house"},
      {kHoroscope, "divisions",        "Ctrl+D",       "divisional charts"},
      {kHoroscope, "judgeMatter",      "Ctrl+M",       "judge a matter: the page Matter, with its name to be typed"},
      {kHoroscope, "rectify",          "Ctrl+B",       "rectify the birth time"},
      {kHoroscope, "allColumns",       "F4",           "all columns of the tables, and back"},
      {kHoroscope, "birthPanel",       "F9",           "all captions of the birth"},
      {kHoroscope, "closeSheet",       "Esc",          "put the sheet of a planet away that stands at the side"},
      {kHoroscope, "editClient",       "F2",           "edit the client; the window opens anew"},
      {kHoroscope, "previousClient",   "Alt+Up",       "the client before in the group"},
      {kHoroscope, "nextClient",       "Alt+Down",     "the next client of the group"},
      {kHoroscope, "earlier",          "Alt+Left",     "an earlier birth, on the page Birth time"},
      {kHoroscope, "later",            "Alt+Right",    "a later birth, on the page Birth time"},
      {kHoroscope, "deleteRemedy",     "Del",          "delete the chosen remedy, on the page Remedies"},
      {kHoroscope, "deleteEvent",      "Del",          "delete the chosen life event, on the page Birth time"},
      {kHoroscope, "running",          "Ctrl+J",       "the periods that run today, on the pages Periods and Timeline"},
      {kHoroscope, "printPage",        "Ctrl+P",       "print the page in sight"},
      {kHoroscope, "printSheet",       "Ctrl+Shift+P", "print the KP sheet, one page for the client"},
      {kHoroscope, "saveGraph",        "Ctrl+S",       "save as SVG, on the page Timeline"},
      {kHoroscope, "exportMenu",       "Ctrl+E",       "export the report"},
      {kHoroscope, "guide",            "F1",           "this guide"},
      {kHoroscope, "close",            "Ctrl+W",       "close"},
      {kTransits, "previousDay",       "Alt+Left",     "the day before, in the day of a planet"},
      {kTransits, "nextDay",           "Alt+Right",    "the day after"},
      {kTransits, "backToHours",       "Alt+Up",       "from the minutes back to the hours"},
      {kTables, "openChosen",          "Return",       "open the chosen row, as a double click does"},
      {kTables, "editChosen",          "F2",           "edit the chosen row"},
      {kTables, "deleteChosen",        "Del",          "delete the chosen row, with a question"},
      {kTables, "copyChosen",          "Ctrl+C",       "copy the table, or the chosen rows of several"},
      {kTables, "leave",               "Esc",          "leave a dialog, a popup or a field that narrows"},
      {kTables, "printDialog",         "Ctrl+P",       "print what a dialog with tables shows"},
  };
  return kKeys;
}
// clang-format on

namespace {

const KeyEntry* EntryOf(const QString& window, const QString& name) {
  for (const KeyEntry& entry : AllKeys()) {
    if (window == entry.Window && name == entry.Name) {
      return &entry;
    }
  }
  return nullptr;
}

}  // namespace

bool HasKeys(const QString& window, const QString& name) {
  return EntryOf(window, name) != nullptr;
}

QKeySequence KeysOf(const QString& window, const QString& name) {
  if (const KeyEntry* entry = EntryOf(window, name)) {
    return {entry->Keys, QKeySequence::PortableText};
  }
  throw std::out_of_range("no key is named " + name.toStdString());
}

QString WithKeys(const QString& text, const QKeySequence& keys) {
  QString bare = text;
  bare.remove('&').remove(u'…');
  return keys.isEmpty() ? bare
                        : QString("%1 (%2)").arg(bare, keys.toString(QKeySequence::NativeText));
}

// A button's own shortcut shows it pressed for a while first.
void BindKeys(QAbstractButton& button, const QKeySequence& keys) {
  button.setToolTip(WithKeys(button.text(), keys));
  auto* shortcut = new QShortcut(keys, &button);
  QObject::connect(shortcut, &QShortcut::activated, &button, &QAbstractButton::click);
}

QShortcut* KeyInList(QWidget& list, const char* name) {
  auto* shortcut = new QShortcut(KeysOf(kTables, name), &list);
  shortcut->setContext(Qt::WidgetShortcut);
  return shortcut;
}

QString GuideTableOfKeys(const QString& window) {
  QString table = "| key | does |\n| --- | --- |\n";
  for (const KeyEntry& entry : AllKeys()) {
    if (window == entry.Window) {
      table += QString("| %1 | %2 |\n").arg(entry.Keys, entry.Does);
    }
  }
  return table;
}

}  // namespace orvex::ui
