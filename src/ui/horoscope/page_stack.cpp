#include "ui/horoscope/page_stack.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QPainter>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>
#include <array>

#include "ui/base/keys.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/horoscope/annual_page.h"
#include "ui/horoscope/aspects_page.h"
#include "ui/horoscope/birth_star_page.h"
#include "ui/horoscope/birth_time_page.h"
#include "ui/horoscope/chart_page.h"
#include "ui/horoscope/dasha_page.h"
#include "ui/horoscope/exact_page.h"
#include "ui/horoscope/lo_shu_page.h"
#include "ui/horoscope/matter_page.h"
#include "ui/horoscope/page_list.h"
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

constexpr std::array<const char*, 4> kGroups = {
    QT_TRANSLATE_NOOP("PageStack", "Read"), QT_TRANSLATE_NOOP("PageStack", "Time"),
    QT_TRANSLATE_NOOP("PageStack", "Tables"), QT_TRANSLATE_NOOP("PageStack", "Client")};

enum Group { Read, Time, Tables, Client };

// A page that fits every window by itself; the others get bars where the room is short.
enum class Fits { Always, WithBars };

struct PageEntry {
  const char* Name;
  const char* Title;
  int InGroup;
  Fits Room;
  HoroscopePage* (*Make)(HoroscopeDocument& document);
};

// clang-format off
constexpr std::array<PageEntry, 17> kPages = {{
    {"chart",         QT_TRANSLATE_NOOP("PageStack", "Chart"),         Read,   Fits::Always,   &Make<ChartPage>},
    {"significators", QT_TRANSLATE_NOOP("PageStack", "Significators"), Read,   Fits::WithBars, &MakeSignificators},
    {"matter",        QT_TRANSLATE_NOOP("PageStack", "Matter"),        Read,   Fits::Always,   &Make<MatterPage>},
    {"fourStep",      QT_TRANSLATE_NOOP("PageStack", "Four steps"),    Read,   Fits::WithBars, &MakeFourStep},
    {"aspects",       QT_TRANSLATE_NOOP("PageStack", "Aspects"),       Read,   Fits::WithBars, &Make<AspectsPage>},
    {"exact",         QT_TRANSLATE_NOOP("PageStack", "To the second"), Read,   Fits::Always,   &Make<ExactPage>},
    {"dasha",         QT_TRANSLATE_NOOP("PageStack", "Periods"),       Time,   Fits::Always,   &Make<DashaPage>},
    {"timeline",      QT_TRANSLATE_NOOP("PageStack", "Timeline"),      Time,   Fits::WithBars, &Make<TimelinePage>},
    {"transit",       QT_TRANSLATE_NOOP("PageStack", "Transits"),      Time,   Fits::WithBars, &Make<TransitPage>},
    {"ashtakavarga",  QT_TRANSLATE_NOOP("PageStack", "Ashtakavarga"),  Tables, Fits::WithBars, &MakeAshtakavarga},
    {"sequences",     QT_TRANSLATE_NOOP("PageStack", "Sequences"),     Tables, Fits::WithBars, &MakeSequences},
    {"birthStar",     QT_TRANSLATE_NOOP("PageStack", "Birth star"),    Tables, Fits::WithBars, &Make<BirthStarPage>},
    {"annual",        QT_TRANSLATE_NOOP("PageStack", "Annual chart"),  Tables, Fits::WithBars, &Make<AnnualPage>},
    {"loShu",         QT_TRANSLATE_NOOP("PageStack", "Lo Shu"),        Tables, Fits::WithBars, &Make<LoShuPage>},
    {"vastu",         QT_TRANSLATE_NOOP("PageStack", "Vastu"),         Tables, Fits::Always,   &Make<VastuPage>},
    {"remedies",      QT_TRANSLATE_NOOP("PageStack", "Remedies"),      Client, Fits::WithBars, &Make<RemediesPage>},
    {"birthTime",     QT_TRANSLATE_NOOP("PageStack", "Birth time"),    Client, Fits::WithBars, &Make<BirthTimePage>},
}};
// clang-format on

constexpr std::string_view kRemedies = "remedies";

}  // namespace

PageStack::PageStack(HoroscopeDocument& document)
    : document_(document),
      list_(new PageList),
      box_(new QComboBox),
      stack_(new QStackedWidget),
      slots_(kPages.size()) {
  LayOut();
  Connect();
  Turn(document.Place().Layout.ChosenEntry(*list_));
  if (!list_->PlaceOf(list_->currentRow())) {
    Turn(kPages.front().Name);
  }
}

void PageStack::LayOut() {
  list_->setObjectName("pages");
  list_->setAccessibleName(tr("Pages"));
  box_->setObjectName("pageBox");
  box_->setAccessibleName(tr("Pages"));
  for (int group = 0; group < static_cast<int>(kGroups.size()); ++group) {
    AddGroup(group);
  }
  list_->setFixedWidth(list_->WidthOfTitles());
  // A page never makes the window larger than the screen.
  stack_->setMinimumSize(1, 1);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(line::kHair);
  layout->addWidget(list_);
  layout->addWidget(stack_, 1);
}

