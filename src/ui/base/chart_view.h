// A chart that grows with its window, drawn as vectors, with what each field and planet tells.
#pragma once

#include <QWidget>
#include <functional>

#include "report/chart_picture.h"
#include "ui/base/theme.h"

class QMenu;

namespace orvex::ui {

class ChartView final : public QWidget {
  Q_OBJECT

 public:
  static constexpr int kReadableSide = 35 * kGrid;  // nine planets in one house can be read

  // As a square it is never smaller than `smallestSide` pixels.
  explicit ChartView(const QString& objectName, int smallestSide = kReadableSide);

  void SetPicture(const report::ChartPicture& picture);
  const report::ChartPicture& Picture() const { return picture_; }

  // The code of the planet drawn at a point, with its marks; "" where none is.
  QString CodeAt(const QPointF& point) const;

  // Rings a planet by its code; "" takes the ring off.
  void SetChosen(const QString& code);

  // What fills the menu of a right click, in the place of the one entry "Copy chart".
  void SetMenu(std::function<void(QMenu&)> fill) { fillMenu_ = std::move(fill); }
  void AddCopy(QMenu& menu);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  // A double click on a planet: its code.
  void CodeActivated(const QString& code);
  // A click on a planet: its code without marks.
  void CodeClicked(const QString& code);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  QString TooltipAt(const QPointF& point) const;
  void PaintRings(QPainter& painter) const;
  void CopyPicture() const;

  int smallestSide_;
  report::ChartPicture picture_;
  QString chosen_;
  std::function<void(QMenu&)> fillMenu_;
  bool secondClick_ = false;  // the release that follows ends a double click
};

}  // namespace orvex::ui
