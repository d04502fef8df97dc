#include "ui/horoscope/divisional_dialog.h"

#include <QGridLayout>
#include <QLabel>

#include "ui/base/chart_view.h"
#include "ui/base/qt_text.h"
#include "ui/base/shown_page.h"
#include "ui/base/theme.h"
#include "ui/horoscope/catalogue_table.h"
#include "vedic/divisional.h"

namespace orvex::ui {

namespace {

void ShowDivision(ChartView& chart, const chart::BirthTables& birth, char style,
                  vedic::Division division, const char* title) {
  chart.SetPicture(report::DivisionPicture(vedic::BuildDivision(birth, division), style, title));
}

}  // namespace

DivisionalDialog::DivisionalDialog(const horoscope::OpenedHoroscope& opened, char style,
                                   QWidget* parent)
    : QDialog(parent),
      navamsha_(new ChartView("navamsha")),
      dashamsha_(new ChartView("dashamsha")) {
  setObjectName("divisionalCharts");
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  grid->setHorizontalSpacing(kMargin);
  // On paper the charts have their titles themselves.
  for (const auto& [column, title] : {std::pair(0, "Navamsha (D9):"), {1, "Dashamsha (D10):"}}) {
    QLabel* heading = MakeHeading(title);
    LeaveUnprinted(*heading);
    grid->addWidget(heading, 0, column);
  }
  grid->addWidget(navamsha_, 1, 0);
  grid->addWidget(dashamsha_, 1, 1);
  grid->setRowStretch(1, 1);
  ShowModel(opened, style);
}

void DivisionalDialog::ShowModel(const horoscope::OpenedHoroscope& opened, char style) {
  setWindowTitle(tr("Divisional charts of %1").arg(Shown(opened.Model.Name)));
  ShowDivision(*navamsha_, opened.Birth, style, vedic::Division::Navamsha, "Navamsha (D9)");
  ShowDivision(*dashamsha_, opened.Birth, style, vedic::Division::Dashamsha, "Dashamsha (D10)");
}

}  // namespace orvex::ui
