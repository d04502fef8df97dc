#include "ui/horoscope/page_stack.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QShortcut>
#include <QStackedWidget>
#include <array>

#include "ui/base/theme.h"
#include "ui/horoscope/annual_page.h"
#include "ui/horoscope/aspects_page.h"
#include "ui/horoscope/birth_star_page.h"
#include "ui/horoscope/chart_page.h"
#include "ui/horoscope/dasha_page.h"
#include "ui/horoscope/lo_shu_page.h"
#include "ui/horoscope/recalculation_page.h"
#include "ui/horoscope/remedies_page.h"
#include "ui/horoscope/tables_page.h"
#include "ui/horoscope/timeline_page.h"
#include "ui/horoscope/transit_page.h"
#include "ui/horoscope/vastu_page.h"

namespace orvex::ui {

namespace {

template <typename Page>
HoroscopePage* Make(HoroscopeDocument& document) {
  return new Page(document);
}

HoroscopePage* MakeSignificators(HoroscopeDocument& document) {
  return new TablesPage(
      document,
      {"significators", {"Rahu", "Ketu"}, {{"PlanetLevels", "NadiTable"}, {"NadiHouseTimes"}}});
}

HoroscopePage* MakeFourStep(HoroscopeDocument& document) {
  return new TablesPage(document, {"fourStep", {}, {{"FourStepRows", "FourStepTable"}}});
}

HoroscopePage* MakeAshtakavarga(HoroscopeDocument& document) {
  return new TablesPage(document, {"ashtakavarga", {}, {{"AshtakavargaTable"}}});
}

HoroscopePage* MakeSequences(HoroscopeDocument& document) {
  return new TablesPage(document, {"sequences", {}, {{"BnnTable", "KarakaTable"}}});
}

struct PageEntry {
  const char* Name;
  const char* Title;
  HoroscopePage* (*Make)(HoroscopeDocument& document);
};

// clang-format off
constexpr std::array<PageEntry, 15> kPages = {{
    {"chart",         QT_TRANSLATE_NOOP("PageStack", "Chart"),         &Make<ChartPage>},
    {"significators", QT_TRANSLATE_NOOP("PageStack", "Significators"), &MakeSignificators},
    {"fourStep",      QT_TRANSLATE_NOOP("PageStack", "Four steps"),    &MakeFourStep},
    {"dasha",         QT_TRANSLATE_NOOP("PageStack", "Dasha"),         &Make<DashaPage>},
    {"timeline",      QT_TRANSLATE_NOOP("PageStack", "Timeline"),      &Make<TimelinePage>},
    {"aspects",       QT_TRANSLATE_NOOP("PageStack", "Aspects"),       &Make<AspectsPage>},
    {"ashtakavarga",  QT_TRANSLATE_NOOP("PageStack", "Ashtakavarga"),  &MakeAshtakavarga},
    {"vastu",         QT_TRANSLATE_NOOP("PageStack", "Vastu"),         &Make<VastuPage>},
    {"sequences",     QT_TRANSLATE_NOOP("PageStack", "Sequences"),     &MakeSequences},
    {"annual",        QT_TRANSLATE_NOOP("PageStack", "Annual chart"),  &Make<AnnualPage>},
    {"loShu",         QT_TRANSLATE_NOOP("PageStack", "Lo Shu"),        &Make<LoShuPage>},
    {"birthStar",     QT_TRANSLATE_NOOP("PageStack", "Birth star"),    &Make<BirthStarPage>},
    {"remedies",      QT_TRANSLATE_NOOP("PageStack", "Remedies"),      &Make<RemediesPage>},
    {"recalculation", QT_TRANSLATE_NOOP("PageStack", "Recalculation"), &Make<RecalculationPage>},
    {"transit",       QT_TRANSLATE_NOOP("PageStack", "Transit now"),   &Make<TransitPage>},
}};
// clang-format on

}  // namespace

PageStack::PageStack(HoroscopeDocument& document)
    : document_(document),
      list_(new QListWidget),
      stack_(new QStackedWidget),
      slots_(kPages.size()) {
  LayOut();
  Connect();
  Turn(document.Place().Layout.ChosenEntry(*list_));
  if (list_->currentRow() < 0) {
    list_->setCurrentRow(0);
  }
}

void PageStack::LayOut() {
  list_->setObjectName("pages");
  list_->setAccessibleName(tr("Pages"));
  list_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
  for (const PageEntry& entry : kPages) {
    auto* item = new QListWidgetItem(tr(entry.Title), list_);
    item->setSizeHint(list_->fontMetrics().size(Qt::TextSingleLine, item->text()) +
                      QSize(2 * kGrid, kGrid));
    stack_->addWidget(new QWidget);
  }
  list_->setFixedWidth(list_->sizeHintForColumn(0) + 2 * list_->frameWidth());
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(kGrid, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(list_);
  layout->addWidget(stack_, 1);
}

void PageStack::Connect() {
  connect(list_, &QListWidget::currentRowChanged, this, &PageStack::ShowPage);
  const auto move = [this](const QKeySequence& keys, int by) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, [this, by] { Move(by); });
  };
  move(QKeySequence(Qt::CTRL | Qt::Key_PageDown), 1);
  move(QKeySequence(Qt::CTRL | Qt::Key_PageUp), -1);
}

void PageStack::Turn(const QString& name) {
  for (std::size_t i = 0; i < kPages.size(); ++i) {
    if (name == kPages.at(i).Name) {
      list_->setCurrentRow(static_cast<int>(i));
    }
  }
}

void PageStack::Move(int by) {
  const int pages = list_->count();
  list_->setCurrentRow((list_->currentRow() + by + pages) % pages);
}

HoroscopePage* PageStack::Current() const {
  return slots_.at(static_cast<std::size_t>(list_->currentRow())).Page;
}

ChartPage& PageStack::FirstPage() {
  list_->setCurrentRow(0);
  return static_cast<ChartPage&>(*slots_.front().Page);
}

void PageStack::ShowPage(int index) {
  const auto place = static_cast<std::size_t>(index);
  Slot& slot = slots_.at(place);
  if (slot.Page == nullptr) {
    slot.Page = kPages.at(place).Make(document_);
    slot.Page->setObjectName(kPages.at(place).Name);
    connect(slot.Page, &HoroscopePage::PlanetActivated, this, &PageStack::PlanetActivated);
    delete stack_->widget(index);
    stack_->insertWidget(index, slot.Page);
  }
  if (slot.Stale) {
    slot.Stale = false;
    slot.Page->ShowModel();
  }
  stack_->setCurrentIndex(index);
  document_.Place().Layout.KeepChosenEntry(*list_, kPages.at(place).Name);
}

void PageStack::ShowModel() {
  for (Slot& slot : slots_) {
    slot.Stale = true;
  }
  ShowPage(list_->currentRow());
}

}  // namespace orvex::ui
