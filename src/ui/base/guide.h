// The user guide: pages that lie on this machine.
#pragma once

#include "ui/base/workplace.h"

namespace orvex::ui {

// Opens the guide with the desktop's browser; where it has none, says where the guide lies.
void OpenGuide(Workplace& place);

}  // namespace orvex::ui
