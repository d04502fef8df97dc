#include "ui/dialogs/place_fields.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/exact_numbers.h"
#include "core/typed_coordinate.h"
#include "practice/cities.h"
#include "practice/zone_clock.h"
#include "ui/base/angle_field.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

// Small, but as wide as a coordinate of five decimals.
QLineEdit* NumberField(const char* name) {
  auto* field = new QLineEdit;
  field->setObjectName(name);
  field->setMaximumWidth(field->fontMetrics().horizontalAdvance("-180.00000") + 2 * kMargin);
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
      latitude_(NumberField("latitude")),
      longitude_(NumberField("longitude")),
      offset_(NumberField("offset")),
      clocks_(new QLabel),
      warning_(new QLabel),
      takeFirst_(TakeButton("takeOffset")),
      takeSecond_(TakeButton("takeSecondOffset")) {
  Build();
  for (QLineEdit* field : {latitude_, longitude_, offset_}) {
    connect(field, &QLineEdit::textChanged, this, [this] {
      Compare();
      OfferClocks();
      emit Changed();
    });
  }
  AcceptAngle(*latitude_, core::ReadTypedLatitude);
  AcceptAngle(*longitude_, core::ReadTypedLongitude);
  for (QPushButton* button : {takeFirst_, takeSecond_}) {
    connect(button, &QPushButton::clicked, this,
            [this, button] { TakeOffset(button->property("offset").toString()); });
  }
}

void PlaceFields::Build() {
  clocks_->setObjectName("zoneClocks");
  clocks_->setTextFormat(Qt::PlainText);
  clocks_->setWordWrap(true);
  warning_->setObjectName("zoneWarning");
  warning_->setTextFormat(Qt::PlainText);
  warning_->setWordWrap(true);
  auto* fields = new QHBoxLayout;
  fields->addWidget(latitude_);
  fields->addWidget(Caption(tr("Lon&gitude"), longitude_));
  fields->addWidget(longitude_);
  fields->addWidget(Caption(tr("O&ffset"), offset_));
  fields->addWidget(offset_);
  fields->addWidget(takeFirst_);
  fields->addWidget(takeSecond_);
  fields->addStretch();
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(kGrid / 2);
  column->addLayout(fields);
  column->addWidget(clocks_);
  column->addWidget(warning_);
  warning_->hide();
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
  form.Latitude = core::ReadTypedLatitude(form.Latitude).value_or(form.Latitude);
  form.Longitude = Typed(longitude_->text());
  form.Longitude = core::ReadTypedLongitude(form.Longitude).value_or(form.Longitude);
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

void PlaceFields::TakeOffset(const QString& offset) { offset_->setText(offset); }

void PlaceFields::ShowCast(const QString& sentence) {
  cast_ = sentence;
  ShowSentences();
}

void PlaceFields::ShowSentences() {
  clocks_->setText(QStringList{showed_, cast_}.join(' ').trimmed());
}

void PlaceFields::HideOffers() {
  showed_.clear();
  ShowSentences();
  warning_->clear();
  warning_->hide();
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
    showed_ = tr("Clocks in %1 showed %2 (%3) then.")
                  .arg(Shown(zone_), Shown(practice::OffsetText(clock.OffsetInForce)),
                       Shown(clock.Abbreviation));
    Offer(*takeFirst_, clock.OffsetInForce);
    if (clock.SecondOffset) {
      Offer(*takeSecond_, *clock.SecondOffset);
    }
    QPalette red = palette();
    red.setColor(QPalette::WindowText, Theme::Red());
    warning_->setPalette(red);
    warning_->setText(Shown(practice::ReadingText(clock)));
    warning_->setHidden(warning_->text().isEmpty());
  } catch (const practice::ZoneError&) {
    showed_ = tr("The zone %1 is not in the zone database of this machine.").arg(Shown(zone_));
  }
  ShowSentences();
}

}  // namespace orvex::ui
