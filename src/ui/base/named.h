// Widgets under the names by which tests and remembered sizes know them.
#pragma once

#include <QObject>
#include <QPushButton>

namespace orvex::ui {

template <typename Widget>
Widget* Named(Widget* widget, const char* name) {
  widget->setObjectName(name);
  return widget;
}

// A button that the Enter key of a dialog does not press on its own.
inline QPushButton* MakeButton(const char* name, const QString& text) {
  auto* button = Named(new QPushButton(text), name);
  button->setAutoDefault(false);
  return button;
}

}  // namespace orvex::ui
