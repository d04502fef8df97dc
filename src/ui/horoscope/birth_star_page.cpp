#include "ui/horoscope/birth_star_page.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <array>

#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/horoscope/all_columns.h"
#include "ui/horoscope/field_label.h"
#include "ui/horoscope/tables_page.h"

namespace orvex::ui {

namespace {

using Captions = chart::HoroscopeCaptions;
using chart::PlanetColumn;
using chart::PlanetPlace;
using chart::StarColumn;

struct Fact {
  const char* Label;
  std::string Captions::*Value;
};

constexpr std::array<Fact, 6> kFacts = {{
    {QT_TRANSLATE_NOOP("BirthStarPage", "Star of the Moon"), &Captions::Nakshatra},
    {QT_TRANSLATE_NOOP("BirthStarPage", "Varna - Gana"), &Captions::VarnaGana},
    {QT_TRANSLATE_NOOP("BirthStarPage", "Nadi - Yoni"), &Captions::NadiYoni},
    {QT_TRANSLATE_NOOP("BirthStarPage", "Vasya - Rajju"), &Captions::VasyaRajju},
    {QT_TRANSLATE_NOOP("BirthStarPage", "Tithi"), &Captions::Tithi},
    {QT_TRANSLATE_NOOP("BirthStarPage", "Yoga - Karan"), &Captions::YogaKaran},
}};

}  // namespace

BirthStarPage::BirthStarPage(HoroscopeDocument& document)
    : HoroscopePage(document), stars_(new CatalogueTable(document, "StarTable")) {
  stars_->PlanAsUsual();
  stars_->TitleLine().addWidget(MakeAllColumnsButton({stars_}));
  stars_->View().setSelectionMode(QAbstractItemView::SingleSelection);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(space::kM + 2, space::kXs, space::kM + 2, space::kXs);
  layout->addLayout(LayOutFacts());
  layout->addSpacing(kMargin);
  layout->addWidget(stars_, 1);
}

QFormLayout* BirthStarPage::LayOutFacts() {
  auto* facts = new QFormLayout;
  facts->addRow(MakeHeading(tr("At birth")));
  for (const Fact& fact : kFacts) {
    facts_.push_back(MakeCaptionLabel(QString("birthStar") + fact.Label));
    facts->addRow(new FieldLabel(tr(fact.Label)), facts_.back());
  }
  return facts;
}

void BirthStarPage::ShowModel() {
  for (std::size_t i = 0; i < kFacts.size(); ++i) {
    facts_.at(i)->setText(Shown(Model().Captions.*kFacts.at(i).Value));
  }
  stars_->ShowModel();
  SelectQuarterOfMoon();
}

void BirthStarPage::SelectQuarterOfMoon() {
  const std::size_t moon = chart::RowOf(PlanetPlace::Moon);
  if (moon >= Model().PlanetTable.Rows.size()) {
    return;
  }
  const std::string& star = chart::PlanetText(Model(), moon, PlanetColumn::Nakshatra);
  const std::string& pada = chart::PlanetText(Model(), moon, PlanetColumn::Pada);
  const core::Table& stars = Model().StarTable;
  for (std::size_t row = 0; row < stars.Rows.size(); ++row) {
    if (stars.At(row, StarColumn::StarName).Text == star &&
        stars.At(row, StarColumn::Pada).Text == pada) {
      TableView& view = stars_->View();
      const QModelIndex shown = view.Model().index(view.Model().ShownRow(row).value_or(0), 0);
      view.setCurrentIndex(shown);
      view.scrollTo(shown, QAbstractItemView::PositionAtCenter);
    }
  }
}

}  // namespace orvex::ui
