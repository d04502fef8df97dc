#include "ui/main/main_pages.h"

#include <QActionGroup>
#include <QScrollArea>

#include "ui/base/keys.h"

namespace orvex::ui {

namespace {

struct PageName {
  const char* Action;
  const char* Word;
};

constexpr std::array<PageName, 5> kNames = {{
    {"showClients", QT_TRANSLATE_NOOP("MainPages", "Clients")},
    {"showSearch", QT_TRANSLATE_NOOP("MainPages", "Search")},
    {"showTransits", QT_TRANSLATE_NOOP("MainPages", "Transits")},
    {"showHoras", QT_TRANSLATE_NOOP("MainPages", "Horas")},
    {"showToday", QT_TRANSLATE_NOOP("MainPages", "Today")},
}};

}  // namespace

MainPages::MainPages() {
  setObjectName("pages");
  setMinimumSize(1, 1);
  auto* group = new QActionGroup(this);
  for (std::size_t page = 0; page < kMainPages; ++page) {
    const PageName& name = kNames.at(page);
    auto* action = new QAction(tr(name.Word), this);
    action->setObjectName(name.Action);
    action->setCheckable(true);
    action->setShortcut(KeysOf(kMainWindow, name.Action));
    action->setToolTip(WithKeys(action->text(), action->shortcut()));
    group->addAction(action);
    actions_.at(page) = action;
    connect(action, &QAction::triggered, this, [this, page] {
      setCurrentIndex(static_cast<int>(page));
      emit Turned();
    });
  }
  actions_.front()->setChecked(true);
}

void MainPages::Add(MainPage page, QWidget* widget) {
  if (page == MainPage::Clients) {
    addWidget(widget);  // it fits every window by itself
    return;
  }
  auto* bars = new QScrollArea;
  bars->setFrameShape(QFrame::NoFrame);
  bars->setWidgetResizable(true);
  bars->setFocusPolicy(Qt::NoFocus);
  bars->setWidget(widget);
  if (page == MainPage::Transits) {
    widget->setMinimumHeight(1);  // its month has bars of its own
  }
  addWidget(bars);
}

}  // namespace orvex::ui
