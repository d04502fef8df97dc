#include "ui/painting/picture_files.h"

#include <QBuffer>
#include <QImage>
#include <stdexcept>

#include "core/home.h"
#include "ui/painting/chart_painter.h"
#include "ui/painting/graph_files.h"

namespace orvex::ui {

namespace {

// Room around the chart, a part of the side.
constexpr double kMargin = 0.02;

QRectF Area(int side) {
  const double margin = side * kMargin;
  return {margin, margin, side - 2 * margin, side - 2 * margin};
}

std::string AsImage(const report::ChartPicture& picture, PictureFormat format, int side) {
  QImage image(side, side, QImage::Format_RGB32);
  image.fill(PrintColors().Paper);
  QPainter painter(&image);
  PaintChart(painter, Area(side), picture, PrintColors());
  painter.end();
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  if (!image.save(&bytes, format == PictureFormat::Bmp ? "BMP" : "PNG")) {
    throw std::runtime_error("The chart could not be made into a picture.");
  }
  return bytes.data().toStdString();
}

std::string AsSvg(const report::ChartPicture& picture, int side) {
  return SvgText({side, side}, picture.Title, [&](QPainter& painter) {
    PaintChart(painter, Area(side), picture, PrintColors());
  });
}

}  // namespace

std::string ChartPictureBytes(const report::ChartPicture& picture, PictureFormat format, int side) {
  return format == PictureFormat::Svg ? AsSvg(picture, side) : AsImage(picture, format, side);
}

void WriteChartPicture(const report::ChartPicture& picture, PictureFormat format, int side,
                       const std::filesystem::path& file) {
  core::WriteFileSafely(file, ChartPictureBytes(picture, format, side));
}

}  // namespace orvex::ui
