#include "ui/main/work_progress.h"

#include <QCoreApplication>

#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr qint64 kEventsEvery = 30;  // milliseconds

}  // namespace

WorkProgress::WorkProgress(const char* name) {
  setObjectName(name);
  setMaximumWidth(20 * kGrid);
  QSizePolicy keepsPlace = sizePolicy();
  keepsPlace.setRetainSizeWhenHidden(true);
  setSizePolicy(keepsPlace);
  hide();
}

void WorkProgress::Begin() {
  atWork_ = true;
  canceled_ = false;
  sinceEvents_.invalidate();
  setRange(0, 0);
  show();
}

void WorkProgress::End() {
  atWork_ = false;
  hide();
}

bool WorkProgress::GoOn(std::size_t done, std::size_t all) {
  if (!sinceEvents_.isValid() || sinceEvents_.hasExpired(kEventsEvery)) {
    setRange(0, static_cast<int>(all));
    setValue(static_cast<int>(done));
    QCoreApplication::processEvents();
    sinceEvents_.start();
  }
  return !canceled_;
}

}  // namespace orvex::ui
