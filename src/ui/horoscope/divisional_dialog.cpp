#include "ui/horoscope/divisional_dialog.h"

#include <QGridLayout>
#include <QLabel>

#include "ui/base/chart_view.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/horoscope/catalogue_table.h"
#include "vedic/divisional.h"

namespace orvex::ui {

namespace {

ChartView* MakeChart(const char* name, const chart::BirthTables& birth, char style,
                     vedic::Division division, const char* title) {
  auto* chart = new ChartView(name);
  chart->SetPicture(report::DivisionPicture(vedic::BuildDivision(birth, division), style, title));
  return chart;
}

}  // namespace

DivisionalDialog::DivisionalDialog(const horoscope::OpenedHoroscope& opened, char style,
                                   QWidget* parent)
    : QDialog(parent) {
  setObjectName("divisionalCharts");
  setWindowTitle(tr("Divisional charts of %1").arg(Shown(opened.Model.Name)));
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  grid->setHorizontalSpacing(kMargin);
  grid->addWidget(MakeHeading("Navamsha (D9):"), 0, 0);
  grid->addWidget(MakeHeading("Dashamsha (D10):"), 0, 1);
  grid->addWidget(
      MakeChart("navamsha", opened.Birth, style, vedic::Division::Navamsha, "Navamsha (D9)"), 1, 0);
  grid->addWidget(
      MakeChart("dashamsha", opened.Birth, style, vedic::Division::Dashamsha, "Dashamsha (D10)"), 1,
      1);
  grid->setRowStretch(1, 1);
}

}  // namespace orvex::ui
