// What a right click on one of a horoscope's charts offers: the style of the charts, the divisional
// charts, and that one chart in the clipboard, as a picture or on paper.
#pragma once

#include "ui/horoscope/horoscope_document.h"

namespace orvex::ui {

class ChartView;

// The window of the chart must have an action "divisions"; where it has none, as among the
// divisional charts themselves, the menu leaves it out.
void OfferChartMenu(HoroscopeDocument& document, ChartView& chart);

}  // namespace orvex::ui
