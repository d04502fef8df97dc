#include "ui/dialogs/city_list.h"

#include <QLineEdit>
#include <QTabBar>
#include <QVBoxLayout>

#include "practice/cities.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

CityList::CityList(Workplace& place, QWidget* parent)
    : QWidget(parent),
      place_(place),
      views_(new QTabBar),
      search_(new QLineEdit),
      list_(new TableView) {
  Build();
  LoadView(PreviouslyUsed);
  Connect();
}

void CityList::Build() {
  constexpr int kPause = 120;  // milliseconds between the last key and the search
  views_->setObjectName("cityViews");
  views_->addTab(tr(" &Previously Used"));
  views_->addTab(tr("A&ll Cities"));
  views_->addTab(tr("Searc&h"));
  views_->setExpanding(false);
  views_->setDrawBase(false);
  search_->setObjectName("citySearch");
  search_->setClearButtonEnabled(true);
  list_->setObjectName("cityList");
  list_->setAccessibleName(tr("Cities"));
  search_->setAccessibleName(tr("Name of a city"));
  list_->setSelectionMode(QAbstractItemView::SingleSelection);
  list_->SetStretchColumn(0);
  searchPause_.setSingleShot(true);
  searchPause_.setInterval(kPause);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(views_);
  layout->addWidget(search_);
  layout->addWidget(list_, 1);
  setFocusProxy(search_);
}

void CityList::Connect() {
  connect(views_, &QTabBar::currentChanged, this, [this](int view) {
    search_->blockSignals(true);
    search_->clear();
    search_->blockSignals(false);
    LoadView(view);
    emit ViewChanged();
  });
  connect(search_, &QLineEdit::textChanged, this, [this] {
    FilterOrSearch();
    emit FilterTyped();
  });
  connect(&searchPause_, &QTimer::timeout, this, [this] {
    list_->SetTable(practice::SearchCities(place_.Session, Typed(search_->text())));
  });
  connect(list_, &TableView::TagChosen, this, [this](const QString& tag) {
    if (const std::optional<std::int32_t> id = IdOfTag(Typed(tag))) {
      emit CityChosen(*id);
    }
  });
  connect(list_, &TableView::TagActivated, this,
          [this](const QString& tag) { emit CityActivated(IdOfTag(Typed(tag)).value_or(0)); });
}

void CityList::LoadView(int view) {
  searchPause_.stop();
  switch (view) {
    case PreviouslyUsed:
      search_->setPlaceholderText(tr("Type to narrow the list"));
      list_->SetEmptyText(tr("No client has a city yet. Look under All Cities."));
      list_->SetTable(practice::PreviouslyUsedCities(place_.Session));
      break;
    case AllCities:
      search_->setPlaceholderText(tr("Type to narrow the list"));
      list_->SetEmptyText(tr("No city of that name. Add it with the link below."));
      list_->SetTable(practice::LoadCities(place_.Session));
      break;
    default:
      search_->setPlaceholderText(tr("Type a part of the name"));
      list_->SetEmptyText(tr("Type a part of the name above."));
      list_->SetTable({{}, {}});
  }
}

void CityList::FilterOrSearch() {
  if (views_->currentIndex() == SearchResults) {
    list_->SetEmptyText(tr("No city of that name. Add it with the link below."));
    searchPause_.start();
  } else {
    list_->SetFilter(search_->text());
  }
  list_->ChooseNone();
}

void CityList::ShowView(View view) { views_->setCurrentIndex(view); }

bool CityList::SelectCity(std::int32_t cityId) {
  return list_->SelectTag(Typed(WholeText(cityId)));
}

std::int32_t CityList::SelectedCity() const { return IdOfTag(list_->SelectedTag()).value_or(0); }

const core::Row* CityList::SelectedRow() const {
  const std::optional<int> row = list_->ChosenRow();
  return row ? &list_->Table().Rows[list_->Model().TableRow(*row)] : nullptr;
}

void CityList::SearchFor(const QString& name) {
  ShowView(SearchResults);
  search_->setText(name);
  searchPause_.stop();
  list_->SetTable(practice::SearchCities(place_.Session, Typed(name)));
}

}  // namespace orvex::ui
