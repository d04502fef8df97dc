// A table of a window on paper.
#pragma once

#include "ui/painting/page_document.h"

namespace orvex::ui {

class TableView;

// The columns and rows that the view shows, in their order; degrees as the view shows them.
PageTable ShownTableOf(const TableView& view);

}  // namespace orvex::ui
