// Writes pictures of the main window and of every dialog into a folder: window_pictures FOLDER.
// The size of the pictures follows QT_SCALE_FACTOR, the palette ORVEX_THEME.
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

#include "chart/client_saving.h"
#include "practice/groups.h"
#include "practice/remedies.h"
#include "support/picture_program.h"
#include "support/test_home.h"
#include "ui/base/moment_edit.h"
#include "ui/base/picture.h"
#include "ui/base/theme.h"
#include "ui/dialogs/about_box.h"
#include "ui/dialogs/cities_dialog.h"
#include "ui/dialogs/city_dialog.h"
#include "ui/dialogs/client_dialog.h"
#include "ui/dialogs/group_dialog.h"
#include "ui/dialogs/move_dialog.h"
#include "ui/dialogs/pick_city_dialog.h"
#include "ui/dialogs/remedy_dialog.h"
#include "ui/dialogs/settings_dialog.h"
#include "ui/main/main_window.h"

namespace orvex::ui {
namespace {

std::int32_t AddClient(test::TestHome& home, core::Session& session, const std::string& name,
                       const std::string& birth) {
  home.Clock.Set(home.Clock.Now() + std::chrono::seconds(1));
  chart::ClientForm form = chart::OpenAddClient(session);
  chart::SelectCity(session, 1, form);
  form.FullName = name;
  form.Birth = test::Moment(birth);
  form.Email = "client@example.org";
  form.Comments = "Asked for the years of work.";
  return chart::SaveNewClient(session, form, 1).Id;
}

constexpr int kWidth = 1366;
constexpr int kHeight = 740;  // what a title bar and a panel leave of 768

void WriteMain(Workplace& place, const std::filesystem::path& file) {
  constexpr int kRest = 400;  // milliseconds, after which the card of the client stands
  MainWindow window(place);
  window.resize(kWidth, kHeight);
  window.show();
  QTest::qWait(kRest);
  WritePicture(window, file);
}

// Both modes of the search, each with something found.
void WriteSearch(Workplace& place, const std::filesystem::path& folder) {
  MainWindow window(place);
  window.resize(kWidth, kHeight);
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
  WriteMain(place, folder / "first-run.png");
  const std::int32_t client = AddClient(home, *session, "Asha Rao", "1943-11-24 10:00:00");
  AddClient(home, *session, "Ravi Iyer", "1981-02-01 06:10:00");
  AddClient(home, *session, "Meera Krishnan", "1975-08-30 21:45:00");
  practice::AddGroup(*session, "Students");
  practice::SaveNewRemedy(
      *session, {1, "Restless sleep", "Water to the Sun at dawn", session->Time.Today()}, client);
  WriteMain(place, folder / "main.png");
  WriteSearch(place, folder);
  WriteDialogs(place, client, folder);
}

}  // namespace
}  // namespace orvex::ui

int main(int argc, char** argv) {
  return orvex::test::RunPictureProgram(argc, argv, orvex::ui::WriteAll);
}
