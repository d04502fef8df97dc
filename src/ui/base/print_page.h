// Documents of pages on their way to paper: seen first, then printed where the user says.
#pragma once

#include <QPageSize>

#include "ui/base/workplace.h"
#include "ui/painting/page_document.h"

class QWidget;

namespace orvex::ui {

struct Printout {
  PageDocument Document;
  bool Landscape = false;  // at first; the user may turn it
  bool OnOnePage = false;  // set as small as it must be
};

// The paper that letters have where the locale of the machine is at home; A4 where it does not say.
QPageSize PaperOfLocale();

// The room between the margins of that paper, upright, in tenths of a point.
double PortraitRoom();

// The room that the widest of the tables asks for, in tenths of a point; 0 without one.
double WidestTable(const std::vector<PageBlock>& blocks);

// Shows the pages in a dialog, light whatever the theme, and prints them from there, on the paper
// and in the direction that the user sets. A file that is printed to is private, and none of the
// program's own is written over: that is told, and nothing is printed.
void PrintWithPreview(Workplace& place, QWidget& parent, const Printout& printout);

}  // namespace orvex::ui
