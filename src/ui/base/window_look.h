// How all windows look by the settings: the theme, the size of their texts, the form of degrees.
#pragma once

#include <QEvent>

#include "core/settings.h"

namespace orvex::ui {

// What every open window is told when the size of texts or the form of degrees has changed; it then
// makes its contents anew, as all measures follow from these.
QEvent::Type LookChanged();

// Takes the look of the settings; open windows follow at once.
void TakeLook(const core::LookSettings& look);

}  // namespace orvex::ui
