#include "ui/horoscope/chart_print.h"

#include <QApplication>
#include <QPainter>
#include <QPrinter>

#include "report/chart_picture.h"
#include "ui/base/qt_text.h"
#include "ui/painting/chart_painter.h"

namespace orvex::ui {

void PrintChartPage(QPrinter& printer, const chart::HoroscopeModel& model, char style) {
  QPainter painter(&printer);
  if (!painter.isActive()) {
    return;
  }
  painter.setFont(QApplication::font());
  const QRectF page = painter.viewport();
  const double text = QFontMetricsF(painter.font(), &printer).height();
  const QString lines = Shown(model.Captions.Title) + '\n' + Shown(model.Captions.Date) + ", " +
                        Shown(model.Captions.City) + Shown(model.Captions.Offset);
  painter.drawText(QRectF(page.left(), page.top(), page.width(), 2 * text), Qt::AlignLeft, lines);
  const report::ChartCells cells = report::BuildChartCells(model);
  const double high = (page.height() - 5 * text) / 2;
  double top = page.top() + 3 * text;
  for (const report::ChartPicture& picture :
       {report::RashiPicture(cells, style), report::ChalitPicture(cells, style)}) {
    PaintChart(painter, QRectF(page.left(), top, page.width(), high), picture, PrintColors());
    top += high + text;
  }
}

}  // namespace orvex::ui
