#include "ui/painting/field_layout.h"

#include <QFontMetricsF>
#include <algorithm>
#include <iterator>
#include <optional>

namespace orvex::ui {

namespace {

constexpr double kSteps = 24;        // sizes tried between the largest and the smallest
constexpr double kTightLine = 0.94;  // of the font's height

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

// The note as it stands in one size of the words.
struct NoteLine {
  QString Text;
  double Width = 0;
  double Height = 0;  // 0 without a note
  bool Below = false;
};

struct Setting {
  const QStringList& Words;
  std::vector<double> Widths;  // of the words; measuring one costs more than all the rest
  const QPolygonF& Outline;
  const std::vector<QRectF>& Taken;
  NoteLine Note;
  double LineHeight;
  double Blank;
  double Margin;
};

// What was set: the words and the note.
struct SetText {
  std::vector<PlacedWord> Words;
  PlacedWord Note;
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

// The note in the middle of the room between two heights; false where it does not fit.
bool SetNote(const Setting& setting, double top, SetText& placed) {
  const NoteLine& note = setting.Note;
  const Span room = Room(setting.Outline, setting.Taken, top, top + note.Height, setting.Margin);
  placed.Note = {note.Text,
                 {(room.Left + room.Right - note.Width) / 2, top, note.Width, note.Height}};
  return note.Width <= room.Width();
}

// The note and the words in `lines` lines from a height on; nothing where they do not fit.
std::optional<SetText> TrySetting(const Setting& setting, int lines, double top) {
  SetText placed;
  const double noteTop = setting.Note.Below ? top + lines * setting.LineHeight : top;
  if (setting.Note.Height > 0 && !SetNote(setting, noteTop, placed)) {
    return std::nullopt;
  }
  const double wordsTop = setting.Note.Below ? top : top + setting.Note.Height;
  std::size_t next = 0;
  for (int i = 0; i < lines && next < setting.Widths.size(); ++i) {
    const double lineTop = wordsTop + i * setting.LineHeight;
    const Span room =
        Room(setting.Outline, setting.Taken, lineTop, lineTop + setting.LineHeight, setting.Margin);
    const std::size_t first = next;
    double width = 0;
    while (next < setting.Widths.size() && width + WidthOf(setting, next) <= room.Width()) {
      width += WidthOf(setting, next++) + setting.Blank;
    }
    SetLine(setting, first, next, room, lineTop, placed.Words);
  }
  if (next < setting.Widths.size()) {
    return std::nullopt;
  }
  return placed;
}

// So many lines, at heights from the middle of the outline outwards.
std::optional<SetText> FitLines(const Setting& setting, int lines, double free) {
  const double slack = (free - lines * setting.LineHeight) / 2;
  const double middle = setting.Outline.boundingRect().top() + setting.Margin + slack;
  const double step = std::max(setting.LineHeight / 6, 0.25);
  for (double away = 0; away <= slack; away += step) {
    for (const double top : {middle - away, middle + away}) {
      if (auto placed = TrySetting(setting, lines, top)) {
        return placed;
      }
    }
  }
  return std::nullopt;
}

// Fewest lines first, in a field that is much higher than wide most lines.
std::optional<SetText> Fit(const Setting& setting) {
  constexpr double kTall = 1.5;
  const QRectF bounds = setting.Outline.boundingRect();
  const double free = bounds.height() - 2 * setting.Margin - setting.Note.Height;
  const int least = setting.Words.isEmpty() ? 0 : 1;
  const int most = std::min(static_cast<int>(free / setting.LineHeight),
                            std::max(least, static_cast<int>(setting.Words.size())));
  const bool tall = bounds.height() > kTall * bounds.width();
  for (int step = 0; least + step <= most; ++step) {
    if (auto placed = FitLines(setting, tall ? most - step : least + step, free)) {
      return placed;
    }
  }
  return std::nullopt;
}

SetText Stacked(const Setting& setting) {
  SetText placed;
  const QRectF bounds = setting.Outline.boundingRect();
  const double height =
      setting.LineHeight * static_cast<double>(setting.Words.size()) + setting.Note.Height;
  double top = bounds.center().y() - height / 2;
  placed.Note = {
      setting.Note.Text,
      {bounds.center().x() - setting.Note.Width / 2, top, setting.Note.Width, setting.Note.Height}};
  top += setting.Note.Height;
  for (std::size_t word = 0; word < setting.Widths.size(); ++word) {
    SetLine(setting, word, word + 1, {bounds.left(), bounds.right()}, top, placed.Words);
    top += setting.LineHeight;
  }
  return placed;
}

// Beside words of that size.
NoteLine NoteBeside(const FieldNote& note, const QPolygonF& outline, double words) {
  if (note.Text.isEmpty()) {
    return {};
  }
  QFont font = note.Font;
  font.setPixelSize(std::max(1, static_cast<int>(std::min(note.PixelSize, words))));
  const QFontMetricsF metrics(font);
  const QRectF bounds = outline.boundingRect();
  return {note.Text, metrics.horizontalAdvance(note.Text), metrics.height() * kTightLine,
          Chord(outline, bounds.bottom()).Width() > Chord(outline, bounds.top()).Width() + 1};
}

}  // namespace

FieldText LayOutWords(const QStringList& words, const FieldNote& note, const QPolygonF& outline,
                      const std::vector<QRectF>& taken, const QFont& font, double smallest,
                      double largest) {
  if (words.isEmpty() && note.Text.isEmpty()) {
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
    const Setting setting{words,
                          std::move(widths),
                          outline,
                          taken,
                          NoteBeside(note, outline, size),
                          metrics.height() * kTightLine,
                          metrics.horizontalAdvance(' ') * 1.3,
                          size * 0.22};
    std::optional<SetText> placed = Fit(setting);
    if (!placed && step == static_cast<int>(kSteps)) {
      placed = Stacked(setting);
    }
    if (placed) {
      return {static_cast<double>(sized.pixelSize()), std::move(placed->Words),
              std::min(note.PixelSize, size), std::move(placed->Note)};
    }
  }
}

}  // namespace orvex::ui
