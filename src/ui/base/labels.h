// The labels that windows share.
#pragma once

#include <QLabel>
#include <QPushButton>

namespace orvex::ui {

// A heading above a part of a page.
QLabel* MakeHeading(const QString& text);

// A label whose text can be marked and copied.
QLabel* MakeCaptionLabel(const QString& objectName);

// A button that looks like a link.
class LinkButton final : public QPushButton {
  Q_OBJECT

 public:
  explicit LinkButton(const QString& objectName);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void TakeColor();
};

}  // namespace orvex::ui
