// The two charts of a horoscope on paper.
#pragma once

#include "chart/horoscope_model.h"

class QPrinter;

namespace orvex::ui {

// The title, which tells a rotation, the captions of date and place, and both charts in the style
// 'N', 'E' or 'S' on one page.
void PrintChartPage(QPrinter& printer, const chart::HoroscopeModel& model, char style);

}  // namespace orvex::ui
