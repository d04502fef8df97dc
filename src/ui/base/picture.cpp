#include "ui/base/picture.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QWidget>
#include <stdexcept>

#include "ui/base/qt_text.h"

namespace orvex::ui {

void WritePicture(QWidget& widget, const std::filesystem::path& file) {
  constexpr int kRounds = 3;
  if (!widget.isVisible()) {
    widget.show();
  }
  for (int round = 0; round < kRounds; ++round) {
    QCoreApplication::processEvents();
  }
  if (!widget.grab().save(Shown(file.string()), "PNG")) {
    throw std::runtime_error("the picture " + file.string() + " could not be written");
  }
}

}  // namespace orvex::ui
