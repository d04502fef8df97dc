// The main window, which is made anew when the size of texts or the form of degrees has changed.
#pragma once

#include <QObject>
#include <memory>

#include "ui/base/workplace.h"

namespace orvex::ui {

class MainWindow;

class KeptMainWindow final : public QObject {
  Q_OBJECT

 public:
  // With another title than its own where one is given.
  explicit KeptMainWindow(Workplace& place, const QString& title = {});
  ~KeptMainWindow() override;

  MainWindow& Window() { return *window_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Make();
  void MakeAnew();

  Workplace& place_;
  QString title_;
  std::unique_ptr<MainWindow> window_;
};

}  // namespace orvex::ui
