// Writes pictures of the transit windows into a folder, and says how long they take:
// transit_pictures FOLDER. The size of the pictures follows QT_SCALE_FACTOR, the palette
// ORVEX_THEME.
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <iostream>

#include "support/picture_program.h"
#include "support/test_home.h"
#include "ui/base/picture.h"
#include "ui/base/table_view.h"
#include "ui/base/theme.h"
#include "ui/main/main_window.h"
#include "ui/transit/find_transit_dialog.h"
#include "ui/transit/transit_details_dialog.h"
#include "ui/transit/transit_grid_page.h"

namespace orvex::ui {
namespace {

// Does it and paints the window, and tells how long both took.
template <typename Deed>
void Measure(const char* what, QWidget& window, Deed deed) {
  QElapsedTimer timer;
  timer.start();
  deed();
  QApplication::processEvents();
  window.repaint();
  std::cout << what << ": " << timer.elapsed() << " ms\n";
}

void WriteGrid(Workplace& place, const std::filesystem::path& folder) {
  MainWindow window(place);
  auto& page = *window.findChild<TransitGridPage*>();
  window.resize(test::PictureSize());
  window.show();
  QCoreApplication::processEvents();
  window.findChild<QAction*>("foldSky")->trigger();
  window.findChild<QAction*>("transitGrid")->trigger();
  page.CreateGrid(11, 2026);
  WritePicture(window, folder / "transit-grid.png");
  page.findChild<QPushButton*>("showGraph")->click();
  WritePicture(window, folder / "month-graph.png");
  Measure("month on screen as a graph", window, [&page] { page.CreateGrid(10, 2026); });
  page.findChild<QPushButton*>("showBoth")->click();
  Measure("month on screen", window, [&page] { page.CreateGrid(12, 2026); });
  Measure("another month on screen", window, [&page] { page.CreateGrid(6, 1750); });
  page.HighlightCell({1, 2027, "14 January 2027", "Sun"});
  WritePicture(window, folder / "transit-grid-marked.png");
}

void WriteDetails(Workplace& place, const std::filesystem::path& folder) {
  TransitDetailsDialog details(place, transit::Planet::Moon, test::Moment("2026-11-24"));
  WritePicture(details, folder / "transit-details.png");
  Measure("next day on screen", details,
          [&details] { details.findChild<QPushButton*>("nextDay")->click(); });
  auto& hours = *details.findChild<TableView*>("hours");
  Measure("minutes on screen", details,
          [&hours] { emit hours.clicked(hours.Model().index(9, 0)); });
  WritePicture(details, folder / "transit-minutes.png");
}

void WriteFind(Workplace& place, const std::filesystem::path& folder) {
  FindTransitDialog find(place);
  WritePicture(find, folder / "find-transit.png");
  find.findChild<QComboBox*>("planet")->setCurrentText("Jupiter");
  find.findChild<QLineEdit*>("Degree")->setText("75.5");
  Measure("ten years searched and shown", find,
          [&find] { find.findChild<QPushButton*>("find")->click(); });
  std::cout << find.findChild<QLabel*>("result")->text().toStdString() << "\n";
  WritePicture(find, folder / "find-transit-found.png");
}

void WriteHoras(Workplace& place, const std::filesystem::path& file) {
  MainWindow window(place);
  window.resize(test::PictureSize());
  window.show();
  window.findChild<QAction*>("hora")->trigger();
  WritePicture(window, file);
}

void WriteAll(const std::filesystem::path& folder) {
  test::TestHome home;
  const std::unique_ptr<core::Session> session = home.Start();
  FileDialogs files;
  LayoutMemory layout(home.Place.Folder / "windows.ini");
  Workplace place{*session, files, layout};
  WriteGrid(place, folder);
  WriteDetails(place, folder);
  WriteFind(place, folder);
  WriteHoras(place, folder / "hora.png");
}

}  // namespace
}  // namespace orvex::ui

int main(int argc, char** argv) {
  return orvex::test::RunPictureProgram(argc, argv, orvex::ui::WriteAll);
}
