#include "ui/dialogs/number_table.h"

#include <QLineEdit>
#include <QVBoxLayout>

#include "chart/horary_numbers.h"
#include "ui/base/export_table.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_plan.h"
#include "ui/base/theme.h"
#include "ui/dialogs/form_rows.h"

namespace orvex::ui {

namespace {

const std::vector<ColumnPlan> kColumns = {
    {"Number", CellKind::Bold, 60, 0},    {"Sign", CellKind::Text, 90, 0},
    {"From", CellKind::Text, 76, 0},      {"To", CellKind::Text, 76, 0},
    {"Sign Lord", CellKind::Chip, 96, 0}, {"Star Lord", CellKind::Chip, 96, 0},
    {"Sub Lord", CellKind::Chip, 96, 0}};

}  // namespace

NumberTable::NumberTable(Workplace& place, QWidget* parent)
    : QDialog(parent), list_(Named(new TableView, "numberList")) {
  setObjectName("numberTable");
  setWindowTitle(tr("Table of the 249 numbers"));
  auto* search = Named(new QLineEdit, "numberSearch");
  search->setPlaceholderText(tr("Type to narrow the list: a number, a sign, a lord"));
  search->setAccessibleName(tr("Narrow the list"));
  search->setClearButtonEnabled(true);
  list_->setAccessibleName(tr("Table of the 249 numbers"));
  list_->setSelectionMode(QAbstractItemView::SingleSelection);
  list_->setSortingEnabled(false);
  list_->SetEmptyText(tr("No number has that in its row."));
  OfferExport(place, *list_);
  auto* plan = new TablePlan(*list_, kColumns, {height::kLeastRow, height::kLeastRow, false});
  list_->SetTableAndChoose(chart::HoraryNumbers(place.Session.Reference));
  plan->Fit();
  connect(search, &QLineEdit::textChanged, list_, &TableView::SetFilter);
  connect(search, &QLineEdit::returnPressed, this, [this, search] { Take(search->text()); });
  connect(list_, &TableView::TagActivated, this, &NumberTable::NumberTaken);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addWidget(search);
  layout->addWidget(list_, 1);
  layout->addWidget(MakeHint(tr("A double click or Enter takes the number.")));
  resize(90 * kGrid, 60 * kGrid);
}

// The number that is typed, else the only row that is left; of several the user chooses.
void NumberTable::Take(const QString& typed) {
  const std::optional<int> exact = list_->Model().RowOfTag(Typed(typed.trimmed()));
  const int rows = list_->Model().rowCount();
  if (!exact && rows != 1) {
    list_->SelectFirst();
    list_->setFocus();
    return;
  }
  emit NumberTaken(Shown(list_->Model().TagOf(exact.value_or(0))));
}

void NumberTable::ChooseNumber(const QString& number) { list_->SelectTag(Typed(number)); }

}  // namespace orvex::ui
