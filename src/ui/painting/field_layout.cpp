#include "ui/painting/field_layout.h"

#include <QFontMetricsF>
#include <algorithm>
#include <optional>

namespace orvex::ui {

namespace {

constexpr double kSteps = 24;  // sizes tried between the largest and the smallest

struct Span {
  double Left = 0;
  double Right = 0;
  double Width() const { return Right - Left; }
};

// The part of a horizontal line that lies inside a convex outline.
Span Chord(const QPolygonF& outline, double y) {
  Span span{outline.boundingRect().right(), outline.boundingRect().left()};
  for (qsizetype i = 0; i < outline.size(); ++i) {
    const QPointF& a = outline.at(i);
    const QPointF& b = outline.at((i + 1) % outline.size());
    if (y < std::min(a.y(), b.y()) || y > std::max(a.y(), b.y())) {
      continue;
    }
    const bool flat = a.y() == b.y();  // both ends count
    const double part = flat ? 0 : (y - a.y()) / (b.y() - a.y());
    const double crossing = a.x() + part * (b.x() - a.x());
    span.Left = std::min({span.Left, crossing, flat ? b.x() : crossing});
    span.Right = std::max({span.Right, crossing, flat ? b.x() : crossing});
  }
  return span;
}

// The room of a line between two heights: inside the outline and beside what is taken.
Span Room(const QPolygonF& outline, const std::vector<QRectF>& taken, double top, double bottom,
          double margin) {
  const Span above = Chord(outline, top);
  const Span below = Chord(outline, bottom);
  Span room{std::max(above.Left, below.Left) + margin, std::min(above.Right, below.Right) - margin};
  for (const QRectF& box : taken) {
    if (box.bottom() <= top || box.top() >= bottom || box.right() + margin <= room.Left ||
        box.left() - margin >= room.Right) {
      continue;
    }
    const Span left{room.Left, box.left() - margin};
    const Span right{box.right() + margin, room.Right};
    room = left.Width() > right.Width() ? left : right;
  }
  return room;
}

struct Setting {
  const QStringList& Words;
  const QPolygonF& Outline;
  const std::vector<QRectF>& Taken;
  const QFontMetricsF& Metrics;
  double LineHeight;
  double Blank;
  double Margin;
};

void SetLine(const Setting& setting, const QStringList& line, const Span& room, double top,
             std::vector<PlacedWord>& placed) {
  double width = -setting.Blank;
  for (const QString& word : line) {
    width += setting.Metrics.horizontalAdvance(word) + setting.Blank;
  }
  double x = (room.Left + room.Right - width) / 2;
  for (const QString& word : line) {
    const double advance = setting.Metrics.horizontalAdvance(word);
    placed.push_back({word, {x, top, advance, setting.LineHeight}});
    x += advance + setting.Blank;
  }
}

// The words in `lines` lines from a height on; nothing where they do not fit.
std::optional<std::vector<PlacedWord>> TrySetting(const Setting& setting, int lines, double top) {
  std::vector<PlacedWord> placed;
  qsizetype next = 0;
  for (int i = 0; i < lines && next < setting.Words.size(); ++i) {
    const double lineTop = top + i * setting.LineHeight;
    const Span room =
        Room(setting.Outline, setting.Taken, lineTop, lineTop + setting.LineHeight, setting.Margin);
    QStringList line;
    double width = 0;
    while (next < setting.Words.size()) {
      const double advance = setting.Metrics.horizontalAdvance(setting.Words.at(next));
      if (width + advance > room.Width()) {
        break;
      }
      width += advance + setting.Blank;
      line.append(setting.Words.at(next++));
    }
    SetLine(setting, line, room, lineTop, placed);
  }
  if (next < setting.Words.size()) {
    return std::nullopt;
  }
  return placed;
}

// Fewest lines first, and heights from the middle of the outline outwards.
std::optional<std::vector<PlacedWord>> Fit(const Setting& setting) {
  const QRectF bounds = setting.Outline.boundingRect();
  const double free = bounds.height() - 2 * setting.Margin;
  for (int lines = 1; lines * setting.LineHeight <= free; ++lines) {
    const double slack = (free - lines * setting.LineHeight) / 2;
    const double middle = bounds.top() + setting.Margin + slack;
    const double step = std::max(setting.LineHeight / 6, 0.25);
    for (double away = 0; away <= slack; away += step) {
      for (const double top : {middle - away, middle + away}) {
        if (const auto placed = TrySetting(setting, lines, top)) {
          return placed;
        }
      }
    }
  }
  return std::nullopt;
}

std::vector<PlacedWord> Stacked(const Setting& setting) {
  std::vector<PlacedWord> placed;
  const QRectF bounds = setting.Outline.boundingRect();
  const double height = setting.LineHeight * static_cast<double>(setting.Words.size());
  double top = bounds.center().y() - height / 2;
  for (const QString& word : setting.Words) {
    SetLine(setting, {word}, {bounds.left(), bounds.right()}, top, placed);
    top += setting.LineHeight;
  }
  return placed;
}

}  // namespace

FieldText LayOutWords(const QStringList& words, const QPolygonF& outline,
                      const std::vector<QRectF>& taken, const QFont& font, double smallest,
                      double largest) {
  if (words.isEmpty()) {
    return {largest, {}};
  }
  QFont sized = font;
  for (int step = 0;; ++step) {
    const double size = largest - (largest - smallest) * step / kSteps;
    sized.setPixelSize(std::max(1, static_cast<int>(size)));
    const QFontMetricsF metrics(sized);
    const Setting setting{words,
                          outline,
                          taken,
                          metrics,
                          metrics.height() * 0.94,
                          metrics.horizontalAdvance(' ') * 1.3,
                          size * 0.22};
    if (auto placed = Fit(setting)) {
      return {static_cast<double>(sized.pixelSize()), std::move(*placed)};
    }
    if (step == static_cast<int>(kSteps)) {
      return {static_cast<double>(sized.pixelSize()), Stacked(setting)};
    }
  }
}

}  // namespace orvex::ui
