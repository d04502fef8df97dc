#include "ui/painting/graph_files.h"

#include <QBuffer>
#include <QSvgGenerator>

#include "core/home.h"

namespace orvex::ui {

namespace {

constexpr int kWidth = 1120;  // units of a sheet, in which its text is set
constexpr int kHeight = 770;
constexpr int kText = 13;
constexpr int kDotsPerInch = 96;  // of a unit of a picture, as browsers count

void PaintSheet(QPainter& painter, const GraphPainting& graph, const QRectF& sheet) {
  QFont font = painter.font();
  font.setPixelSize(kText);
  painter.setFont(font);
  painter.fillRect(sheet, ColorsOn(Ground::Light).Paper);
  graph(painter, sheet, Ground::Light);
}

}  // namespace

QString WithoutControls(const std::string& text) {
  QString clean = QString::fromStdString(text);
  for (QChar& character : clean) {
    if (character.category() == QChar::Other_Control || character.isNonCharacter()) {
      character = ' ';
    }
  }
  return clean;
}

std::string SvgText(const QSize& size, const std::string& title,
                    const std::function<void(QPainter&)>& paint) {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  QSvgGenerator svg;
  svg.setOutputDevice(&bytes);
  svg.setResolution(kDotsPerInch);
  svg.setSize(size);
  svg.setViewBox(QRect(QPoint(0, 0), size));
  // The generator writes titles as they come, unlike the texts that are painted.
  svg.setTitle(WithoutControls(title).toHtmlEscaped());
  QPainter painter(&svg);
  paint(painter);
  painter.end();
  return bytes.data().toStdString();
}

void WriteGraphSvg(const GraphPainting& graph, const std::string& title,
                   const std::filesystem::path& file) {
  const QSize size(kWidth, kHeight);
  core::WriteFileSafely(file, SvgText(size, title, [&](QPainter& painter) {
                          PaintSheet(painter, graph, QRectF(QPointF(0, 0), QSizeF(size)));
                        }));
}

PageFigure GraphFigure(const GraphPainting& graph) {
  constexpr double kAspect = 0.5;
  return {{}, 1, kAspect, [graph](QPainter& painter, const QRectF& box) {
            const double scale = box.width() / kWidth;
            painter.translate(box.topLeft());
            painter.scale(scale, scale);
            PaintSheet(painter, graph, QRectF(0, 0, kWidth, box.height() / scale));
          }};
}

std::string FileNameOf(const std::string& title) {
  QString name = WithoutControls(title);
  for (QChar& character : name) {
    if (QStringLiteral("/\\:*?\"<>|").contains(character)) {
      character = '-';
    }
  }
  return name.trimmed().toStdString();
}

}  // namespace orvex::ui
