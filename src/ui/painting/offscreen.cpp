#include "ui/painting/offscreen.h"

namespace orvex::ui {

OffscreenPainting::OffscreenPainting() {
  if (QCoreApplication::instance() == nullptr) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Without a desktop session Qt remarks on folders that no picture needs.
    const QtMessageHandler before =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    application_ = std::make_unique<QGuiApplication>(argumentCount_, arguments_);
    qInstallMessageHandler(before);
  }
}

}  // namespace orvex::ui
