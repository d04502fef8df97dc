#include "ui/horoscope/horoscope_print.h"

#include "ui/base/qt_text.h"
#include "ui/painting/sheet_document.h"

namespace orvex::ui {

Printout PagePrintout(HoroscopeDocument& document, const QWidget& page, const QString& title) {
  const chart::HoroscopeModel& model = document.Model();
  const chart::HoroscopeCaptions& captions = model.Captions;
  QString lead = Shown(captions.Date + ", " + captions.City + captions.Offset);
  if (model.Horary && !model.HoraryQuestion.empty()) {
    lead += '\n' + Shown(model.HoraryQuestion);
  }
  const QString name = Shown(model.Name + chart::RotationMark(model.RotatedTo));
  return PrintoutOf(page, {name, lead, title}, document.Place().Session);
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
