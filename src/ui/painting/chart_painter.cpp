#include "ui/painting/chart_painter.h"

#include <QFontMetricsF>
#include <algorithm>

#include "chart/planet_marks.h"
#include "core/cell_colors.h"
#include "ui/painting/chart_geometry.h"

namespace orvex::ui {

namespace {

// Parts of the chart's side.
constexpr double kLargestText = 0.044;
constexpr double kSmallestText = 0.018;
constexpr double kSignText = 0.036;  // and of the cusps' degrees
constexpr double kMiddleText = 0.046;
constexpr double kReadableSign = 0.77;  // of a planet with room
constexpr double kBorderLine = 0.0055;
constexpr double kInnerLine = 0.0030;

QFont Sized(const QFont& font, double pixels) {
  QFont sized = font;
  sized.setPixelSize(std::max(1, static_cast<int>(pixels)));
  return sized;
}

QFont CodeFont(const QFont& font) {
  QFont bold = font;
  bold.setWeight(QFont::Bold);
  return bold;
}

double SignText(double side, double readable) {
  return std::max(side * kSignText, readable * kReadableSign);
}

QPointF Placed(const QRectF& square, const QPointF& unit) {
  return {square.left() + unit.x() * square.width(), square.top() + unit.y() * square.height()};
}

QPolygonF Placed(const QRectF& square, const QPolygonF& unit) {
  QPolygonF outline;
  for (const QPointF& corner : unit) {
    outline << Placed(square, corner);
  }
  return outline;
}

QRectF NumberBox(const QPointF& tip, const QString& number, const QFontMetricsF& metrics) {
  QRectF box(0, 0, metrics.horizontalAdvance(number), metrics.height());
  box.moveCenter(tip);
  return box;
}

QStringList CodesOf(const report::PictureField& field) {
  QStringList words;
  for (const std::string& code : field.Codes) {
    words.append(QString::fromStdString(code));
  }
  return words;
}

void PaintField(QPainter& painter, const DrawnField& drawn, const report::PictureField& field,
                const QFont& font, const ChartColors& colors, double signText) {
  painter.setFont(Sized(font, signText));
  painter.setPen(colors.Muted);
  painter.drawText(drawn.SignBox, Qt::AlignCenter | Qt::TextDontClip,
                   QString::fromStdString(field.Sign));
  if (!drawn.Codes.Note.Text.isEmpty()) {
    painter.setFont(Sized(font, drawn.Codes.NoteSize));
    painter.drawText(drawn.Codes.Note.Box, Qt::AlignCenter | Qt::TextDontClip,
                     drawn.Codes.Note.Text);
  }
  painter.setFont(Sized(CodeFont(font), drawn.Codes.PixelSize));
  for (const PlacedWord& word : drawn.Codes.Words) {
    painter.setPen(word.Text.contains(chart::kRetrogradeMark) ? colors.Retrograde : colors.Text);
    painter.drawText(word.Box, Qt::AlignCenter | Qt::TextDontClip, word.Text);
  }
}

void PaintLines(QPainter& painter, const QRectF& square, const ChartGeometry& geometry,
                const ChartColors& colors) {
  painter.setPen(QPen(colors.Line, square.width() * kInnerLine, Qt::SolidLine, Qt::FlatCap));
  for (const QLineF& line : geometry.Lines) {
    painter.drawLine(Placed(square, line.p1()), Placed(square, line.p2()));
  }
  painter.setPen(
      QPen(colors.Line, square.width() * kBorderLine, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(square);
}

}  // namespace

ChartColors PrintColors() {
  return {QColor(255, 255, 255), QColor(58, 74, 92),  QColor(24, 30, 38),
          QColor(96, 112, 130),  QColor(192, 28, 40), QColor(QString("#") + core::kAscendantTint)};
}

ChartColors DarkColors() {
  return {QColor(33, 36, 41),    QColor(132, 148, 166), QColor(232, 236, 240),
          QColor(148, 160, 174), QColor(255, 128, 128), QColor(84, 78, 38)};
}

QRectF ChartSquare(const QRectF& area) {
  const double side = std::min(area.width(), area.height());
  const double inset = side * kBorderLine;
  QRectF square(0, 0, side - 2 * inset, side - 2 * inset);
  square.moveCenter(area.center());
  return square;
}

std::array<DrawnField, 12> LayOutChart(const report::ChartPicture& picture, const QFont& font,
                                       const QRectF& square, double readable) {
  const ChartGeometry& geometry = GeometryOf(picture.Style);
  const double small = SignText(square.width(), readable);
  const QFontMetricsF signMetrics(Sized(font, small));
  std::array<DrawnField, 12> drawn;
  for (std::size_t i = 0; i < drawn.size(); ++i) {
    const report::PictureField& field = picture.Fields.at(i);
    DrawnField& place = drawn.at(i);
    place.Outline = Placed(square, geometry.Fields.at(i).Outline);
    place.SignBox = NumberBox(Placed(square, geometry.Fields.at(i).Tip),
                              QString::fromStdString(field.Sign), signMetrics);
    place.Codes =
        LayOutWords(CodesOf(field), {QString::fromStdString(field.Note), font, small},
                    place.Outline, {place.SignBox}, CodeFont(font), square.width() * kSmallestText,
                    std::max(square.width() * kLargestText, readable));
  }
  return drawn;
}

void PaintChart(QPainter& painter, const QRectF& area, const report::ChartPicture& picture,
                const ChartColors& colors, double readable) {
  const QRectF square = ChartSquare(area);
  const ChartGeometry& geometry = GeometryOf(picture.Style);
  const QFont font = painter.font();
  const std::array<DrawnField, 12> drawn = LayOutChart(picture, font, square, readable);
  painter.save();
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter.fillRect(square, colors.Paper);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colors.Tint);
  for (std::size_t i = 0; i < drawn.size(); ++i) {
    if (picture.Fields.at(i).Ascendant) {
      painter.drawPolygon(drawn.at(i).Outline);
    }
  }
  PaintLines(painter, square, geometry, colors);
  for (std::size_t i = 0; i < drawn.size(); ++i) {
    PaintField(painter, drawn.at(i), picture.Fields.at(i), font, colors,
               SignText(square.width(), readable));
  }
  if (!geometry.Middle.isEmpty()) {
    painter.setFont(Sized(font, square.width() * kMiddleText));
    painter.setPen(colors.Muted);
    const QRectF middle(Placed(square, geometry.Middle.topLeft()),
                        Placed(square, geometry.Middle.bottomRight()));
    painter.drawText(middle, Qt::AlignCenter | Qt::TextWordWrap,
                     QString::fromStdString(picture.Title));
  }
  painter.restore();
}

}  // namespace orvex::ui
