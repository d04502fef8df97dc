// The name of a value beside it, in the quiet colour of the theme.
#pragma once

#include <QEvent>
#include <QLabel>

#include "ui/base/theme.h"

namespace orvex::ui {

class FieldLabel final : public QLabel {
  Q_OBJECT

 public:
  explicit FieldLabel(const QString& text) : QLabel(text) { TakeColor(); }

 protected:
  void changeEvent(QEvent* event) override {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
      TakeColor();
    }
  }

 private:
  void TakeColor() {
    if (palette().color(QPalette::WindowText) != Theme::Muted()) {
      QPalette quiet = palette();
      quiet.setColor(QPalette::WindowText, Theme::Muted());
      setPalette(quiet);
    }
  }
};

}  // namespace orvex::ui
