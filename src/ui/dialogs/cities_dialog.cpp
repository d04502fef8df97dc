#include "ui/dialogs/cities_dialog.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <memory>

#include "practice/cities.h"
#include "ui/base/keys.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_view.h"
#include "ui/base/theme.h"
#include "ui/dialogs/city_dialog.h"

namespace orvex::ui {

CitiesDialog::CitiesDialog(Workplace& place, QWidget* parent)
    : QDialog(parent),
      place_(place),
      search_(new QLineEdit),
      list_(new TableView),
      edit_(new QPushButton(tr("&Edit…"))),
      add_(new QPushButton(tr("&Add…"))) {
  Build();
  Connect();
  Load(0);
}

void CitiesDialog::Build() {
  setObjectName("citiesDialog");
  setWindowTitle(tr("Cities"));
  search_->setObjectName("citySearch");
  search_->setPlaceholderText(tr("Type to narrow the list"));
  search_->setClearButtonEnabled(true);
  list_->setObjectName("cityList");
  list_->setAccessibleName(tr("Cities"));
  search_->setAccessibleName(tr("Narrow the list of cities"));
  list_->setSelectionMode(QAbstractItemView::SingleSelection);
  list_->SetStretchColumn(0);
  list_->SetEmptyText(tr("No city of that name. Add it below."));
  edit_->setObjectName("editCity");
  edit_->setAutoDefault(false);
  add_->setObjectName("addCity");
  add_->setAutoDefault(false);
  auto* close = new QPushButton(tr("Close"));
  close->setAutoDefault(false);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(add_);
  buttons->addWidget(edit_);
  buttons->addStretch();
  buttons->addWidget(close);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addWidget(search_);
  layout->addWidget(list_, 1);
  layout->addLayout(buttons);
  resize(64 * kGrid, 60 * kGrid);
}

void CitiesDialog::Connect() {
  connect(search_, &QLineEdit::textChanged, this, [this](const QString& text) {
    list_->SetFilter(text);
    list_->ChooseNone();
  });
  connect(list_, &TableView::TagChosen, this,
          [this](const QString& tag) { edit_->setEnabled(!tag.isEmpty()); });
  connect(list_, &TableView::TagActivated, this, [this] { EditCity(); });
  connect(edit_, &QPushButton::clicked, this, [this] { EditCity(); });
  connect(KeyInList(*list_, "editChosen"), &QShortcut::activated, edit_, &QPushButton::click);
  connect(add_, &QPushButton::clicked, this, [this] { AddCity(); });
}

void CitiesDialog::Load(std::int32_t selected) {
  list_->SetTable(practice::LoadCities(place_.Session));
  if (selected == 0 || !list_->SelectTag(Typed(WholeText(selected)))) {
    list_->SelectFirst();
  }
  edit_->setEnabled(!list_->SelectedTag().empty());
}

void CitiesDialog::AddCity() {
  const std::unique_ptr<CityDialog> dialog(CityDialog::ForNew(place_, this));
  if (dialog && dialog->exec() == Accepted) {
    Load(dialog->SavedId());
  }
}

void CitiesDialog::EditCity() {
  const std::int32_t city = IdOfTag(list_->SelectedTag()).value_or(0);
  const std::unique_ptr<CityDialog> dialog(CityDialog::ForEdit(place_, city, this));
  if (dialog && dialog->exec() == Accepted) {
    Load(city);
  }
}

}  // namespace orvex::ui
