#include "ui/main/import_dialog.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTimer>

#include "core/home.h"
#include "core/store.h"
#include "exchange/exchange_preview.h"
#include "practice/groups.h"
#include "ui/base/elided_label.h"
#include "ui/base/export_table.h"
#include "ui/base/labels.h"
#include "ui/base/message_boxes.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_plan.h"
#include "ui/base/theme.h"
#include "ui/main/work_progress.h"

namespace orvex::ui {

namespace {

// What is compared stays in sight in a narrow window.
// clang-format off
const std::vector<ColumnPlan> kBirthColumns = {
    {"Client Name",      CellKind::Text, 120, 0},
    {"Birth",            CellKind::Text, 160, 0},
    {"City",             CellKind::Text, 110, 0},
    {"Place",            CellKind::Text, 100, 2},
    {"Latitude",         CellKind::Text,  76, 4},
    {"Longitude",        CellKind::Text,  76, 5},
    {"Offset in File",   CellKind::Text,  88, 0},
    {"Offset of Clocks", CellKind::Text, 100, 0},
    {"State",            CellKind::Text,  96, 0},
    {"File",             CellKind::Text, 100, 3},
    {"Line",             CellKind::Text,  40, 1}};
// clang-format on

}  // namespace

ImportDialog::ImportDialog(Workplace& place, std::int32_t groupId, QWidget* parent)
    : FormDialog(place, "importDialog", parent),
      files_(MakeButton("chooseFiles", tr("Choose &files…"))),
      folder_(MakeButton("chooseFolder", tr("Choose f&older…"))),
      source_(new ElidedLabel("importSource")),
      group_(Named(new QComboBox, "importGroup")),
      births_(Named(new TableView, "importBirths")),
      birthsPlan_(
          new TablePlan(*births_, kBirthColumns, {height::kLeastRow, height::kLeastRow, false})),
      refusedTitle_(MakeHeading(tr("Refused lines"))),
      refused_(Named(new TableView, "importRefused")),
      leaveOut_(Named(new QCheckBox(tr("&Leave the refused lines out and import the others")),
                      "leaveOut")),
      status_(MakeCaptionLabel("importStatus")),
      progress_(new WorkProgress("importProgress")) {
  setWindowTitle(tr("Import"));
  for (const core::Row& group : practice::LoadGroups(Session()).Rows) {
    group_->addItem(Shown(group.Cells.front().Text), IdOfTag(group.Tag).value_or(0));
  }
  group_->setCurrentIndex(std::max(0, group_->findData(groupId)));
  LayOut();
  Connect();
  ShowPlan();
  if (!place.Layout.RestoreWindow(*this)) {
    resize(120 * kGrid, 80 * kGrid);
  }
}

void ImportDialog::ReadLater(std::vector<std::filesystem::path> paths) {
  paths_ = std::move(paths);
  QTimer::singleShot(0, this, &ImportDialog::Read);
}

std::int32_t ImportDialog::GroupId() const { return group_->currentData().toInt(); }

QString ImportDialog::Result() const { return Shown(exchange::CountText(plan_.NewCount(), plan_)); }

void ImportDialog::LayOut() {
  births_->setAccessibleName(tr("What will be saved"));
  births_->SetEmptyText(
      tr("AAF, .jhd, .mtx and CSV files: choose them here, or drop them onto the main window. "
         "What would be saved is shown before anything is."));
  refused_->setAccessibleName(tr("Refused lines"));
  refused_->SetStretchColumn(static_cast<int>(core::Table::Index(exchange::RefusedColumn::Reason)));
  for (TableView* table : {births_, refused_}) {
    table->RememberWidths(Place().Layout);
    OfferExport(Place(), *table);
  }
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addLayout(LayOutSource());
  layout->addWidget(MakeHeading(tr("What will be saved")));
  layout->addWidget(births_, 3);
  layout->addWidget(refusedTitle_);
  layout->addWidget(refused_, 1);
  layout->addWidget(leaveOut_);
  layout->addLayout(LayOutFoot());
}

QLayout* ImportDialog::LayOutSource() {
  auto* group = new QLabel(tr("Grou&p"));
  group->setBuddy(group_);
  auto* row = new QHBoxLayout;
  row->addWidget(files_);
  row->addWidget(folder_);
  row->addWidget(source_, 1);
  row->addWidget(group);
  row->addWidget(group_);
  return row;
}

QLayout* ImportDialog::LayOutFoot() {
  auto* foot = new QHBoxLayout;
  foot->addWidget(status_, 1);
  foot->addWidget(progress_);
  foot->addLayout(MakeButtons(tr("&Import")));
  return foot;
}

void ImportDialog::Connect() {
  connect(files_, &QPushButton::clicked, this, &ImportDialog::ChooseFiles);
  connect(folder_, &QPushButton::clicked, this, &ImportDialog::ChooseFolder);
  connect(group_, &QComboBox::activated, this, &ImportDialog::Read);
  connect(leaveOut_, &QCheckBox::toggled, this, &ImportDialog::FollowPlan);
  // While the work runs the button cancels it, as Escape does.
  auto* cancel = findChild<QPushButton*>("cancel");
  cancel->disconnect(this);
  connect(cancel, &QPushButton::clicked, this, &ImportDialog::reject);
}

void ImportDialog::ChooseFiles() {
  std::vector<std::filesystem::path> files = Place().Files.ChooseFilesToRead(
      this, "Import", "Births (*.aaf *.jhd *.mtx *.csv);;All files (*)");
  if (!files.empty()) {
    paths_ = std::move(files);
    Read();
  }
}

void ImportDialog::ChooseFolder() {
  if (const auto folder = Place().Files.ChooseFolder(this, "Import", {})) {
    paths_ = {*folder};
    Read();
  }
}

// Every birth is checked and its chart computed; nothing is written.
void ImportDialog::Read() {
  if (paths_.empty() || progress_->IsAtWork()) {
    return;
  }
  SetAtWork(true);
  plan_ = {};
  try {
    plan_ = exchange::PlanImport(
        Session(), {paths_, GroupId(), core::ShippedDataFolder()},
        [this](std::size_t done, std::size_t all) { return progress_->GoOn(done, all); });
    if (plan_.IsCanceled) {
      plan_ = {};
    }
  } catch (const std::exception& unread) {
    Complain(Session().Shown, unread.what());
  }
  SetAtWork(false);
  ShowPlan();
  if (closeAfter_) {
    QDialog::reject();
  }
}

void ImportDialog::ShowPlan() {
  const QString more = paths_.size() > 1 ? tr(" and %1 more").arg(paths_.size() - 1) : QString();
  source_->setText(paths_.empty() ? QString() : Shown(paths_.front().string()) + more);
  births_->SetTable(exchange::PreviewTable(plan_));
  birthsPlan_->Fit();
  refused_->SetTable(exchange::RefusedTable(plan_));
  const bool isRefused = !plan_.Refused.empty();
  refusedTitle_->setVisible(isRefused);
  refused_->setVisible(isRefused);
  leaveOut_->setVisible(isRefused);
  leaveOut_->setChecked(false);
  FollowPlan();
}

void ImportDialog::FollowPlan() {
  const bool isHeld = !plan_.Refused.empty() && !leaveOut_->isChecked();
  const bool isEmpty = plan_.Births.empty() && plan_.Refused.empty();
  ActionButton().setEnabled(plan_.NewCount() > 0 && !isHeld);
  status_->setText(isEmpty ? QString() : Shown(exchange::PlanText(plan_)));
}

void ImportDialog::SetAtWork(bool atWork) {
  for (QWidget* widget : {static_cast<QWidget*>(files_), static_cast<QWidget*>(folder_),
                          static_cast<QWidget*>(group_), static_cast<QWidget*>(leaveOut_),
                          static_cast<QWidget*>(&ActionButton())}) {
    widget->setEnabled(!atWork);
  }
  atWork ? progress_->Begin() : progress_->End();
}

// All or nothing, in one batch.
void ImportDialog::Save() {
  if (progress_->IsAtWork()) {
    return;
  }
  SetAtWork(true);
  emit WritingChanged(true);
  const auto refused =
      leaveOut_->isChecked() ? exchange::WithRefused::LeaveOut : exchange::WithRefused::SaveNothing;
  std::size_t saved = 0;
  try {
    saved = exchange::SaveImport(
        Session(), plan_, refused,
        [this](std::size_t done, std::size_t all) { return progress_->GoOn(done, all); });
  } catch (const core::StoreError& error) {
    Complain(Session().Shown, error.what());
  }
  emit WritingChanged(false);
  SetAtWork(false);
  FollowPlan();
  if (saved > 0) {
    accept();
  } else if (closeAfter_) {
    QDialog::reject();
  } else if (progress_->IsCanceled()) {
    status_->setText(tr("Canceled. Nothing was imported."));
  }
}

void ImportDialog::reject() {
  if (progress_->IsAtWork()) {
    progress_->Cancel();
    return;
  }
  QDialog::reject();
}

void ImportDialog::closeEvent(QCloseEvent* event) {
  closeAfter_ = progress_->IsAtWork();
  FormDialog::closeEvent(event);
}

void ImportDialog::hideEvent(QHideEvent* event) {
  Place().Layout.KeepWindow(*this);
  FormDialog::hideEvent(event);
}

}  // namespace orvex::ui
