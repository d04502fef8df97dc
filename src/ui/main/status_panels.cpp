#include "ui/main/status_panels.h"

#include <QAction>
#include <QFrame>
#include <QStatusBar>
#include <QToolButton>

#include "ui/base/elided_label.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/transit/disha_color.h"

namespace orvex::ui {

namespace {

ElidedLabel* Panel(const char* name) {
  auto* label = new ElidedLabel(name);
  label->setFont(Theme::Text(type::kSmall));
  return label;
}

QFrame* Swatch() {
  constexpr int kSide = 10;
  auto* swatch = new QFrame;
  swatch->setFrameShape(QFrame::Box);
  swatch->setFixedSize(kSide, kSide);
  swatch->setAutoFillBackground(true);
  return swatch;
}

QToolButton* UndoButton(QAction& undo) {
  QToolButton* button = Named(new QToolButton, "undoButton");
  button->setDefaultAction(&undo);
  const auto follow = [&undo, button] { button->setVisible(undo.isVisible()); };
  QObject::connect(&undo, &QAction::changed, button, follow);
  return button;
}

}  // namespace

StatusPanels::StatusPanels(QStatusBar& bar, QAction& undo)
    : page_(Panel("pageTitle")),
      count_(Panel("clientCount")),
      total_(Panel("totalClients")),
      ascendant_(Panel("currentAscendant")),
      nodes_(Panel("nodeMode")),
      swatch_(Swatch()),
      disha_(Panel("dishaShool")),
      date_(Panel("dateNow")) {
  bar.addWidget(page_);
  page_->hide();
  bar.addWidget(count_);
  bar.addWidget(total_);
  QToolButton* button = UndoButton(undo);
  bar.addWidget(button);
  button->setVisible(undo.isVisible());
  for (QWidget* panel :
       std::initializer_list<QWidget*>{ascendant_, nodes_, swatch_, disha_, date_}) {
    bar.addPermanentWidget(panel);
  }
}

// The counts stand whole; what tells of the sky is cut first.
void StatusPanels::ShowWhole(ElidedLabel& panel, const QString& text) {
  panel.setText(text);
  panel.setMinimumWidth(panel.sizeHint().width());
}

void StatusPanels::ShowCount(const QString& text) { ShowWhole(*count_, text); }
void StatusPanels::ShowPage(const QString& text) {
  ShowWhole(*page_, text);
  page_->setVisible(!text.isEmpty());
  count_->setVisible(text.isEmpty());
  total_->setVisible(text.isEmpty());
}

void StatusPanels::ShowDate(bool shown) { date_->setVisible(shown); }
void StatusPanels::ShowTotal(const QString& text) { ShowWhole(*total_, text); }

void StatusPanels::ShowSky(const panchang::SkyCaptions& captions) {
  ascendant_->setText(Shown(captions.Ascendant));
  nodes_->setText(Shown(captions.NodeMode));
  disha_->setText(Shown(captions.DishaShool));
  QPalette colored = swatch_->palette();
  colored.setColor(QPalette::Window, DishaColor(captions.DishaShoolColor));
  swatch_->setPalette(colored);
  date_->setText(Shown(captions.WeekdayName + " " + captions.Date));
}

}  // namespace orvex::ui
