#include "ui/main/dropped_files.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>

#include "exchange/exchange_files.h"
#include "ui/base/qt_text.h"

namespace orvex::ui {

namespace {

// None where one of them is no file or folder that an import takes.
std::vector<std::filesystem::path> PathsOf(const QMimeData& data) {
  std::vector<std::filesystem::path> paths;
  for (const QUrl& url : data.urls()) {
    const std::filesystem::path path = Typed(url.toLocalFile());
    if (path.empty() || !exchange::IsImportSource(path)) {
      return {};
    }
    paths.push_back(path);
  }
  return paths;
}

}  // namespace

DroppedFiles::DroppedFiles(QWidget& window) : QObject(&window), window_(window) {
  window.setAcceptDrops(true);
  qApp->installEventFilter(this);
}

// A drag comes to the innermost widget that takes drops, which may be a field.
bool DroppedFiles::eventFilter(QObject* watched, QEvent* event) {
  const bool isDrag = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove;
  const auto* widget = qobject_cast<QWidget*>(watched);
  if ((!isDrag && event->type() != QEvent::Drop) || widget == nullptr ||
      widget->window() != &window_) {
    return QObject::eventFilter(watched, event);
  }
  auto& drop = static_cast<QDropEvent&>(*event);
  std::vector<std::filesystem::path> paths = PathsOf(*drop.mimeData());
  if (paths.empty()) {
    return QObject::eventFilter(watched, event);
  }
  drop.setDropAction(Qt::CopyAction);
  drop.accept();
  if (!isDrag) {
    // The program that dropped them waits until the event is over.
    QTimer::singleShot(0, this, [this, paths] { emit Dropped(paths); });
  }
  return true;
}

}  // namespace orvex::ui
