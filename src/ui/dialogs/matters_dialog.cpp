#include "ui/dialogs/matters_dialog.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>
#include <memory>

#include "judgement/matters.h"
#include "ui/base/export_table.h"
#include "ui/base/keys.h"
#include "ui/base/message_boxes.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_view.h"
#include "ui/base/theme.h"
#include "ui/dialogs/form_rows.h"
#include "ui/dialogs/matter_dialog.h"

namespace orvex::ui {

MattersDialog::MattersDialog(Workplace& place, std::int32_t chosen, QWidget* parent)
    : QDialog(parent),
      place_(place),
      list_(Named(new TableView, "matterList")),
      add_(MakeButton("addMatter", tr("&Add…"))),
      edit_(MakeButton("editMatter", tr("&Edit…"))),
      delete_(MakeButton("deleteMatter", tr("&Delete"))) {
  Build();
  Connect();
  Load(chosen);
  list_->setFocus();
}

void MattersDialog::Build() {
  setObjectName("mattersDialog");
  setWindowTitle(tr("Matters and their house groups"));
  list_->setAccessibleName(tr("Matters"));
  list_->setSelectionMode(QAbstractItemView::SingleSelection);
  list_->SetStretchColumn(static_cast<int>(core::Table::Index(judgement::MatterColumn::Source)));
  list_->SetEmptyText(tr("No matter is left. Add one below."));
  OfferExport(place_, *list_);
  QPushButton* close = MakeButton("close", tr("Close"));
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  auto* buttons = new QHBoxLayout;
  for (QPushButton* button : {add_, edit_, delete_}) {
    buttons->addWidget(button);
  }
  buttons->addStretch();
  buttons->addWidget(close);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addWidget(MakeHint(tr("Teachers differ in the groups: these are yours to change.")));
  layout->addWidget(list_, 1);
  layout->addLayout(buttons);
  resize(96 * kGrid, 60 * kGrid);
}

void MattersDialog::Connect() {
  connect(list_, &TableView::TagChosen, this, [this](const QString& tag) {
    edit_->setEnabled(!tag.isEmpty());
    delete_->setEnabled(!tag.isEmpty());
  });
  connect(list_, &TableView::TagActivated, this, &MattersDialog::Edit);
  connect(add_, &QPushButton::clicked, this, &MattersDialog::Add);
  connect(edit_, &QPushButton::clicked, this, &MattersDialog::Edit);
  connect(delete_, &QPushButton::clicked, this, &MattersDialog::Delete);
  connect(KeyInList(*list_, "editChosen"), &QShortcut::activated, edit_, &QPushButton::click);
  connect(KeyInList(*list_, "deleteChosen"), &QShortcut::activated, delete_, &QPushButton::click);
}

void MattersDialog::Load(std::int32_t chosen) {
  list_->SetTableAndChoose(judgement::LoadMatters(place_.Session), Typed(WholeText(chosen)));
  const bool any = Chosen() != 0;
  edit_->setEnabled(any);
  delete_->setEnabled(any);
}

std::int32_t MattersDialog::Chosen() const { return IdOfTag(list_->SelectedTag()).value_or(0); }

void MattersDialog::Add() {
  const std::unique_ptr<MatterDialog> dialog(MatterDialog::ForNew(place_, this));
  if (dialog->exec() == Accepted) {
    Load(dialog->SavedId());
  }
  list_->setFocus();
}

void MattersDialog::Edit() {
  const std::int32_t matter = Chosen();
  const std::unique_ptr<MatterDialog> dialog(MatterDialog::ForEdit(place_, matter, this));
  if (dialog && dialog->exec() == Accepted) {
    Load(matter);
  }
  list_->setFocus();
}

void MattersDialog::Delete() {
  const std::int32_t matter = Chosen();
  const std::optional<judgement::Matter> stored = judgement::MatterOfId(place_.Session, matter);
  const std::string whom =
      stored ? "\n\n" + stored->Name + ", " + judgement::HousesText(*stored) : "";
  if (!Ask(place_.Session.Shown, judgement::kDeleteMatterQuestion + whom)) {
    return;
  }
  const core::SaveResult deleted = judgement::DeleteMatter(place_.Session, matter);
  if (deleted.Refused) {
    place_.Session.Shown.ShowMessage(deleted.Refused->Text, core::MessageButtons::Ok,
                                     deleted.Refused->Icon);
  } else {
    Load(0);
  }
  list_->setFocus();
}

}  // namespace orvex::ui
