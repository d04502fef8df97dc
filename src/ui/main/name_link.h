// A name that can be pressed, with a figure at the right; cut where the room is short.
#pragma once

#include <QAbstractButton>

namespace orvex::ui {

class NameLink final : public QAbstractButton {
  Q_OBJECT

 public:
  NameLink(const QString& name, const QString& figure);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString name_;
  QString figure_;
};

}  // namespace orvex::ui
