// Windows on paper: what is in sight of one, under its title.
#pragma once

#include "ui/base/print_page.h"

class QAction;

namespace orvex::ui {

// What stands above the blocks. The title runs at the head of further pages.
struct PrintedHead {
  QString Title;
  QString Lead;     // "" for none
  QString Section;  // "" for none
};

// A page with the astrologer's name and today's date at its foot; across where that keeps its
// tables together.
Printout PrintoutOf(const QWidget& widget, const PrintedHead& head, const core::Session& session);

// Lets Ctrl+P print what a dialog shows, under its title. The action belongs to the dialog.
QAction* OfferPrint(Workplace& place, QWidget& dialog);

}  // namespace orvex::ui
