// Charts as picture files, without a window or a display.
#pragma once

#include <filesystem>

#include "report/chart_picture.h"

namespace orvex::ui {

enum class PictureFormat { Bmp, Png, Svg };

// Writes a chart on white paper: a square of `side` pixels, for SVG of `side` units. The file
// appears whole or not at all. std::runtime_error where it can't be written. Needs a
// QGuiApplication.
void WriteChartPicture(const report::ChartPicture& picture, PictureFormat format, int side,
                       const std::filesystem::path& file);

}  // namespace orvex::ui
