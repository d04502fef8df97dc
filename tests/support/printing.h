// The preview of what is printed, used as a hand would.
#pragma once

#include <QApplication>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <memory>

namespace orvex::test {

// What a preview was like that has come and gone.
struct SeenPreview {
  int Count = 0;
  QPageLayout Layout;
};

// When the preview stands open, prints from it into a file and closes it with Escape.
inline std::shared_ptr<SeenPreview> PrintWhenShown(const std::filesystem::path& file,
                                                   std::shared_ptr<SeenPreview> seen = nullptr) {
  if (seen == nullptr) {
    seen = std::make_shared<SeenPreview>();
  }
  QTimer::singleShot(0, qApp, [file, seen] {
    auto* open = dynamic_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
    if (open == nullptr || open->objectName() != "printPreview") {
      PrintWhenShown(file, seen);
      return;
    }
    ++seen->Count;
    seen->Layout = open->printer()->pageLayout();
    open->printer()->setOutputFileName(QString::fromStdString(file.string()));
    open->findChild<QPrintPreviewWidget*>()->print();
    QTest::keyClick(open, Qt::Key_Escape);
  });
  return seen;
}

}  // namespace orvex::test
