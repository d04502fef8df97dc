#include "ui/horoscope/birth_panel.h"

#include <QGridLayout>
#include <array>

#include "ui/base/elided_label.h"
#include "ui/base/labels.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/horoscope/field_label.h"
#include "ui/painting/page_fonts.h"

namespace orvex::ui {

namespace {

using C = chart::HoroscopeCaptions;

// A name and the captions that stand behind it; the second only where one follows on the first.
struct BirthField {
  const char* Name;
  std::string C::*Value;
  const char* Label;
  std::string C::*Between = nullptr;
};

// clang-format off
constexpr std::array<BirthField, 16> kFields = {{
    {"Date",          &C::Date,          QT_TRANSLATE_NOOP("BirthPanel", "Born")},
    {"City",          &C::City,          QT_TRANSLATE_NOOP("BirthPanel", "Place"), &C::Offset},
    {"Latitude",      &C::Latitude,      QT_TRANSLATE_NOOP("BirthPanel", "Lat./Long."), &C::Longitude},
    {"Sunrise",       &C::Sunrise,       QT_TRANSLATE_NOOP("BirthPanel", "Sun"), &C::Sunset},
    {"Nakshatra",     &C::Nakshatra,     QT_TRANSLATE_NOOP("BirthPanel", "Star")},
    {"Tithi",         &C::Tithi,         QT_TRANSLATE_NOOP("BirthPanel", "Tithi")},
    {"YogaKaran",     &C::YogaKaran,     QT_TRANSLATE_NOOP("BirthPanel", "Yoga - Karan")},
    {"AscendantSign", &C::AscendantSign, QT_TRANSLATE_NOOP("BirthPanel", "Ascendant")},
    {"DashaBalance",  &C::DashaBalance,  QT_TRANSLATE_NOOP("BirthPanel", "Balance")},
    {"VarnaGana",     &C::VarnaGana,     QT_TRANSLATE_NOOP("BirthPanel", "Varna - Gana")},
    {"NadiYoni",      &C::NadiYoni,      QT_TRANSLATE_NOOP("BirthPanel", "Nadi - Yoni")},
    {"VasyaRajju",    &C::VasyaRajju,    QT_TRANSLATE_NOOP("BirthPanel", "Vasya - Rajju")},
    {"BadhakHouse",   &C::BadhakHouse,   QT_TRANSLATE_NOOP("BirthPanel", "Badhak house")},
    {"PartOfFortune", &C::PartOfFortune, QT_TRANSLATE_NOOP("BirthPanel", "Fortune")},
    {"BhriguBindu",   &C::BhriguBindu,   QT_TRANSLATE_NOOP("BirthPanel", "Bhrigu Bindu")},
    {"Numerology",    &C::Numerology,    QT_TRANSLATE_NOOP("BirthPanel", "Numbers")},
}};
// clang-format on

QString ValueOf(const C& captions, const BirthField& field) {
  QString value = Shown(captions.*field.Value);
  if (field.Between != nullptr) {
    value += (field.Between == &C::Offset ? QString() : QStringLiteral(" / ")) +
             Shown(captions.*field.Between);
  }
  return value;
}

}  // namespace

BirthPanel::BirthPanel(HoroscopeDocument& document) : document_(document) {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setVerticalSpacing(2);
  grid->setHorizontalSpacing(space::kS);
  grid->addWidget(MakeHeading(tr("Birth")), 0, 0, 1, 2);
  int row = 1;
  for (const BirthField& field : kFields) {
    auto* label = new FieldLabel(tr(field.Label));
    auto* value = new ElidedLabel(field.Name);
    label->setFont(Theme::Text(type::kSmall));
    value->setFont(Theme::Text(type::kSmall));
    value->setAccessibleName(tr(field.Label));
    values_.push_back(value);
    grid->addWidget(label, row, 0);
    grid->addWidget(value, row++, 1);
  }
  grid->setColumnStretch(1, 1);
  grid->setRowStretch(row, 1);
}

void BirthPanel::ShowModel() {
  for (std::size_t i = 0; i < kFields.size(); ++i) {
    values_.at(i)->setText(ValueOf(document_.Model().Captions, kFields.at(i)));
  }
}

std::vector<PageBlock> BirthPanel::PrintedBlocks() const {
  PageFacts facts;
  for (std::size_t i = 0; i < kFields.size(); ++i) {
    facts.Facts.push_back(
        {tr(kFields.at(i).Label), PlainText(ValueOf(document_.Model().Captions, kFields.at(i)))});
  }
  return {{PageText{PageRole::Part, tr("Birth")}}, {facts}};
}

}  // namespace orvex::ui
