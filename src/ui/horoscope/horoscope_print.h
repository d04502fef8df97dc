// What the window of a horoscope puts on paper.
#pragma once

#include "report/kp_sheet.h"
#include "ui/base/window_print.h"
#include "ui/horoscope/horoscope_document.h"

namespace orvex::ui {

class ChartView;

// The page in sight under the client's name, which tells a rotation, and under the birth.
Printout PagePrintout(HoroscopeDocument& document, const QWidget& page, const QString& title);

// One chart under its window's title and the birth.
Printout ChartPrintout(HoroscopeDocument& document, const ChartView& chart);

// The one sheet that the client takes home, with the matter that was judged in the window.
report::KpSheet SheetOfWindow(HoroscopeDocument& document);
Printout SheetPrintout(HoroscopeDocument& document);

}  // namespace orvex::ui
