#include "ui/horoscope/remedies_page.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <memory>

#include "practice/remedies.h"
#include "ui/base/message_boxes.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/dialogs/remedy_dialog.h"
#include "ui/horoscope/tables_page.h"

namespace orvex::ui {

namespace {

QPushButton* MakeButton(const QString& text, const QString& objectName) {
  auto* button = new QPushButton(text);
  button->setObjectName(objectName);
  return button;
}

}  // namespace

RemediesPage::RemediesPage(HoroscopeDocument& document)
    : HoroscopePage(document),
      remedies_(new CatalogueTable(document, "RemedyTable")),
      comments_(MakeCaptionLabel("comments")),
      add_(MakeButton(tr("&Add remedy…"), "addRemedy")),
      edit_(MakeButton(tr("E&dit…"), "editRemedy")),
      delete_(MakeButton(tr("De&lete"), "deleteRemedy")) {
  remedies_->PlanAsUsual();
  remedies_->View().SetEmptyText(
      tr("No remedy was given to this client yet. Press “Add remedy” to write down the first."));
  remedies_->View().setSelectionMode(QAbstractItemView::SingleSelection);
  comments_->setWordWrap(true);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(space::kM + 2, space::kXs, space::kM + 2, space::kXs);
  layout->addWidget(remedies_, 1);
  layout->addLayout(LayOutButtons());
  layout->addWidget(comments_);
  Connect();
}

QHBoxLayout* RemediesPage::LayOutButtons() {
  auto* buttons = new QHBoxLayout;
  for (QPushButton* button : {add_, edit_, delete_}) {
    buttons->addWidget(button);
  }
  buttons->addStretch(1);
  return buttons;
}

void RemediesPage::Connect() {
  connect(add_, &QPushButton::clicked, this, &RemediesPage::Add);
  connect(edit_, &QPushButton::clicked, this, &RemediesPage::Edit);
  connect(delete_, &QPushButton::clicked, this, &RemediesPage::Delete);
  connect(&remedies_->View(), &TableView::TagActivated, this, &RemediesPage::Edit);
  connect(remedies_->View().selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &RemediesPage::EnableButtons);
  auto* erase = new QShortcut(QKeySequence::Delete, &remedies_->View());
  erase->setContext(Qt::WidgetShortcut);
  connect(erase, &QShortcut::activated, this, &RemediesPage::Delete);
}

void RemediesPage::ShowModel() {
  remedies_->ShowModel();
  comments_->setText(Shown(Model().Comments));
  comments_->setVisible(!Model().Comments.empty());
  EnableButtons();
}

std::optional<std::int32_t> RemediesPage::Chosen() const {
  return IdOfTag(remedies_->View().SelectedTag());
}

void RemediesPage::EnableButtons() {
  const bool chosen = Chosen().has_value();
  edit_->setEnabled(chosen);
  delete_->setEnabled(chosen);
}

void RemediesPage::Add() { Run(RemedyDialog::ForNew(Document().Place(), Model().ClientId, this)); }

void RemediesPage::Edit() {
  if (const auto remedy = Chosen()) {
    Run(RemedyDialog::ForEdit(Document().Place(), *remedy, this));
  }
}

void RemediesPage::Run(RemedyDialog* dialog) {
  const std::unique_ptr<RemedyDialog> owned(dialog);
  if (owned && owned->exec() == QDialog::Accepted) {
    Document().ReadRemediesAgain();
    remedies_->View().SelectTag(Typed(WholeText(owned->SavedId())));
  }
}

void RemediesPage::Delete() {
  core::Session& session = Document().Place().Session;
  const auto remedy = Chosen();
  if (!remedy || !Ask(session.Shown, practice::DeleteRemedyQuestion(session, *remedy))) {
    return;
  }
  if (const auto refused = practice::DeleteRemedy(session, *remedy).Refused) {
    session.Shown.ShowMessage(refused->Text, core::MessageButtons::Ok, refused->Icon);
  }
  Document().ReadRemediesAgain();
}

}  // namespace orvex::ui
