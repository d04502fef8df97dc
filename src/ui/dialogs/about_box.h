// What program this is, and whether there is a newer build.
#pragma once

#include <QDialog>

namespace orvex::ui {

class AboutBox final : public QDialog {
  Q_OBJECT

 public:
  explicit AboutBox(QWidget* parent = nullptr);
};

// The present build beside the newest one; this build asks nobody.
class UpdateBox final : public QDialog {
  Q_OBJECT

 public:
  explicit UpdateBox(QWidget* parent = nullptr);
};

}  // namespace orvex::ui
