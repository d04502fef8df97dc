#include "ui/base/open_windows.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>
#include <vector>

namespace orvex::ui {

void DeleteOpenWindows() {
  // A window takes its menus and dialogs with it, which stand in the same list.
  std::vector<QPointer<QWidget>> open;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    open.emplace_back(widget);
  }
  for (const QPointer<QWidget>& widget : open) {
    if (widget && widget->testAttribute(Qt::WA_DeleteOnClose)) {
      delete widget.data();
    }
  }
}

}  // namespace orvex::ui
