// What every window is given: the session and the ways out to the user and the desktop.
#pragma once

#include <cstdint>
#include <functional>

#include "core/session.h"
#include "ui/base/file_dialogs.h"
#include "ui/base/layout_memory.h"

namespace orvex::ui {

struct Workplace {
  core::Session& Session;
  FileDialogs& Files;
  LayoutMemory& Layout;
};

}  // namespace orvex::ui
