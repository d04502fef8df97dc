#include "ui/main/status_panels.h"

#include <QAction>
#include <QLabel>
#include <QStatusBar>
#include <QToolButton>

#include "ui/base/named.h"
#include "ui/base/qt_text.h"

namespace orvex::ui {

namespace {

QLabel* Panel(const char* name) {
  QLabel* label = Named(new QLabel, name);
  label->setTextFormat(Qt::PlainText);
  return label;
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
    : count_(Panel("clientCount")),
      total_(Panel("totalClients")),
      ascendant_(Panel("currentAscendant")),
      nodes_(Panel("nodeMode")),
      disha_(Panel("dishaShool")),
      date_(Panel("dateNow")) {
  bar.addWidget(count_);
  bar.addWidget(total_);
  QToolButton* button = UndoButton(undo);
  bar.addWidget(button);
  button->setVisible(undo.isVisible());
  for (QLabel* panel : {ascendant_, nodes_, disha_, date_}) {
    bar.addPermanentWidget(panel);
  }
}

void StatusPanels::ShowCount(const QString& text) { count_->setText(text); }
void StatusPanels::ShowTotal(const QString& text) { total_->setText(text); }

void StatusPanels::ShowSky(const panchang::SkyCaptions& captions) {
  ascendant_->setText(Shown(captions.Ascendant));
  nodes_->setText(Shown(captions.NodeMode));
  disha_->setText(Shown(captions.DishaShool));
  date_->setText(Shown(captions.WeekdayName + " " + captions.Date));
}

}  // namespace orvex::ui
