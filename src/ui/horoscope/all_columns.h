// The button and the key that show tables whole, and their first columns again.
#pragma once

#include <vector>

class QPushButton;

namespace orvex::ui {

class CatalogueTable;

// For tables with plans, which stand on one page.
QPushButton* MakeAllColumnsButton(const std::vector<CatalogueTable*>& tables);

}  // namespace orvex::ui
