// Picks a city for the settings, the hora view or the transit grid.
#pragma once

#include "ui/base/form_dialog.h"

namespace orvex::ui {

class CityList;

// What the opener takes from the chosen row.
struct PickedCity {
  std::int32_t Id = 0;
  std::string Name;
  std::string Latitude;
  std::string Longitude;
  std::string Offset;
};

class PickCityDialog final : public FormDialog {
  Q_OBJECT

 public:
  explicit PickCityDialog(Workplace& place, QWidget* parent = nullptr);

  const PickedCity& Picked() const { return picked_; }

 private:
  void Save() override;
  bool HoldsData() const override { return false; }

  CityList* cities_;
  PickedCity picked_;
};

// Lets the user pick a city; nothing where they turned back.
std::optional<PickedCity> PickCity(Workplace& place, QWidget* parent);

}  // namespace orvex::ui
