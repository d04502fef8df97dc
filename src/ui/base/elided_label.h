// A label that never dictates a width: what does not fit is cut with "…" and told in its tool tip.
#pragma once

#include <QLabel>

namespace orvex::ui {

class ElidedLabel final : public QLabel {
  Q_OBJECT

 public:
  explicit ElidedLabel(const QString& objectName, QWidget* parent = nullptr);

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace orvex::ui
