#include "ui/horoscope/head_pane.h"

#include <QGridLayout>
#include <array>

#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/horoscope/field_label.h"
#include "ui/horoscope/tables_page.h"

namespace orvex::ui {

namespace {

using C = chart::HoroscopeCaptions;

// A name and the captions that stand behind it; the second only where one follows on the first.
struct HeadField {
  const char* Name;
  std::string C::*Value;
  const char* Label;
  std::string C::*Between = nullptr;
};

constexpr int kRowsOfHead = 4;

// Column by column.
// clang-format off
constexpr std::array<HeadField, 16> kFields = {{
    {"Date",          &C::Date,          QT_TRANSLATE_NOOP("HeadPane", "Born")},
    {"City",          &C::City,          QT_TRANSLATE_NOOP("HeadPane", "Place"), &C::Offset},
    {"Latitude",      &C::Latitude,      QT_TRANSLATE_NOOP("HeadPane", "Lat./Long."), &C::Longitude},
    {"Sunrise",       &C::Sunrise,       QT_TRANSLATE_NOOP("HeadPane", "Sun"), &C::Sunset},
    {"Nakshatra",     &C::Nakshatra,     QT_TRANSLATE_NOOP("HeadPane", "Star")},
    {"Tithi",         &C::Tithi,         QT_TRANSLATE_NOOP("HeadPane", "Tithi")},
    {"YogaKaran",     &C::YogaKaran,     QT_TRANSLATE_NOOP("HeadPane", "Yoga - Karan")},
    {"AscendantSign", &C::AscendantSign, QT_TRANSLATE_NOOP("HeadPane", "Ascendant")},
    {"VarnaGana",     &C::VarnaGana,     QT_TRANSLATE_NOOP("HeadPane", "Varna - Gana")},
    {"NadiYoni",      &C::NadiYoni,      QT_TRANSLATE_NOOP("HeadPane", "Nadi - Yoni")},
    {"VasyaRajju",    &C::VasyaRajju,    QT_TRANSLATE_NOOP("HeadPane", "Vasya - Rajju")},
    {"BadhakHouse",   &C::BadhakHouse,   QT_TRANSLATE_NOOP("HeadPane", "Badhak house")},
    {"PartOfFortune", &C::PartOfFortune, QT_TRANSLATE_NOOP("HeadPane", "Fortune")},
    {"BhriguBindu",   &C::BhriguBindu,   QT_TRANSLATE_NOOP("HeadPane", "Bhrigu Bindu")},
    {"Numerology",    &C::Numerology,    QT_TRANSLATE_NOOP("HeadPane", "Numbers")},
    {"DashaBalance",  &C::DashaBalance,  QT_TRANSLATE_NOOP("HeadPane", "Balance")},
}};
// clang-format on

// Between two captions of one field.
QString SeparatorOf(const HeadField& field) {
  return field.Between == &C::Offset ? QString() : QStringLiteral(" / ");
}

QString ValueOf(const C& captions, const HeadField& field) {
  QString value = Shown(captions.*field.Value);
  if (field.Between != nullptr) {
    value += SeparatorOf(field) + Shown(captions.*field.Between);
  }
  return value;
}

}  // namespace

HeadPane::HeadPane(HoroscopeDocument& document) : document_(document) {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(kGrid, kGrid / 2, kGrid, kGrid / 2);
  grid->setVerticalSpacing(2);
  grid->setHorizontalSpacing(kGrid);
  AddCaptions(*grid);
  AddLine(*grid, kRowsOfHead);
}

void HeadPane::AddCaptions(QGridLayout& grid) {
  for (std::size_t i = 0; i < kFields.size(); ++i) {
    const HeadField& field = kFields.at(i);
    const int row = static_cast<int>(i) % kRowsOfHead;
    const int column = static_cast<int>(i) / kRowsOfHead * 3;
    values_.push_back(MakeCaptionLabel(field.Name));
    grid.addWidget(new FieldLabel(tr(field.Label)), row, column);
    grid.addWidget(values_.back(), row, column + 1);
    grid.setColumnMinimumWidth(column + 2, kGrid);
    grid.setColumnStretch(column + 2, 1);
  }
}

void HeadPane::AddLine(QGridLayout& grid, int row) {
  periods_ = MakeCaptionLabel("CurrentDBA");
  QFont font = periods_->font();
  font.setWeight(QFont::DemiBold);
  periods_->setFont(font);
  question_ = MakeCaptionLabel("HoraryQuestion");
  question_->setWordWrap(true);
  grid.addWidget(periods_, row, 0, 1, -1);
  grid.addWidget(question_, row + 1, 0, 1, -1);
}

void HeadPane::ShowModel() {
  const chart::HoroscopeModel& model = document_.Model();
  for (std::size_t i = 0; i < kFields.size(); ++i) {
    values_.at(i)->setText(ValueOf(model.Captions, kFields.at(i)));
  }
  periods_->setText(Shown(model.Captions.CurrentDBA));
  question_->setText(Shown(model.HoraryQuestion));
  question_->setVisible(model.Horary && !model.HoraryQuestion.empty());
}

}  // namespace orvex::ui
