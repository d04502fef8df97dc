#include "ui/base/window_look.h"

#include <QApplication>
#include <QWidget>

#include "ui/base/cell_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

ThemeChoice ChoiceOf(const std::string& theme) {
  return theme == "dark"    ? ThemeChoice::Dark
         : theme == "light" ? ThemeChoice::Light
                            : ThemeChoice::Desktop;
}

}  // namespace

QEvent::Type LookChanged() {
  static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
  return type;
}

void TakeLook(const core::LookSettings& look) {
  const bool changes =
      look.TextSize != Theme::TextSize() || look.DegreesInSign != ShowsDegreesInSign();
  Theme::Choose(ChoiceOf(look.Theme));
  Theme::SetTextSize(look.TextSize);
  ShowDegreesInSign(look.DegreesInSign);
  if (changes) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      QCoreApplication::postEvent(window, new QEvent(LookChanged()));
    }
  }
}

}  // namespace orvex::ui
