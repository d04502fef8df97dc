#include "ui/horoscope/transit_page.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace orvex::ui {

TransitPage::TransitPage(HoroscopeDocument& document)
    : TablesPage(document, {"transitNow", {}, {{"TransitNow", "PlanetTable"}, {"HouseTable"}}}) {
  auto* again = new QPushButton(tr("Read the sky &again"));
  again->setObjectName("readSky");
  connect(again, &QPushButton::clicked, this, [this] { Document().ReadSkyAgain(); });
  static_cast<QVBoxLayout*>(layout())->addWidget(again, 0, Qt::AlignLeft);
}

}  // namespace orvex::ui
