// Boxes that a planet is picked from.
#pragma once

#include "core/reference_data.h"

class QComboBox;

namespace orvex::ui {

// Adds the planets by name, each with its id as the data.
void AddPlanetsByName(QComboBox& box, const core::ReferenceData& reference);

}  // namespace orvex::ui
