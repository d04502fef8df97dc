// Writes pictures of the main window, filled with the demonstration, and of every dialog into a
// folder: window_pictures FOLDER. The size of the window follows ORVEX_PICTURE_SIZE, that of the
// pictures QT_SCALE_FACTOR, the palette ORVEX_THEME.
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <memory>

#include "practice/demo_home.h"
#include "practice/groups.h"
#include "support/data_folder.h"
#include "support/picture_program.h"
#include "support/test_home.h"
#include "ui/base/moment_edit.h"
#include "ui/base/picture.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_view.h"
#include "ui/base/theme.h"
#include "ui/dialogs/about_box.h"
#include "ui/dialogs/cities_dialog.h"
#include "ui/dialogs/city_dialog.h"
#include "ui/dialogs/client_dialog.h"
#include "ui/dialogs/group_dialog.h"
#include "ui/dialogs/matters_dialog.h"
#include "ui/dialogs/move_dialog.h"
#include "ui/dialogs/number_table.h"
#include "ui/dialogs/pick_city_dialog.h"
#include "ui/dialogs/remedy_dialog.h"
#include "ui/dialogs/settings_dialog.h"
#include "ui/main/main_window.h"

namespace orvex::ui {
namespace {

// With a client chosen in the list of her group; 0 for none.
void WriteMain(Workplace& place, const std::filesystem::path& file, std::int32_t client) {
  constexpr int kRest = 400;  // milliseconds, after which the card of the client stands
  MainWindow window(place);
  window.resize(test::PictureSize());
  window.show();
  QCoreApplication::processEvents();
  if (client != 0) {
    const std::int32_t group = practice::GroupOfClient(place.Session, client);
    window.findChild<TableView*>("groupList")->SelectTag(Typed(WholeText(group)));
    window.findChild<TableView*>("clientList")->SelectTag(Typed(WholeText(client)));
  }
  QTest::qWait(kRest);
  WritePicture(window, file);
}

void WriteToday(Workplace& place, const std::filesystem::path& file) {
  MainWindow window(place);
  window.resize(test::PictureSize());
  window.show();
  window.findChild<QAction*>("showToday")->trigger();
  WritePicture(window, file);
}

// Both modes of the search, each with something found.
void WriteSearch(Workplace& place, const std::filesystem::path& folder) {
  MainWindow window(place);
  window.resize(test::PictureSize());
  window.show();
  QCoreApplication::processEvents();
  window.findChild<QAction*>("searchClients")->trigger();
  WritePicture(window, folder / "search-empty.png");
  window.findChild<QComboBox*>("dateRange")->setCurrentText("Between");
  window.findChild<DateEdit*>("dateFrom")->SetDate(core::MakeDateTime({1940, 1, 1}).value());
  window.findChild<QRadioButton*>("selectedGroups")->setChecked(true);
  window.findChild<QPushButton*>("search")->click();
  WritePicture(window, folder / "search-clients.png");
  window.findChild<QRadioButton*>("findRemedies")->setChecked(true);
  window.findChild<QComboBox*>("dateRange")->setCurrentText("Any");
  window.findChild<QPushButton*>("search")->click();
  WritePicture(window, folder / "search-remedies.png");
}

void WriteSettings(Workplace& place, const std::filesystem::path& folder) {
  SettingsDialog dialog(place);
  for (int page = 0; page < 3; ++page) {
    dialog.findChild<QListWidget*>("option")->setCurrentRow(page);
    WritePicture(dialog, folder / ("settings-" + std::to_string(page) + ".png"));
  }
}

// A birth in war time while its city is typed.
void WriteCityChoices(Workplace& place, const std::filesystem::path& file) {
  const std::unique_ptr<ClientDialog> dialog(ClientDialog::ForNew(place, 1));
  dialog->Begin("Vasant Kelkar", false);
  dialog->show();
  dialog->findChild<QLineEdit*>("birth")->setText("5 may 1943");
  dialog->findChild<QLineEdit*>("birthTime")->setText("2:30p");
  auto* city = dialog->findChild<QLineEdit*>("city");
  city->setFocus();
  city->selectAll();
  QTest::keyClicks(city, "pun");
  WritePicture(*dialog, file);
}

// A query whose number is refused.
void WriteQuery(Workplace& place, const std::filesystem::path& file) {
  const std::unique_ptr<ClientDialog> dialog(ClientDialog::ForNew(place, 1));
  dialog->Begin("Query: the school", true);
  dialog->findChild<QComboBox*>("horaryNumber")->setEditText("250");
  dialog->findChild<QLineEdit*>("horaryQuestion")
      ->setText("Will my daughter be taken into the school of her choice?");
  dialog->show();
  dialog->findChild<QPushButton*>("action")->click();
  WritePicture(*dialog, file);
}

void WriteDialogs(Workplace& place, std::int32_t client, const std::filesystem::path& folder) {
  const auto write = [&folder](QDialog* made, const char* name) {
    const std::unique_ptr<QDialog> dialog(made);
    WritePicture(*dialog, folder / name);
  };
  write(ClientDialog::ForNew(place, 1), "client-add.png");
  write(ClientDialog::ForEdit(place, client), "client-edit.png");
  WriteCityChoices(place, folder / "client-city.png");
  WriteQuery(place, folder / "client-query.png");
  write(CityDialog::ForNew(place), "city-add.png");
  write(CityDialog::ForEdit(place, 1), "city-edit.png");
  write(new CitiesDialog(place), "cities.png");
  write(new PickCityDialog(place), "pick-city.png");
  write(new GroupDialog(place), "group.png");
  write(new MoveDialog(place, client, "Asha Rao", "General"), "move.png");
  write(RemedyDialog::ForNew(place, client), "remedy.png");
  write(new MattersDialog(place, 0), "matters.png");
  write(new NumberTable(place), "numbers.png");
  write(new AboutBox, "about.png");
  write(new UpdateBox, "update.png");
  WriteSettings(place, folder);
}

void WriteAll(const std::filesystem::path& folder) {
  test::TestHome home;
  const std::unique_ptr<core::Session> session = home.Start();
  FileDialogs files;
  LayoutMemory layout(home.Place.Folder / "windows.ini");
  Workplace place{*session, files, layout};
  WriteMain(place, folder / "first-run.png", 0);
  practice::FillDemo(*session, test::DataFolder());
  const auto client = static_cast<std::int32_t>(
      session->StoreConnection.Query("Select id from client_master where fullname = 'Asha Rao'")
          .Integer("id"));
  WriteMain(place, folder / "main.png", client);
  WriteToday(place, folder / "today.png");
  WriteSearch(place, folder);
  WriteDialogs(place, client, folder);
}

}  // namespace
}  // namespace orvex::ui

int main(int argc, char** argv) {
  return orvex::test::RunPictureProgram(argc, argv, orvex::ui::WriteAll);
}
