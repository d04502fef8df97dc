// Files and folders with births, dropped onto a window.
#pragma once

#include <QObject>
#include <filesystem>
#include <vector>

class QMimeData;
class QWidget;

namespace orvex::ui {

class DroppedFiles final : public QObject {
  Q_OBJECT

 public:
  // Belongs to the window. A text field of the window takes no such file for text.
  explicit DroppedFiles(QWidget& window);

 signals:
  // All that was dropped at once; told after the drop is over.
  void Dropped(const std::vector<std::filesystem::path>& paths);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget& window_;
};

}  // namespace orvex::ui
