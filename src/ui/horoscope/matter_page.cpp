#include "ui/horoscope/matter_page.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <array>

#include "core/text.h"
#include "judgement/fruitful_tests.h"
#include "judgement/house_grades.h"
#include "judgement/judge_matter.h"
#include "judgement/matter_planets.h"
#include "ui/base/cell_text.h"
#include "ui/base/elided_label.h"
#include "ui/base/labels.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/scaled.h"
#include "ui/base/segments.h"
#include "ui/base/theme.h"
#include "ui/dialogs/matters_dialog.h"
#include "ui/horoscope/field_label.h"
#include "ui/horoscope/house_group_line.h"
#include "ui/horoscope/matter_box.h"
#include "ui/horoscope/matter_table.h"
#include "ui/horoscope/promise_panel.h"
#include "ui/horoscope/ranked_panel.h"

namespace orvex::ui {

namespace {

constexpr int kMatterWidth = 190;
constexpr int kRoomForAll = 1000;  // below, and where the window is low, a part at a time
constexpr int kHeightForAll = 560;
constexpr double kUpperPart = 0.5;  // of the height
constexpr int kLeastUpper = 300;
constexpr int kMostUpper = 350;
constexpr const char* kLastMatter = "lastMatter";

// clang-format off
const std::vector<ColumnPlan> kGradeColumns = {
    {"House", CellKind::Houses, 42, 0},
    {"A",     CellKind::Chips,  66, 0},
    {"B",     CellKind::Chips,  66, 0},
    {"C",     CellKind::Chips,  66, 0},
    {"D",     CellKind::Chips,  40, 0},
    {"Nodes", CellKind::Agents, 66, 0}};

const std::vector<ColumnPlan> kTestColumns = {
    {"Planet",     CellKind::Code,   46, 0},
    {"Grade",      CellKind::Bold,   40, 0},
    {"Supporting", CellKind::Houses, 64, 1},
    {"Denying",    CellKind::Houses, 64, 2},
    {"Ruling",     CellKind::Words, 120, 0},
    {"Star",       CellKind::Tick,   34, 0},
    {"Sub",        CellKind::Tick,   34, 0},
    {"Fruitful",   CellKind::Tick,   52, 0}};
// clang-format on

constexpr RowBounds kPageRows = {height::kLeastRow, height::kMostRow, true};

// The chips of the nodes tell in their tip for whom they stand.
core::Table WithAgentsTold(core::Table houseGrades) {
  for (std::size_t row = 0; row < houseGrades.Rows.size(); ++row) {
    core::Cell& nodes = houseGrades.At(row, judgement::HouseGradeColumn::Nodes);
    nodes.Tooltip = nodes.Text;
  }
  return houseGrades;
}

std::set<QString> CodesOf(const std::set<std::string>& planets) {
  std::set<QString> codes;
  for (const std::string& planet : planets) {
    codes.insert(CodeOfWord(Shown(planet)));
  }
  return codes;
}

// "R" and "C" behind a planet; whose star and sub it stands in is told by the tests.
QStringList ChipMarksOf(const QModelIndex& index) {
  QStringList marks;
  const auto column = static_cast<int>(core::Table::Index(judgement::FruitfulColumn::Marks));
  for (const QString& mark : index.siblingAtColumn(column).data().toString().split(", ")) {
    if (mark.size() == 1) {
      marks << mark;
    }
  }
  return marks;
}

}  // namespace

MatterPage::MatterPage(HoroscopeDocument& document)
    : HoroscopePage(document),
      matter_(new MatterBox(document.Place())),
      group_(new HouseGroupLine),
      edit_(new LinkButton("editGroups")),
      whose_(new Segments(
          {{"judgedAtBirth", document.Model().Horary ? tr("At query") : tr("At birth")},
           {"judgedNow", tr("Now")}})),
      part_(new Segments({{"showPromise", tr("Promise")},
                          {"showGrades", tr("Significators")},
                          {"showTests", tr("Fruitful")},
                          {"showPeriods", tr("Periods")}})),
      promise_(new PromisePanel(document)),
      grades_(new MatterTable(document, "HouseGrades", tr("Significators by house"), kGradeColumns,
                              kPageRows)),
      planets_(new MatterTable(document, "MatterPlanets", tr("Fruitful, and why"), kTestColumns,
                               kPageRows)),
      keep_(MakeButton("keepMoment", tr("Keep"))),
      ranked_(new RankedPanel(document)),
      upper_(new QWidget) {
  // A query is judged at the moment in which it was put.
  whose_->Choose(document.Model().Horary ? 0 : 1);
  QObject name;
  name.setObjectName(KeptName());
  kept_ = judgement::ReadKept(Typed(document.Place().Layout.ChosenEntry(name)));
  keep_->setCheckable(true);
  keep_->setChecked(kept_.has_value());
  LayOut();
  Connect();
}

QHBoxLayout* MatterPage::LayOutHead() {
  auto* caption = new FieldLabel(tr("&Matter"));
  caption->setBuddy(matter_);
  matter_->setFixedWidth(Scaled(kMatterWidth));
  matter_->setAccessibleName(tr("Matter"));
  edit_->setText(tr("Edit house groups"));
  auto* head = new QHBoxLayout;
  head->setSpacing(space::kM);
  head->addWidget(caption);
  head->addWidget(matter_);
  head->addWidget(group_);
  head->addWidget(edit_);
  head->addStretch(1);
  head->addWidget(whose_);
  return head;
}

void MatterPage::LayOut() {
  keep_->setFixedSize(keep_->fontMetrics().horizontalAdvance(keep_->text()) + 2 * space::kM,
                      height::kSmallField);
  keep_->setToolTip(tr("Keep this moment of judgement for this client"));
  planets_->TitleLine().addWidget(keep_);
  planets_->Plan().Cells().SetMarks(ChipMarksOf);
  planets_->View().setFont(Theme::Text(type::kSmall));
  grades_->SetNote(
      tr("ring: fruitful · A in the star of B · B stands there · C in the star of D · D owns"));
  auto* upper = new QHBoxLayout(upper_);
  upper->setContentsMargins(0, 0, 0, 0);
  upper->setSpacing(space::kL);
  upper->addWidget(promise_, 106);
  upper->addWidget(grades_, 100);
  upper->addWidget(planets_, 100);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(space::kM + 2, space::kXs, space::kM + 2, space::kXs);
  layout->setSpacing(space::kXs);
  layout->addLayout(LayOutHead());
  layout->addWidget(part_, 0, Qt::AlignLeft);
  layout->addWidget(upper_);
  layout->addWidget(ranked_, 1);
  setMinimumSize(1, 1);
}

void MatterPage::Connect() {
  connect(matter_, &MatterBox::MatterChosen, this, &MatterPage::ChooseMatter);
  connect(edit_, &QPushButton::clicked, this, &MatterPage::EditGroups);
  connect(whose_, &Segments::ChosenChanged, this, &MatterPage::ShowModel);
  connect(part_, &Segments::ChosenChanged, this, &MatterPage::Arrange);
  connect(keep_, &QPushButton::toggled, this, &MatterPage::KeepMoment);
  connect(ranked_, &RankedPanel::WindowChanged, this, &MatterPage::ShowModel);
  connect(ranked_, &RankedPanel::Told, this, &HoroscopePage::Told);
  connect(ranked_, &RankedPanel::PeriodOpened, this, [this](core::DateTime day) {
    if (Document().GoToDay(day)) {
      emit PageWanted("dasha");
    }
  });
}

// The name under which the kept moment of this client is remembered.
QString MatterPage::KeptName() const { return "judgedAt/" + WholeText(Model().ClientId); }

bool MatterPage::OfBirth() const { return whose_->Chosen() == 0; }

judgement::KeptMoment MatterPage::Moment() {
  const core::Session& session = Document().Place().Session;
  if (OfBirth()) {
    return {judgement::AtBirth(Model()), Model().City};
  }
  return kept_.value_or(
      judgement::KeptMoment{judgement::NowAtUserCity(session), session.State.UserCityName});
}

void MatterPage::KeepMoment(bool kept) {
  kept_ = kept ? std::optional(Moment()) : std::nullopt;
  QObject name;
  name.setObjectName(KeptName());
  Document().Place().Layout.KeepChosenEntry(name, kept_ ? Shown(judgement::KeptText(*kept_)) : "");
  ShowModel();
}

// The next horoscope begins with the same matter.
void MatterPage::ChooseMatter(std::int32_t id) {
  QObject name;
  name.setObjectName(kLastMatter);
  Document().Place().Layout.KeepChosenEntry(name, WholeText(id));
  ShowModel();
}

void MatterPage::EditGroups() {
  MattersDialog dialog(Document().Place(), matter_->Chosen(), window());
  dialog.exec();
  matter_->Load(dialog.Chosen());
  ChooseMatter(matter_->Chosen());
}

void MatterPage::ShowModel() {
  if (matter_->count() == 0) {
    QObject name;
    name.setObjectName(kLastMatter);
    const QString last = Document().Place().Layout.ChosenEntry(name);
    matter_->Load(last.toInt());
  }
  core::Session& session = Document().Place().Session;
  const std::optional<judgement::Matter> matter = judgement::MatterOfId(session, matter_->Chosen());
  upper_->setEnabled(matter.has_value());
  ranked_->setEnabled(matter.has_value());
  if (!matter) {
    return;
  }
  const judgement::KeptMoment moment = Moment();
  Document().KeepJudged({*matter, moment.Moment, ranked_->Window()});
  group_->ShowMatter(*matter);
  keep_->setVisible(!OfBirth());
  const QString told = Shown(judgement::MomentText(moment.Moment.Local, moment.City));
  planets_->SetNote(!OfBirth() && kept_ ? tr("kept: %1").arg(told) : told);
  ShowTables(judgement::JudgeMatter(session, Model(), *matter, moment.Moment, ranked_->Window()),
             *matter);
  Arrange();
}

void MatterPage::ShowTables(const judgement::Judgement& judged, const judgement::Matter& matter) {
  const std::set<QString> fruitful = CodesOf(judgement::FruitfulPlanets(judged.MatterPlanets));
  promise_->Show(judged, matter, fruitful);
  // The giving houses stand above the denying ones.
  const bool denied = !matter.Denying.empty();
  grades_->Plan().Cells().SetRuledRow(denied ? static_cast<int>(matter.Supporting.size()) : -1);
  grades_->ShowTable(WithAgentsTold(judged.HouseGrades), matter, fruitful);
  planets_->ShowTable(judgement::BuildFruitfulTests(judged.MatterPlanets), matter, fruitful);
  ranked_->Show(judged, matter, fruitful);
}

void MatterPage::resizeEvent(QResizeEvent* event) {
  HoroscopePage::resizeEvent(event);
  Arrange();
}

// All parts where they have room, else the one that is chosen.
void MatterPage::Arrange() {
  const bool all = width() >= Scaled(kRoomForAll) && height() >= Scaled(kHeightForAll);
  const int part = part_->Chosen();
  part_->setVisible(!all);
  edit_->setVisible(width() >= Scaled(kRoomForAll));
  const std::array<QWidget*, 3> upper = {promise_, grades_, planets_};
  for (std::size_t place = 0; place < upper.size(); ++place) {
    upper.at(place)->setVisible(all || part == static_cast<int>(place));
  }
  upper_->setVisible(all || part < static_cast<int>(upper.size()));
  ranked_->setVisible(all || part == static_cast<int>(upper.size()));
  const int high =
      std::clamp(static_cast<int>(height() * kUpperPart), Scaled(kLeastUpper), Scaled(kMostUpper));
  upper_->setMinimumHeight(all ? high : 1);
  upper_->setMaximumHeight(all ? high : QWIDGETSIZE_MAX);
}

}  // namespace orvex::ui
