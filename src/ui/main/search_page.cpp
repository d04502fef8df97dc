#include "ui/main/search_page.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/base/export_table.h"
#include "ui/base/message_boxes.h"
#include "ui/base/moment_edit.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_view.h"
#include "ui/base/theme.h"
#include "ui/horoscope/horoscope_window.h"
#include "ui/main/search_form.h"

namespace orvex::ui {

SearchPage::SearchPage(Workplace& place, QWidget* parent)
    : QWidget(parent),
      place_(place),
      form_(new SearchForm(place.Session)),
      search_(new QPushButton(tr("&Search"))),
      export_(new QPushButton(tr("E&xport…"))),
      caption_(new QLabel),
      results_(new TableView) {
  setObjectName("searchPage");
  setBackgroundRole(QPalette::Base);
  setAutoFillBackground(true);
  Build();
  Clear();
  Connect();
}

void SearchPage::Build() {
  search_->setObjectName("search");
  export_->setObjectName("exportResults");
  caption_->setObjectName("resultCaption");
  caption_->setTextFormat(Qt::PlainText);
  results_->setObjectName("searchResults");
  results_->setAccessibleName(tr("Search Results"));
  results_->setSelectionMode(QAbstractItemView::SingleSelection);
  results_->setFrameShape(QFrame::NoFrame);
  auto* row = new QHBoxLayout;
  row->addWidget(caption_, 1);
  row->addWidget(search_);
  row->addWidget(export_);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(space::kL, space::kM, space::kL, 0);
  column->addWidget(form_);
  column->addLayout(row);
  column->addWidget(results_, 1);
}

void SearchPage::Connect() {
  connect(form_, &SearchForm::ModeChanged, this, &SearchPage::Clear);
  connect(form_, &SearchForm::SearchRequested, this, &SearchPage::Search);
  connect(search_, &QPushButton::clicked, this, &SearchPage::Search);
  connect(export_, &QPushButton::clicked, this, [this] { Export(results_->ShownTable()); });
  connect(results_, &TableView::TagActivated, this, [this](const QString& tag) {
    if (const std::optional<std::int32_t> client = IdOfTag(Typed(tag))) {
      OpenHoroscope(place_, *client);
    }
  });
}

void SearchPage::LoadGroups() { form_->LoadGroups(); }
void SearchPage::FocusText() { form_->FocusText(); }

void SearchPage::Clear() {
  found_.reset();
  results_->SetEmptyText(tr("Choose what to look for and press Enter."));
  Show({.Mode = form_->Mode()}, {}, practice::kEmptyResultLine, "");
}

void SearchPage::Search() {
  if (DateEdit* unread = form_->UnreadDate()) {
    Inform(place_.Session.Shown, Typed(unread->Words()));
    unread->setFocus();
    unread->selectAll();
    return;
  }
  const practice::SearchFilter filter = form_->Filter();
  if (!Run(filter, "")) {
    form_->FocusGroups();
  }
}

void SearchPage::Reload() {
  if (found_) {
    Run(practice::SearchFilter(*found_), results_->SelectedTag());
  }
}

bool SearchPage::Run(const practice::SearchFilter& filter, const std::string& chosen) {
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  practice::FoundRows found = practice::FindRows(place_.Session, filter);
  QGuiApplication::restoreOverrideCursor();
  if (found.Refused) {
    place_.Session.Shown.ShowMessage(found.Refused->Text, core::MessageButtons::Ok,
                                     found.Refused->Icon);
    return false;
  }
  found_ = filter;
  results_->SetEmptyText(filter.Text.find('\'') == std::string::npos
                             ? tr("Nothing fits these filters.")
                             : tr("A text with a quote (') finds nothing: leave the quote out."));
  Show(filter, std::move(found.Rows), Shown(found.ResultLine), chosen);
  return true;
}

void SearchPage::Show(const practice::SearchFilter& filter, std::vector<practice::FoundRow> rows,
                      const QString& caption, const std::string& chosen) {
  const bool any = !rows.empty();
  LateRows late;
  for (const practice::FoundRow& row : rows) {
    late.Tags.push_back(Typed(WholeText(row.ClientId)));
  }
  late.Read = [this, filter, rows = std::move(rows)](const std::vector<std::size_t>& wanted) {
    std::vector<practice::FoundRow> found;
    for (const std::size_t row : wanted) {
      found.push_back(rows.at(row));
    }
    return practice::ReadFoundRows(place_.Session, filter, found);
  };
  results_->SetLateRowsAndChoose(practice::ResultTable(filter.Mode).Columns, std::move(late),
                                 chosen);
  caption_->setText(caption);
  export_->setEnabled(any);
  export_->setToolTip(any ? tr("The list as a spreadsheet")
                          : tr("Nothing is found yet that could be exported"));
  results_->SetExport(any ? [this](const core::Table& table) { Export(table); }
                          : std::function<void(const core::Table&)>());
}

void SearchPage::Export(const core::Table& table) {
  ExportTable(place_, *this, table, Typed(results_->accessibleName()));
}

}  // namespace orvex::ui
