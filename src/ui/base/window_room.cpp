#include "ui/base/window_room.h"

#include <QEvent>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <array>
#include <chrono>

namespace orvex::ui {

namespace {

// Desktops give windows their frames a moment after these are shown.
constexpr std::array<std::chrono::milliseconds, 3> kLooks = {
    {std::chrono::milliseconds{0}, std::chrono::milliseconds{100}, std::chrono::milliseconds{400}}};

// What a frame, a title and a panel take of the smallest screens.
constexpr QSize kGivesWay(40, 80);

class RoomKeeper final : public QObject {
 public:
  explicit RoomKeeper(QWidget& window)
      : QObject(&window), window_(window), least_(window.minimumSize()) {
    window.installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Show) {
      frame_ = QSize();
      for (const std::chrono::milliseconds after : kLooks) {
        QTimer::singleShot(after, this, [this] { Look(); });
      }
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  void Look() {
    const QScreen* screen = window_.screen();
    const QSize frame = window_.frameGeometry().size() - window_.size();
    if (screen == nullptr || frame == frame_ || window_.isMaximized() || window_.isFullScreen()) {
      return;
    }
    frame_ = frame;
    const QRect free = screen->availableGeometry();
    // What the frame adds. A window that is much larger was made so.
    const QSize over = (window_.frameGeometry().size() - free.size()).expandedTo(QSize(0, 0));
    const QSize less(over.width() <= kGivesWay.width() ? over.width() : 0,
                     over.height() <= kGivesWay.height() ? over.height() : 0);
    if (!less.isNull()) {
      window_.setMinimumSize(least_.boundedTo(window_.size() - less));
      window_.resize(window_.size() - less);
      BringBack(free, window_.frameGeometry());
    }
  }

  void BringBack(const QRect& free, const QRect& framed) {
    const int left = std::clamp(framed.left(), free.left(),
                                std::max(free.left(), free.right() + 1 - framed.width()));
    const int top = std::clamp(framed.top(), free.top(),
                               std::max(free.top(), free.bottom() + 1 - framed.height()));
    if (QPoint(left, top) != framed.topLeft()) {
      window_.move(left, top);
    }
  }

  QWidget& window_;
  QSize least_;
  QSize frame_;  // as it was looked at last
};

}  // namespace

void KeepOnScreen(QWidget& window) {
  if (const QScreen* screen = window.screen()) {
    window.resize(window.size().boundedTo(screen->availableSize()));
  }
  new RoomKeeper(window);
}

}  // namespace orvex::ui
