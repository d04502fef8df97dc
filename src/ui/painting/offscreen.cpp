#include "ui/painting/offscreen.h"

#include <iostream>

namespace orvex::ui {

namespace {

// Qt looks for the letters of a script in one font after the other and remarks on each that lacks
// them, which says nothing about the picture.
void ShowRemark(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text) {
  if (!text.contains("OpenType support missing")) {
    std::cerr << text.toStdString() << "\n";
  }
}

}  // namespace

OffscreenPainting::OffscreenPainting() {
  if (QCoreApplication::instance() == nullptr) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Without a desktop session Qt remarks on folders that no picture needs.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    application_ = std::make_unique<QGuiApplication>(argumentCount_, arguments_);
    qInstallMessageHandler(ShowRemark);
  }
}

}  // namespace orvex::ui
