// Pictures of the real windows, for the script that makes them.
#pragma once

#include <filesystem>

class QWidget;

namespace orvex::ui {

// Shows the widget where it is hidden, lets it paint, and writes what it shows as a PNG of device
// pixels. std::runtime_error where the file can't be written.
void WritePicture(QWidget& widget, const std::filesystem::path& file);

}  // namespace orvex::ui
