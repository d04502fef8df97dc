// The ruling planets in one line, for windows in which their table has no room; in two where the
// line is too short.
#pragma once

#include <QWidget>
#include <vector>

#include "ui/horoscope/horoscope_document.h"

namespace orvex::ui {

class RulingLine final : public QWidget {
  Q_OBJECT

 public:
  // A click on a chip chooses its planet, which wears the ring.
  explicit RulingLine(HoroscopeDocument& document);

  // A table of descriptions and planets.
  void ShowTable(const core::Table& rulingPlanets);

  // Where the chip of a row stands.
  QRect ChipBox(std::size_t row) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  struct Ruler {
    QString Words;
    QString Code;
  };

  int WidthOf(const Ruler& ruler) const;
  std::size_t InOneLine() const;
  int Lines() const;
  QRect BoxOf(std::size_t row) const;

  HoroscopeDocument& document_;
  std::vector<Ruler> rulers_;
};

}  // namespace orvex::ui
