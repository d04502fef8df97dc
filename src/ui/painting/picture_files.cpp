#include "ui/painting/picture_files.h"

#include <QBuffer>
#include <QImage>
#include <QSvgGenerator>
#include <stdexcept>

#include "core/home.h"
#include "ui/painting/chart_painter.h"

namespace orvex::ui {

namespace {

// Room around the chart, a part of the side.
constexpr double kMargin = 0.02;

// Dots an inch at which a unit of an SVG is a pixel in a browser.
constexpr int kScreenDots = 96;

QRectF Area(int side) {
  const double margin = side * kMargin;
  return {margin, margin, side - 2 * margin, side - 2 * margin};
}

void PaintImage(const report::ChartPicture& picture, PictureFormat format, int side,
                QBuffer& bytes) {
  QImage image(side, side, QImage::Format_RGB32);
  image.fill(PrintColors().Paper);
  QPainter painter(&image);
  PaintChart(painter, Area(side), picture, PrintColors());
  painter.end();
  if (!image.save(&bytes, format == PictureFormat::Bmp ? "BMP" : "PNG")) {
    throw std::runtime_error("The chart could not be made into a picture.");
  }
}

void PaintSvg(const report::ChartPicture& picture, int side, QBuffer& bytes) {
  QSvgGenerator svg;
  svg.setOutputDevice(&bytes);
  svg.setResolution(kScreenDots);
  svg.setSize({side, side});
  svg.setViewBox(QRect(0, 0, side, side));
  svg.setTitle(QString::fromStdString(picture.Title));
  QPainter painter(&svg);
  PaintChart(painter, Area(side), picture, PrintColors());
}

}  // namespace

std::string ChartPictureBytes(const report::ChartPicture& picture, PictureFormat format, int side) {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  if (format == PictureFormat::Svg) {
    PaintSvg(picture, side, bytes);
  } else {
    PaintImage(picture, format, side, bytes);
  }
  return bytes.data().toStdString();
}

void WriteChartPicture(const report::ChartPicture& picture, PictureFormat format, int side,
                       const std::filesystem::path& file) {
  core::WriteFileSafely(file, ChartPictureBytes(picture, format, side));
}

}  // namespace orvex::ui