// A caption, which cannot be chosen, and the pages under it.
void PageStack::AddGroup(int group) {
  list_->AddCaption(tr(kGroups.at(static_cast<std::size_t>(group))));
  for (std::size_t place = 0; place < kPages.size(); ++place) {
    if (kPages.at(place).InGroup == group) {
      AddPage(place);
    }
  }
}

void PageStack::AddPage(std::size_t place) {
  const QString title = tr(kPages.at(place).Title);
  list_->AddPage(title, place);
  box_->addItem(title, static_cast<int>(place));
  stack_->addWidget(new QWidget);
}

void PageStack::SetNarrow(bool narrow) {
  list_->setVisible(!narrow);
  box_->setVisible(narrow);
}

void PageStack::Connect() {
  connect(list_, &QListWidget::currentRowChanged, this, &PageStack::TurnToRow);
  connect(box_, &QComboBox::activated, this, [this](int entry) {
    Turn(kPages.at(static_cast<std::size_t>(box_->itemData(entry).toInt())).Name);
  });
  const auto move = [this](const char* name, int by) {
    auto* keys = new QShortcut(KeysOf("Horoscope", name), this);
    connect(keys, &QShortcut::activated, this, [this, by] { Move(by); });
  };
  move("nextPage", 1);
  move("previousPage", -1);
}

void PageStack::Turn(const QString& name) {
  for (int row = 0; row < list_->count(); ++row) {
    const std::optional<std::size_t> place = list_->PlaceOf(row);
    if (place && name == kPages.at(*place).Name) {
      list_->setCurrentRow(row);
    }
  }
}

void PageStack::Move(int by) {
  const int rows = list_->count();
  int row = list_->currentRow();
  do {
    row = (row + by + rows) % rows;
  } while (!list_->PlaceOf(row));
  list_->setCurrentRow(row);
}

HoroscopePage* PageStack::Current() const { return slots_.at(current_).Page; }

QString PageStack::CurrentName() const { return kPages.at(current_).Name; }

QString PageStack::CurrentTitle() const { return tr(kPages.at(current_).Title); }

void PageStack::TurnToRow(int row) {
  if (const std::optional<std::size_t> place = list_->PlaceOf(row)) {
    ShowPage(*place);
  }
}

HoroscopePage* PageStack::MakePage(std::size_t place) {
  const PageEntry& entry = kPages.at(place);
  HoroscopePage* page = entry.Make(document_);
  page->setObjectName(entry.Name);
  // One sheet: the tables stand on their own ground.
  page->setBackgroundRole(QPalette::Base);
  page->setAutoFillBackground(true);
  connect(page, &HoroscopePage::PlanetActivated, this, &PageStack::PlanetActivated);
  connect(page, &HoroscopePage::PageWanted, this, &PageStack::Turn);
  connect(page, &HoroscopePage::Told, this, &PageStack::Told);
  QWidget* shown = page;
  if (entry.Room == Fits::WithBars) {
    auto* bars = new QScrollArea;
    bars->setFrameShape(QFrame::NoFrame);
    bars->setWidgetResizable(true);
    bars->setFocusPolicy(Qt::NoFocus);
    bars->setWidget(page);
    shown = bars;
  }
  const int index = static_cast<int>(place);
  delete stack_->widget(index);
  stack_->insertWidget(index, shown);
  return page;
}

void PageStack::ShowPage(std::size_t place) {
  Slot& slot = slots_.at(place);
  if (slot.Page == nullptr) {
    slot.Page = MakePage(place);
  }
  if (slot.Stale) {
    slot.Stale = false;
    slot.Page->ShowModel();
  }
  current_ = place;
  stack_->setCurrentIndex(static_cast<int>(place));
  box_->setCurrentIndex(box_->findData(static_cast<int>(place)));
  document_.Place().Layout.KeepChosenEntry(*list_, kPages.at(place).Name);
  emit Turned();
}

void PageStack::ShowModel() {
  for (Slot& slot : slots_) {
    slot.Stale = true;
  }
  ShowCountOfRemedies();
  ShowPage(current_);
}

void PageStack::ShowCountOfRemedies() {
  const auto remedies = static_cast<int>(document_.Model().RemedyTable.Rows.size());
  for (std::size_t place = 0; place < kPages.size(); ++place) {
    if (kPages.at(place).Name == kRemedies) {
      list_->SetCount(place, remedies == 0 ? QString() : WholeText(remedies));
    }
  }
}

// The hairline between the list and the page.
void PageStack::paintEvent(QPaintEvent* /*event*/) {
  QPainter(this).fillRect(rect(), Theme::Now().Rule2);
}

}  // namespace orvex::ui
