#include "ui/horoscope/chart_menu.h"

#include <QActionGroup>
#include <QMenu>

#include "core/own_files.h"
#include "ui/base/chart_view.h"
#include "ui/base/message_boxes.h"
#include "ui/base/qt_text.h"
#include "ui/horoscope/horoscope_print.h"
#include "ui/painting/graph_files.h"
#include "ui/painting/picture_files.h"

namespace orvex::ui {

namespace {

constexpr int kSavedSide = 1440;

PictureFormat FormatOf(const std::filesystem::path& file) {
  const QString kind = Shown(file.extension().string()).toLower();
  return kind == ".svg"   ? PictureFormat::Svg
         : kind == ".bmp" ? PictureFormat::Bmp
                          : PictureFormat::Png;
}

void SaveChart(HoroscopeDocument& document, ChartView& chart) {
  Workplace& place = document.Place();
  const std::string title = chart.Picture().Title + " - " + Typed(chart.window()->windowTitle());
  const auto file = place.Files.ChooseFileToWrite(
      &chart, "Save chart as picture", FileNameOf(title) + ".png", "Pictures (*.png *.svg *.bmp)");
  if (!file) {
    return;
  }
  try {
    core::CheckFileToWrite(place.Session, *file);
    WriteChartPicture(chart.Picture(), FormatOf(*file), kSavedSide, *file);
  } catch (const std::exception& error) {
    Complain(place.Session.Shown, error.what());
  }
}

void AddStyles(HoroscopeDocument& document, QMenu& menu) {
  auto* styles = new QActionGroup(&menu);
  for (const StyleName& style : kChartStyles) {
    QAction* action = menu.addAction(QObject::tr(style.Name), &document,
                                     [&document, style] { document.SetStyle(style.Style); });
    action->setCheckable(true);
    action->setChecked(style.Style == document.Style());
    styles->addAction(action);
  }
}

void FillChartMenu(HoroscopeDocument& document, ChartView& chart, QMenu& menu) {
  AddStyles(document, menu);
  menu.addSeparator();
  if (auto* divisions = chart.window()->findChild<QAction*>("divisions")) {
    menu.addAction(divisions);
    menu.addSeparator();
  }
  chart.AddCopy(menu);
  menu.addAction(QObject::tr("Sa&ve as picture…"), &chart,
                 [&document, &chart] { SaveChart(document, chart); });
  menu.addAction(QObject::tr("&Print chart…"), &chart, [&document, &chart] {
    PrintWithPreview(document.Place(), chart, ChartPrintout(document, chart));
  });
}

}  // namespace

void OfferChartMenu(HoroscopeDocument& document, ChartView& chart) {
  chart.SetMenu([&document, &chart](QMenu& menu) { FillChartMenu(document, chart, menu); });
}

}  // namespace orvex::ui
