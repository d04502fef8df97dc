#include "ui/horoscope/transit_page.h"

#include <QHBoxLayout>
#include <QPushButton>

#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/transit/transit_details_dialog.h"

namespace orvex::ui {

TransitPage::TransitPage(HoroscopeDocument& document)
    : TablesPage(document, {"transitNow", {}, {{"TransitNow", "PlanetTable"}, {"HouseTable"}}}) {
  auto* again = new QPushButton(tr("Read the sky &again"));
  again->setObjectName("readSky");
  connect(again, &QPushButton::clicked, this, [this] { Document().ReadSkyAgain(); });
  again->setFixedHeight(height::kSmallField);
  again->setAutoDefault(false);
  // A planet of now leads to its hours, one of the birth to its sheet.
  CatalogueTable& now = TableOf("TransitNow");
  now.TitleLine().addWidget(again);
  disconnect(&now, &CatalogueTable::PlanetActivated, this, nullptr);
  connect(&now, &CatalogueTable::PlanetActivated, this, [this, &now] {
    const QModelIndex planet = now.View().currentIndex().siblingAtColumn(0);
    ShowHours(transit::PlanetOfName(Typed(planet.data().toString())));
  });
}

void TransitPage::ShowHours(std::optional<transit::Planet> planet) {
  Workplace& place = Document().Place();
  if (planet) {
    TransitDetailsDialog details(place, *planet, place.Session.Time.Today(), this);
    details.exec();
  }
}

}  // namespace orvex::ui
