#include "ui/dialogs/place_fields.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/exact_numbers.h"
#include "practice/cities.h"
#include "practice/zone_clock.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

QLineEdit* Field(const char* name) {
  auto* field = new QLineEdit;
  field->setObjectName(name);
  field->setMaximumWidth(16 * kGrid);
  return field;
}

QLabel* Caption(const QString& text, QWidget* buddy) {
  auto* label = new QLabel(text);
  label->setBuddy(buddy);
  return label;
}

QPushButton* TakeButton(const char* name) {
  auto* button = new QPushButton;
  button->setObjectName(name);
  button->setAutoDefault(false);
  return button;
}

void Mark(QLineEdit& field, bool changed) {
  QPalette palette = field.parentWidget()->palette();
  if (changed) {
    palette.setColor(QPalette::Text, Theme::Red());
  }
  field.setPalette(palette);
}

}  // namespace

PlaceFields::PlaceFields(Workplace& place, QWidget* parent)
    : QWidget(parent),
      place_(place),
      latitude_(Field("latitude")),
      longitude_(Field("longitude")),
      offset_(Field("offset")),
      clocks_(new QLabel),
      warning_(new QLabel),
      takeFirst_(TakeButton("takeOffset")),
      takeSecond_(TakeButton("takeSecondOffset")) {
  Build();
  for (QLineEdit* field : {latitude_, longitude_, offset_}) {
    connect(field, &QLineEdit::textChanged, this, [this] {
      Compare();
      OfferClocks();
    });
  }
  for (QPushButton* button : {takeFirst_, takeSecond_}) {
    connect(button, &QPushButton::clicked, this,
            [this, button] { offset_->setText(button->property("offset").toString()); });
  }
}

void PlaceFields::Build() {
  clocks_->setObjectName("zoneClocks");
  clocks_->setTextFormat(Qt::PlainText);
  clocks_->setWordWrap(true);
  warning_->setObjectName("zoneWarning");
  warning_->setTextFormat(Qt::PlainText);
  warning_->setWordWrap(true);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->addWidget(Caption(tr("La&titude:"), latitude_), 0, 0);
  grid->addWidget(latitude_, 0, 1);
  grid->addWidget(Caption(tr("Lon&gitude:"), longitude_), 0, 2);
  grid->addWidget(longitude_, 0, 3);
  grid->addWidget(Caption(tr("O&ffset:"), offset_), 1, 0);
  grid->addWidget(offset_, 1, 1);
  grid->addWidget(takeFirst_, 1, 2);
  grid->addWidget(takeSecond_, 1, 3);
  grid->addWidget(clocks_, 2, 0, 1, 4);
  grid->addWidget(warning_, 3, 0, 1, 4);
  grid->setColumnStretch(4, 1);
  HideOffers();
}

void PlaceFields::TakeCity(std::int32_t cityId) {
  city_ = chart::PlaceOfCity(place_.Session, cityId);
  const std::optional<practice::CityForm> row =
      city_ ? practice::OpenEditCity(place_.Session, cityId) : std::nullopt;
  zone_ = row ? row->TimeZone : "";
  offset_->setEnabled(true);
  Fill(city_.value_or(chart::CityPlace{}));
}

void PlaceFields::ShowStored(const chart::ClientForm& form) {
  Fill({form.Latitude, form.Longitude, form.Offset});
}

void PlaceFields::Clear() {
  city_.reset();
  zone_.clear();
  Fill({});
}

void PlaceFields::Forget() {
  city_.reset();
  zone_.clear();
  Fill({"", "", "0"});
  offset_->setEnabled(false);
}

void PlaceFields::Fill(const chart::CityPlace& place) {
  latitude_->setText(Shown(place.Latitude));
  longitude_->setText(Shown(place.Longitude));
  offset_->setText(Shown(place.Offset));
  Compare();
  OfferClocks();
}

void PlaceFields::CopyInto(chart::ClientForm& form) const {
  form.Latitude = Typed(latitude_->text());
  form.Longitude = Typed(longitude_->text());
  form.Offset = Typed(offset_->text());
}

void PlaceFields::Compare() {
  Mark(*latitude_, city_ && latitude_->text() != Shown(city_->Latitude));
  Mark(*longitude_, city_ && longitude_->text() != Shown(city_->Longitude));
  Mark(*offset_, city_ && offset_->text() != Shown(city_->Offset));
}

void PlaceFields::ShowClocks(core::DateTime local) {
  local_ = local;
  OfferClocks();
}

void PlaceFields::HideOffers() {
  clocks_->clear();
  warning_->clear();
  takeFirst_->hide();
  takeSecond_->hide();
}

void PlaceFields::Offer(QPushButton& button, double hours) {
  const QString text = Shown(practice::OffsetText(hours));
  button.setProperty("offset", text);
  button.setText(tr("Use %1").arg(text));
  button.setVisible(offset_->text().trimmed() != text);
}

void PlaceFields::OfferClocks() {
  HideOffers();
  const std::optional<double> longitude = core::ParseNumber(Typed(longitude_->text()));
  if (zone_.empty() || !longitude) {
    return;
  }
  try {
    const practice::ZoneClock clock = practice::ClocksOf(zone_, local_, *longitude);
    clocks_->setText(tr("Clocks in %1 showed %2 (%3) then.")
                         .arg(Shown(zone_), Shown(practice::OffsetText(clock.OffsetInForce)),
                              Shown(clock.Abbreviation)));
    Offer(*takeFirst_, clock.OffsetInForce);
    if (clock.SecondOffset) {
      Offer(*takeSecond_, *clock.SecondOffset);
    }
    QPalette red = palette();
    red.setColor(QPalette::WindowText, Theme::Red());
    warning_->setPalette(red);
    warning_->setText(Shown(practice::ReadingText(clock)));
  } catch (const practice::ZoneError&) {
    clocks_->setText(
        tr("The zone %1 is not in the zone database of this machine.").arg(Shown(zone_)));
  }
}

}  // namespace orvex::ui
