#include "ui/horoscope/all_columns.h"

#include <QPushButton>

#include "ui/base/icon.h"
#include "ui/base/keys.h"
#include "ui/base/named.h"
#include "ui/base/theme.h"
#include "ui/horoscope/catalogue_table.h"

namespace orvex::ui {

QPushButton* MakeAllColumnsButton(const std::vector<CatalogueTable*>& tables) {
  QPushButton* button = MakeButton("allColumns", QObject::tr("All columns"));
  button->setFlat(true);
  button->setCheckable(true);
  button->setIcon(Icon("columns"));
  button->setFixedHeight(height::kSmallField);
  BindKeys(*button, KeysOf("Horoscope", "allColumns"));
  QObject::connect(button, &QPushButton::toggled, button, [tables](bool all) {
    for (CatalogueTable* table : tables) {
      table->Plan()->ShowAll(all);
    }
  });
  return button;
}

}  // namespace orvex::ui
