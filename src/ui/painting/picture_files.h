// Charts as picture files, without a window or a display.
#pragma once

#include <filesystem>

#include "report/chart_picture.h"

namespace orvex::ui {

enum class PictureFormat { Bmp, Png, Svg };

// A chart on white paper as the bytes of a picture file: a square of `side` pixels, for SVG of
// `side` units. std::runtime_error where it can't be made. Needs a QGuiApplication.
std::string ChartPictureBytes(const report::ChartPicture& picture, PictureFormat format, int side);

// Writes such a file, which appears whole or not at all. std::runtime_error where it can't be
// written.
void WriteChartPicture(const report::ChartPicture& picture, PictureFormat format, int side,
                       const std::filesystem::path& file);

}  // namespace orvex::ui
