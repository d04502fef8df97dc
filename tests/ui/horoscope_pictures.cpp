// Writes pictures of every page of the horoscope window into a folder, and says how long windows
// take to open and what they hold: horoscope_pictures FOLDER. The size of the pictures follows
// QT_SCALE_FACTOR, the palette ORVEX_THEME.
#include <QApplication>
#include <QListWidget>
#include <ctime>
#include <fstream>
#include <iostream>

#include "chart/client_saving.h"
#include "practice/remedies.h"
#include "support/picture_program.h"
#include "support/test_home.h"
#include "ui/base/picture.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/horoscope/divisional_dialog.h"
#include "ui/horoscope/horoscope_window.h"
#include "ui/horoscope/planet_sheet_dialog.h"

namespace orvex::ui {
namespace {

std::int32_t AddClient(core::Session& session, const std::string& birth) {
  chart::ClientForm form = chart::OpenAddClient(session);
  chart::SelectCity(session, 1, form);
  form.CityId = 1;
  form.FullName = "Asha Rao";
  form.Comments = "Asked for the years of work.";
  form.Birth = test::Moment(birth);
  const std::int32_t id = chart::SaveNewClient(session, form, 1).Id;
  practice::SaveNewRemedy(session, {1, "Restless sleep", "Water to the Sun at dawn", form.Birth},
                          id);
  return id;
}

void WritePages(HoroscopeWindow& window, const std::filesystem::path& folder) {
  auto& pages = *window.findChild<QListWidget*>("pages");
  window.resize(test::PictureSize());
  for (int page = 0; page < pages.count(); ++page) {
    if (!pages.item(page)->flags().testFlag(Qt::ItemIsEnabled)) {
      continue;
    }
    pages.setCurrentRow(page);
    QString name = pages.item(page)->text().toLower().replace(' ', '-');
    WritePicture(window, folder / (Typed(name) + ".png"));
  }
  window.Turn("chart");
  window.ShowPlanetSheet(2);
  // At the side of a wide window, else before it.
  QWidget* sheet = window.findChild<PlanetSheetDialog*>();
  WritePicture(sheet != nullptr ? *sheet : window, folder / "sheet.png");
}

long ResidentKilobytes() {
  std::ifstream status("/proc/self/status");
  std::string word;
  while (status >> word && word != "VmRSS:") {
  }
  long kilobytes = 0;
  status >> kilobytes;
  return kilobytes;
}

// Five horoscopes, each opened and painted once, on the page that was open last.
void Measure(Workplace& place, std::int32_t first) {
  for (std::int32_t client = first; client < first + 5; ++client) {
    const std::clock_t start = std::clock();
    HoroscopeWindow* window = OpenHoroscope(place, client);
    window->repaint();
    QApplication::processEvents();
    const std::clock_t took = (std::clock() - start) * 1000 / CLOCKS_PER_SEC;
    std::cout << "open and painted: " << took << " ms of the processor, "
              << ResidentKilobytes() / 1024 << " MB in all\n";
    const std::clock_t turning = std::clock();
    window->Turn("matter");
    window->repaint();
    std::cout << "page Matter opened and painted: "
              << (std::clock() - turning) * 1000 / CLOCKS_PER_SEC << " ms of the processor\n";
    window->Turn("chart");
    window->hide();
  }
}

int Run(int argc, char** argv) {
  QApplication application(argc, argv);
  Theme::Apply(application);
  test::TestHome home;
  const auto session = home.Start();
  const auto folder = std::filesystem::path(argv[1]);
  std::filesystem::create_directories(folder);
  FileDialogs files;
  LayoutMemory layout(home.Place.Folder / "windows.ini");
  Workplace place{*session, files, layout};
  const std::int32_t client = AddClient(*session, "1990-07-05 14:30:00");
  WritePages(*OpenHoroscope(place, client), folder);
  DivisionalDialog divisions(*horoscope::CreateHoroscope(*session, client), 'N', nullptr);
  WritePicture(divisions, folder / "divisions.png");
  for (int i = 0; i < 5; ++i) {
    // The id of a client is found by the second of its making.
    home.Clock.Set(test::Moment("2026-11-24 10:00:0" + std::to_string(i + 1)));
    AddClient(*session, "1990-07-05 14:30:00");
  }
  Measure(place, client + 1);
  return 0;
}

}  // namespace
}  // namespace orvex::ui

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: horoscope_pictures FOLDER\n";
    return 2;
  }
  return orvex::ui::Run(argc, argv);
}
