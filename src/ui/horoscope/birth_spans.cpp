#include "ui/horoscope/birth_spans.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QSpinBox>
#include <algorithm>

#include "core/text.h"
#include "judgement/birth_times.h"
#include "judgement/rulers.h"
#include "ui/base/elided_label.h"
#include "ui/base/export_table.h"
#include "ui/base/labels.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_plan.h"
#include "ui/horoscope/field_label.h"

namespace orvex::ui {

namespace {

// clang-format off
const std::vector<ColumnPlan> kSpanColumns = {
    {"From",      CellKind::Text, 148, 0},
    {"Until",     CellKind::Text, 148, 2},
    {"Position",  CellKind::Text,  98, 3},
    {"Sign Lord", CellKind::Chip,  76, 1},
    {"Star Lord", CellKind::Chip,  76, 0},
    {"Sub Lord",  CellKind::Chip,  76, 0},
    {"Rulers",    CellKind::Heat,  50, 0},
    {"Events",    CellKind::Bold,  60, 0},
    {"Now",       CellKind::Text,  42, 0}};
// clang-format on

// A lord that rules wears a mark.
QStringList MarksOfRuler(const QModelIndex& index) {
  return index.data(Qt::FontRole).value<QFont>().bold() ? QStringList{"RP"} : QStringList();
}

// The tag of the span that holds the stored birth time; of its rows one does.
std::string TagOfNow(const core::Table& spans) {
  for (std::size_t row = 0; row < spans.Rows.size(); ++row) {
    if (!spans.At(row, judgement::BirthTimeColumn::Now).Text.empty()) {
      return spans.Rows[row].Tag;
    }
  }
  return "";
}

}  // namespace

BirthSpans::BirthSpans(HoroscopeDocument& document)
    : document_(document),
      minutes_(Named(new QSpinBox, "benchMinutes")),
      judge_(MakeButton("judgeNow", tr("&Judge now"))),
      take_(MakeButton("takeTime", tr("Ta&ke this time…"))),
      rulers_(new ElidedLabel("benchRulers")),
      message_(MakeCaptionLabel("benchMessage")),
      spans_(Named(new TableView, "birthTimes")),
      plan_(new TablePlan(*spans_, kSpanColumns, {height::kLeastRow, height::kListRow})) {
  plan_->Cells().SetMarks(MarksOfRuler);
  LayOut();
  Connect();
}

void BirthSpans::LayOut() {
  spans_->setAccessibleName(tr("Birth times"));
  spans_->setSortingEnabled(false);
  spans_->setSelectionMode(QAbstractItemView::SingleSelection);
  spans_->setMinimumHeight(1);
  OfferExport(document_.Place(), *spans_);
  message_->setWordWrap(true);
  message_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(space::kXs);
  layout->addWidget(LayOutHead());
  layout->addWidget(message_, 1);
  layout->addWidget(spans_, 1);
}

QWidget* BirthSpans::LayOutHead() {
  minutes_->setRange(1, judgement::kLongestBenchMinutes);
  minutes_->setValue(judgement::kBenchMinutes);
  minutes_->setSuffix(tr(" min"));
  minutes_->setKeyboardTracking(false);
  auto* around = new FieldLabel(tr("Aro&und the birth"));
  around->setBuddy(minutes_);
  judge_->setToolTip(tr("Takes the ruling planets of this moment"));
  rulers_->setFont(Theme::Text(type::kSmall));
  auto* head = new QWidget;
  auto* row = new QHBoxLayout(head);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(space::kS);
  for (QWidget* widget : {static_cast<QWidget*>(minutes_), static_cast<QWidget*>(judge_),
                          static_cast<QWidget*>(take_)}) {
    widget->setFixedHeight(height::kSmallField);
  }
  row->addWidget(MakeHeading(tr("Spans of the Ascendant's sub")));
  row->addWidget(around);
  row->addWidget(minutes_);
  row->addWidget(rulers_, 1);
  row->addWidget(judge_);
  row->addWidget(take_);
  return head;
}

void BirthSpans::Connect() {
  connect(minutes_, &QSpinBox::valueChanged, this, &BirthSpans::Judge);
  connect(judge_, &QPushButton::clicked, this, &BirthSpans::Judge);
  connect(take_, &QPushButton::clicked, this, &BirthSpans::Take);
  connect(spans_, &TableView::TagActivated, this, &BirthSpans::Take);
  connect(spans_, &TableView::TagChosen, this,
          [this](const QString& tag) { take_->setEnabled(!tag.isEmpty()); });
}

void BirthSpans::ShowMessage(const QString& text) {
  message_->setText(text);
  message_->setVisible(!text.isEmpty());
  for (QWidget* widget : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (widget != message_) {
      widget->setVisible(text.isEmpty());
    }
  }
}

void BirthSpans::Judge() {
  const chart::HoroscopeModel& model = document_.Model();
  if (const auto refused = judgement::CheckBench(model, minutes_->value())) {
    ShowMessage(Shown(refused->Text));
    return;
  }
  core::Session& session = document_.Place().Session;
  const judgement::MomentOfJudgement now = judgement::NowAtUserCity(session);
  const core::Table rulers = judgement::RulersAt(session, now);
  rulers_->setText(tr("Ruling at %1: %2")
                       .arg(Shown(core::TimeSecondsAmPm(now.Local)),
                            Shown(core::Join(judgement::StrongRulers(rulers), " "))));
  ShowMessage("");
  core::Table spans =
      judgement::BuildBirthTimes(session, model, minutes_->value(), rulers,
                                 judgement::EventsOfClient(session, model.ClientId));
  const std::string chosen = spans_->SelectedTag();
  const bool isThere = std::any_of(spans.Rows.begin(), spans.Rows.end(),
                                   [&](const core::Row& row) { return row.Tag == chosen; });
  const std::string tag = isThere ? chosen : TagOfNow(spans);
  spans_->SetTableAndChoose(std::move(spans), tag);
  plan_->Fit();
}

void BirthSpans::Take() {
  if (const std::optional<int> row = spans_->ChosenRow()) {
    const judgement::TakenTime taken =
        judgement::TakeTime(document_.Model(), spans_->Table(), spans_->Model().TableRow(*row));
    document_.TakeBirthTime(taken.Birth, Shown(taken.Comment));
  }
}

}  // namespace orvex::ui
