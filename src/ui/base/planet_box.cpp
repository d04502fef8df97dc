#include "ui/base/planet_box.h"

#include <QComboBox>
#include <algorithm>

#include "ui/base/qt_text.h"

namespace orvex::ui {

void AddPlanetsByName(QComboBox& box, const core::ReferenceData& reference) {
  std::vector<core::PlanetInfo> planets = reference.Planets;
  std::sort(planets.begin(), planets.end(),
            [](const core::PlanetInfo& left, const core::PlanetInfo& right) {
              return left.PlanetName < right.PlanetName;
            });
  for (const core::PlanetInfo& planet : planets) {
    box.addItem(Shown(planet.PlanetName), planet.Id);
  }
}

}  // namespace orvex::ui
