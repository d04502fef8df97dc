// The colour of the day's disha shool, as a band at the edge of a sky.
#pragma once

#include <QColor>
#include <string>

namespace orvex::ui {

// Of red, green and blue as the sky tells them, "254, 250, 133", dimmed on dark. Invalid for no
// colour.
QColor DishaColor(const std::string& rgb);

}  // namespace orvex::ui
