#include "ui/dialogs/city_dialog.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>

#include "core/text.h"
#include "core/typed_coordinate.h"
#include "ui/base/angle_field.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_view.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

QLineEdit* Field(const char* name) {
  auto* field = new QLineEdit;
  field->setObjectName(name);
  return field;
}

}  // namespace

CityDialog::CityDialog(Workplace& place, std::int32_t cityId, QWidget* parent)
    : FormDialog(place, "cityDialog", parent),
      cityId_(cityId),
      name_(Field("cityName")),
      zones_(new TableView),
      latitude_(Field("latitude")),
      longitude_(Field("longitude")),
      offset_(Field("offset")) {
  AcceptAngle(*latitude_, core::ReadTypedLatitude);
  AcceptAngle(*longitude_, core::ReadTypedLongitude);
  zones_->setObjectName("timeZone");
  zones_->setAccessibleName(tr("Time zone"));
  zones_->setSelectionMode(QAbstractItemView::SingleSelection);
  zones_->setMinimumSize(56 * kGrid, 24 * kGrid);
  connect(zones_, &TableView::TagChosen, this, [this] { TakeOffset(); });
}

CityDialog* CityDialog::ForNew(Workplace& place, QWidget* parent) {
  std::optional<core::Table> zones = practice::OpenAddCity(place.Session);
  if (!zones) {
    return nullptr;
  }
  auto* dialog = new CityDialog(place, 0, parent);
  dialog->zones_->SetTable(std::move(*zones));
  dialog->Build(tr("Add City"), tr("&Add"));
  return dialog;
}

CityDialog* CityDialog::ForEdit(Workplace& place, std::int32_t cityId, QWidget* parent) {
  const std::optional<practice::CityForm> form = practice::OpenEditCity(place.Session, cityId);
  if (!form) {
    return nullptr;
  }
  auto* dialog = new CityDialog(place, cityId, parent);
  dialog->Fill(*form);
  dialog->Build(tr("Edit City"), tr("&Save"));
  return dialog;
}

void CityDialog::Build(const QString& title, const QString& action) {
  setWindowTitle(title);
  auto* fields = new QFormLayout;
  fields->addRow(tr("City &Name:"), name_);
  fields->addRow(tr("Time &Zone:"), zones_);
  fields->addRow(tr("La&titude:"), latitude_);
  fields->addRow(tr("Lon&gitude:"), longitude_);
  fields->addRow(tr("&Offset:"), offset_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addLayout(fields);
  layout->addLayout(MakeButtons(action));
}

void CityDialog::Fill(const practice::CityForm& form) {
  name_->setText(Shown(form.CityName));
  latitude_->setText(Shown(form.Latitude));
  longitude_->setText(Shown(form.Longitude));
  offset_->setText(Shown(form.Offset));
  zones_->setEnabled(false);
  zones_->SetEmptyText(tr("Time Zone can't be changed in Edit mode."));
}

void CityDialog::TakeOffset() {
  const QModelIndex row = zones_->currentIndex();
  const auto column = static_cast<int>(core::Table::Index(practice::ZoneColumn::Offset));
  offset_->setText(row.siblingAtColumn(column).data().toString());
}

QString CityDialog::SavedName() const { return Shown(core::Trim(Typed(name_->text()))); }

void CityDialog::Save() {
  const QModelIndex zone = zones_->currentIndex().siblingAtColumn(0);
  const practice::CityForm form{Typed(name_->text()), Typed(zone.data().toString()),
                                Typed(offset_->text()), Typed(latitude_->text()),
                                Typed(longitude_->text())};
  Finish(cityId_ == 0 ? practice::SaveNewCity(Session(), form)
                      : practice::SaveCityChanges(Session(), form, cityId_));
}

}  // namespace orvex::ui
