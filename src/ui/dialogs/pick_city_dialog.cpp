#include "ui/dialogs/pick_city_dialog.h"

#include <QHBoxLayout>

#include "practice/cities.h"
#include "ui/base/message_boxes.h"
#include "ui/base/theme.h"
#include "ui/dialogs/city_list.h"

namespace orvex::ui {

PickCityDialog::PickCityDialog(Workplace& place, QWidget* parent)
    : FormDialog(place, "pickCityDialog", parent), cities_(new CityList(place)) {
  setWindowTitle(tr("Select City"));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addWidget(cities_, 1);
  layout->addLayout(MakeButtons(tr("&Select")));
  resize(64 * kGrid, 60 * kGrid);
  connect(cities_, &CityList::CityActivated, this, [this] { Save(); });
}

void PickCityDialog::Save() {
  const core::Row* row = cities_->SelectedRow();
  if (row == nullptr) {
    ShowRefusal({core::kNoCityChosen, core::MessageIcon::Information, "cityList"});
    return;
  }
  const auto text = [row](practice::CityColumn column) {
    return row->Cells.at(core::Table::Index(column)).Text;
  };
  picked_ = {cities_->SelectedCity(), text(practice::CityColumn::CityName),
             text(practice::CityColumn::Latitude), text(practice::CityColumn::Longitude),
             text(practice::CityColumn::Offset)};
  accept();
}

std::optional<PickedCity> PickCity(Workplace& place, QWidget* parent) {
  PickCityDialog dialog(place, parent);
  return dialog.exec() == QDialog::Accepted ? std::optional(dialog.Picked()) : std::nullopt;
}

}  // namespace orvex::ui
