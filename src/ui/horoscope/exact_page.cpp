#include "ui/horoscope/exact_page.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "core/settings.h"
#include "horoscope/exact_reading.h"
#include "ui/base/export_table.h"
#include "ui/base/message_boxes.h"
#include "ui/base/qt_text.h"
#include "ui/base/segments.h"
#include "ui/base/theme.h"
#include "ui/horoscope/field_label.h"

namespace orvex::ui {

namespace {

// clang-format off
const std::vector<ColumnPlan> kCuspColumns = {
    {"House",        CellKind::Text,  46, 0},
    {"Position",     CellKind::Text, 104, 0},
    {"Longitude",    CellKind::Text,  88, 4},
    {"Sign Lord",    CellKind::Chip,  76, 3},
    {"Star Lord",    CellKind::Chip,  76, 0},
    {"Sub Lord",     CellKind::Chip,  76, 0},
    {"Sub Sub Lord", CellKind::Chip,  86, 1},
    {"Since",        CellKind::Text,  64, 0},
    {"Until",        CellKind::Text,  64, 0},
    {"Stored",       CellKind::Text, 130, 2}};

const std::vector<ColumnPlan> kPlanetColumns = {
    {"Planet",       CellKind::Chip, 104, 0},
    {"R",            CellKind::Text,  32, 0},
    {"Position",     CellKind::Text, 104, 0},
    {"Longitude",    CellKind::Text,  88, 4},
    {"House",        CellKind::Text,  46, 0},
    {"Sign Lord",    CellKind::Chip,  76, 3},
    {"Star Lord",    CellKind::Chip,  76, 0},
    {"Sub Lord",     CellKind::Chip,  76, 0},
    {"Sub Sub Lord", CellKind::Chip,  86, 1},
    {"To Border",    CellKind::Text,  86, 0},
    {"Stored",       CellKind::Text, 130, 2}};
// clang-format on

constexpr int kHeightForBoth = 530;  // below, one table at a time

}  // namespace

ExactPage::ExactPage(HoroscopeDocument& document)
    : HoroscopePage(document),
      ayanamsa_(new Segments({{"readKp", tr("&KP")}, {"readKpNew", tr("KP &new")}})),
      part_(new Segments({{"showExactCusps", tr("Cusps")}, {"showExactPlanets", tr("Planets")}})),
      captions_(MakeCaptionLabel("exactCaptions")),
      message_(MakeCaptionLabel("exactMessage")) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(space::kM + 2, space::kXs, space::kM + 2, space::kXs);
  layout->setSpacing(space::kXs);
  layout->addLayout(LayOutHead());
  cusps_ = AddTable("ExactCusps", tr("Cusps to the second"), kCuspColumns, *layout);
  message_->setWordWrap(true);
  layout->addWidget(message_);
  planets_ = AddTable("ExactPlanets", tr("Planets to the second"), kPlanetColumns, *layout);
  // The twelve rows and the nine share the height.
  layout->setStretchFactor(cusps_, 14);
  layout->setStretchFactor(planets_, 11);
  connect(part_, &Segments::ChosenChanged, this, &ExactPage::Arrange);
  setMinimumSize(1, 1);
}

QHBoxLayout* ExactPage::LayOutHead() {
  ayanamsa_->setAccessibleName(tr("Ayanamsa"));
  ayanamsa_->Choose(static_cast<int>(exact::ReadingOf(Document().Place().Session)));
  connect(ayanamsa_, &Segments::ChosenChanged, this,
          [this](int part) { ChooseReading(static_cast<exact::Reading>(part)); });
  captions_->setWordWrap(true);
  auto* head = new QHBoxLayout;
  auto* name = new FieldLabel(tr("Ayanamsa"));
  name->setBuddy(ayanamsa_);
  head->addWidget(name);
  head->addWidget(ayanamsa_);
  head->addWidget(captions_, 1);
  head->addWidget(part_);
  return head;
}

TableView* ExactPage::AddTable(const char* name, const QString& title,
                               const std::vector<ColumnPlan>& columns, QVBoxLayout& layout) {
  auto* view = new TableView;
  view->setObjectName(name);
  view->setAccessibleName(title);
  view->setSortingEnabled(false);
  view->setMinimumSize(1, 1);
  OfferExport(Document().Place(), *view);
  auto* plan = new TablePlan(*view, columns);
  connect(plan, &TablePlan::CodeClicked, &Document(), &HoroscopeDocument::ChoosePlanet);
  connect(&Document(), &HoroscopeDocument::PlanetChosen, plan, &TablePlan::SetChosen);
  plan->SetChosen(Document().ChosenPlanet());
  plans_.push_back(plan);
  layout.addWidget(view);
  return view;
}

// The choice is that of the program, for this client and the next.
void ExactPage::ChooseReading(exact::Reading reading) {
  core::Session& session = Document().Place().Session;
  const core::SaveResult saved = core::SaveExactAyanamsa(session, exact::ReadingName(reading));
  if (saved.Refused) {
    Complain(session.Shown, saved.Refused->Text);
  }
  ShowModel();
}

void ExactPage::resizeEvent(QResizeEvent* event) {
  HoroscopePage::resizeEvent(event);
  Arrange();
}

// Both tables where they have room, else the one that is chosen. Without cusps the planets stand
// alone under the message.
void ExactPage::Arrange() {
  const bool both = !hasCusps_ || height() >= kHeightForBoth * Theme::TextSize() / 100;
  const bool cusps = part_->Chosen() == 0;
  part_->setVisible(!both);
  cusps_->setVisible(hasCusps_ && (both || cusps));
  planets_->setVisible(both || !cusps);
  for (TablePlan* plan : plans_) {
    plan->Fit();
  }
}

void ExactPage::ShowModel() {
  const horoscope::OpenedHoroscope& opened = Document().Opened();
  const horoscope::ExactReading reading =
      horoscope::ReadToTheSecond(Document().Place().Session, opened.Model, opened.Birth,
                                 static_cast<exact::Reading>(ayanamsa_->Chosen()));
  captions_->setText(
      tr("%1   %2   Stored chart: %3   Tinted: the stored chart says otherwise.")
          .arg(Shown(reading.Ayanamsa), Shown(reading.Moment), Shown(reading.StoredMoment)));
  message_->setText(Shown(reading.Message));
  message_->setVisible(!reading.Message.empty());
  hasCusps_ = reading.Message.empty();
  cusps_->SetTable(reading.Cusps);
  planets_->SetTable(reading.Planets);
  Arrange();
}

}  // namespace orvex::ui
