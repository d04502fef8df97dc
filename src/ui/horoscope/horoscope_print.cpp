#include "ui/horoscope/horoscope_print.h"

#include "ui/base/chart_view.h"
#include "ui/base/qt_text.h"
#include "ui/painting/sheet_document.h"

namespace orvex::ui {

namespace {

QString LeadOf(const chart::HoroscopeModel& model) {
  const chart::HoroscopeCaptions& captions = model.Captions;
  const QString lead = Shown(captions.Date + ", " + captions.City + captions.Offset);
  return model.Horary && !model.HoraryQuestion.empty() ? lead + '\n' + Shown(model.HoraryQuestion)
                                                       : lead;
}

}  // namespace

Printout PagePrintout(HoroscopeDocument& document, const QWidget& page, const QString& title) {
  const chart::HoroscopeModel& model = document.Model();
  const QString name = Shown(model.Name + chart::RotationMark(model.RotatedTo));
  return PrintoutOf(page, {name, LeadOf(model), title}, document.Place().Session);
}

Printout ChartPrintout(HoroscopeDocument& document, const ChartView& chart) {
  return PrintoutOf(chart, {chart.window()->windowTitle(), LeadOf(document.Model()), {}},
                    document.Place().Session);
}

report::KpSheet SheetOfWindow(HoroscopeDocument& document) {
  report::KpSheet sheet =
      report::SheetOf(document.Place().Session, document.Opened(), document.Style());
  sheet.Matter = document.JudgedForSheet();
  return sheet;
}

Printout SheetPrintout(HoroscopeDocument& document) {
  Printout printout;
  printout.Document = SheetDocument(SheetOfWindow(document));
  printout.OnOnePage = true;
  return printout;
}

}  // namespace orvex::ui
