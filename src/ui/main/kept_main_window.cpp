#include "ui/main/kept_main_window.h"

#include <QTimer>

#include "ui/base/window_look.h"
#include "ui/main/main_window.h"

namespace orvex::ui {

KeptMainWindow::KeptMainWindow(Workplace& place, const QString& title)
    : place_(place), title_(title) {
  Make();
}

KeptMainWindow::~KeptMainWindow() = default;

void KeptMainWindow::Make() {
  window_ = std::make_unique<MainWindow>(place_);
  if (!title_.isEmpty()) {
    window_->setWindowTitle(title_);
  }
  window_->installEventFilter(this);
}

// Place, page, group and client stay.
void KeptMainWindow::MakeAnew() {
  const std::unique_ptr<MainWindow> before = std::move(window_);
  const MainWindow::Place inSight = before->InSight();
  place_.Layout.KeepWindow(*before);
  Make();
  window_->Show(inSight);
  window_->show();
}

bool KeptMainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == LookChanged() && watched == window_.get()) {
    // After the event: its window goes.
    QTimer::singleShot(0, this, &KeptMainWindow::MakeAnew);
    return true;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace orvex::ui
