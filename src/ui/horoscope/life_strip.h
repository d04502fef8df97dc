// The dashas of a life in one strip with its ages, and under it the bhuktis of the chosen one.
#pragma once

#include <QWidget>

#include "ui/base/shown_page.h"
#include "ui/horoscope/horoscope_document.h"
#include "ui/painting/dasha_timeline.h"

namespace orvex::ui {

struct Tokens;

class LifeStrip final : public QWidget, public PrintsItself {
  Q_OBJECT

 public:
  explicit LifeStrip(HoroscopeDocument& document);

  void ShowModel();

  // The period at a point; nothing where there is none.
  std::optional<BarPlace> BarUnder(const QPoint& point) const;

  std::vector<PageBlock> PrintedBlocks() const override;

 signals:
  // A click: the level, 0 or 1, and the row in its list.
  void PeriodChosen(std::size_t level, std::size_t row);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  // How the strip is drawn: in the window, on paper.
  struct Look {
    int Width;
    const Tokens& Colors;
    QFont Words;
    QFont Bold;
  };

  static QRect RowBox(std::size_t level, int width);
  int XOf(std::size_t level, core::DateTime day, int width) const;
  QRect BarBox(const BarPlace& bar, int width) const;
  void Paint(QPainter& painter, const Look& look) const;
  void PaintBars(QPainter& painter, std::size_t level, const Look& look) const;
  void PaintToday(QPainter& painter, std::size_t level, const Look& look) const;
  void PaintAges(QPainter& painter, const Look& look) const;
  void PaintCone(QPainter& painter, const Look& look) const;
  void PaintStarts(QPainter& painter, const Look& look) const;

  HoroscopeDocument& document_;
  TimelinePicture picture_;
};

}  // namespace orvex::ui
