#include "ui/painting/field_layout.h"

#include <QFontMetricsF>
#include <algorithm>
#include <iterator>
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
  std::vector<double> Widths;  // of the words; measuring one costs more than all the rest
  const QPolygonF& Outline;
  const std::vector<QRectF>& Taken;
  double LineHeight;
  double Blank;
  double Margin;
};

double WidthOf(const Setting& setting, std::size_t word) { return setting.Widths.at(word); }

// The words from one on and before another, in the middle of a line's room.
void SetLine(const Setting& setting, std::size_t from, std::size_t end, const Span& room,
             double top, std::vector<PlacedWord>& placed) {
  double width = -setting.Blank;
  for (std::size_t word = from; word < end; ++word) {
    width += WidthOf(setting, word) + setting.Blank;
  }
  double x = (room.Left + room.Right - width) / 2;
  for (std::size_t word = from; word < end; ++word) {
    const double advance = WidthOf(setting, word);
    placed.push_back(
        {setting.Words.at(static_cast<qsizetype>(word)), {x, top, advance, setting.LineHeight}});
    x += advance + setting.Blank;
  }
}

// The words in `lines` lines from a height on; nothing where they do not fit.
std::optional<std::vector<PlacedWord>> TrySetting(const Setting& setting, int lines, double top) {
  std::vector<PlacedWord> placed;
  std::size_t next = 0;
  for (int i = 0; i < lines && next < setting.Widths.size(); ++i) {
    const double lineTop = top + i * setting.LineHeight;
    const Span room =
        Room(setting.Outline, setting.Taken, lineTop, lineTop + setting.LineHeight, setting.Margin);
    const std::size_t first = next;
    double width = 0;
    while (next < setting.Widths.size() && width + WidthOf(setting, next) <= room.Width()) {
      width += WidthOf(setting, next++) + setting.Blank;
    }
    SetLine(setting, first, next, room, lineTop, placed);
  }
  if (next < setting.Widths.size()) {
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
        if (auto placed = TrySetting(setting, lines, top)) {
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
  for (std::size_t word = 0; word < setting.Widths.size(); ++word) {
    SetLine(setting, word, word + 1, {bounds.left(), bounds.right()}, top, placed);
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
    std::vector<double> widths;
    std::transform(words.begin(), words.end(), std::back_inserter(widths),
                   [&](const QString& word) { return metrics.horizontalAdvance(word); });
    const Setting setting{words,      std::move(widths),       outline,
                          taken,      metrics.height() * 0.94, metrics.horizontalAdvance(' ') * 1.3,
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
