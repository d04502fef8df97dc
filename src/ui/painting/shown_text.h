// A text of the libraries below as Qt shows it.
#pragma once

#include <QString>
#include <string>

namespace orvex::ui {

inline QString Shown(const std::string& text) { return QString::fromStdString(text); }

}  // namespace orvex::ui
