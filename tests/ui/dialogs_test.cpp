#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <chrono>
#include <functional>
#include <memory>

#include "chart/client_saving.h"
#include "core/cell_colors.h"
#include "core/settings.h"
#include "practice/groups.h"
#include "support/ui_desk.h"
#include "ui/base/theme.h"
#include "ui/dialogs/cities_dialog.h"
#include "ui/dialogs/city_dialog.h"
#include "ui/dialogs/city_list.h"
#include "ui/dialogs/group_dialog.h"
#include "ui/dialogs/move_dialog.h"
#include "ui/dialogs/pick_city_dialog.h"
#include "ui/dialogs/remedy_dialog.h"
#include "ui/dialogs/settings_dialog.h"

namespace orvex::ui {
namespace {

class DialogTest : public test::DeskTest {
 protected:
  std::int32_t AddClient(const std::string& name = "Asha Rao") {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    chart::SelectCity(*session_, 1, form);
    form.FullName = name;
    form.Birth = test::Moment("1990-07-05 14:30:00");
    return chart::SaveNewClient(*session_, form, 1).Id;
  }
};

TEST_F(DialogTest, FiftyThousandCitiesAreNarrowedAtOnce) {
  CitiesDialog dialog(place_);
  Show(dialog);
  const auto begin = std::chrono::steady_clock::now();
  Type(dialog, "citySearch", "sao pa");
  const auto took = std::chrono::steady_clock::now() - begin;
  auto& list = Find<TableView>(dialog, "cityList");
  EXPECT_GT(list.Model().rowCount(), 0);
  EXPECT_LT(list.Model().rowCount(), 50);
  EXPECT_FALSE(Find<QPushButton>(dialog, "editCity").isEnabled());
  // Six keys; most of the time is the first one's.
  EXPECT_LT(std::chrono::duration_cast<std::chrono::milliseconds>(took).count(), 3000);
}

TEST_F(DialogTest, ACityIsAddedWithTheOffsetOfItsZone) {
  const std::unique_ptr<CityDialog> dialog(CityDialog::ForNew(place_));
  Show(*dialog);
  messages_.Await("City Name is a mandatory field.");
  Press(*dialog, "action");
  EXPECT_EQ(FocusName(*dialog), "cityName");
  Type(*dialog, "cityName", "Our Village");
  messages_.Await("Please select a Time Zone from the list.");
  Press(*dialog, "action");
  auto& zones = Find<TableView>(*dialog, "timeZone");
  zones.setFocus();
  QTest::keyClicks(&zones, "Asia/Kolk");
  EXPECT_EQ(Find<QLineEdit>(*dialog, "offset").text(), "5.5");
  Type(*dialog, "latitude", "19");
  Type(*dialog, "longitude", "72,5");
  messages_.Await("Longitude is a numeric field.");
  Press(*dialog, "action");
  EXPECT_EQ(FocusName(*dialog), "longitude");
  Type(*dialog, "longitude", "72.5");
  Press(*dialog, "action");
  EXPECT_EQ(Stored("Select * from city_master where cityname = 'Our Village'", "offset"), "5.5");
  const std::unique_ptr<CityDialog> edit(CityDialog::ForEdit(place_, dialog->SavedId()));
  EXPECT_EQ(edit->windowTitle(), "Edit City");
  EXPECT_FALSE(Find<QWidget>(*edit, "timeZone").isEnabled());
}

TEST_F(DialogTest, AnEditedCityIsShownAsItIsNow) {
  CitiesDialog dialog(place_);
  Show(dialog);
  Type(dialog, "citySearch", "mumbai");
  auto& list = Find<TableView>(dialog, "cityList");
  ClickRow(list, 0);
  const std::string city = list.SelectedTag();
  WhenOpen("cityDialog", [](QWidget& edit) {
    Type(edit, "cityName", "Bombay by the sea");
    Press(edit, "action");
  });
  Press(dialog, "editCity");
  EXPECT_EQ(list.SelectedTag(), city);
  EXPECT_EQ(list.currentIndex().siblingAtColumn(0).data().toString(), "Bombay by the sea");
}

TEST_F(DialogTest, PickingACityWantsARow) {
  PickCityDialog dialog(place_);
  Show(dialog);
  messages_.Await("Please select a City from the list.");
  Press(dialog, "action");
  Find<QTabBar>(dialog, "cityViews").setCurrentIndex(CityList::AllCities);
  Type(dialog, "citySearch", "mumbai");
  ClickRow(Find<TableView>(dialog, "cityList"), 0, true);
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(dialog.Picked().Name, "Mumbai");
}

TEST_F(DialogTest, GroupsAreNamedOnceAndClientsMovedBetweenThem) {
  GroupDialog group(place_);
  Show(group);
  Type(group, "groupName", "general");
  messages_.Await("The Group 'general' already exists in the database.");
  Press(group, "action");
  Type(group, "groupName", "Family");
  QTest::keyClick(&group, Qt::Key_Return);
  EXPECT_EQ(group.result(), QDialog::Accepted);

  const std::int32_t client = AddClient();
  MoveDialog move(place_, client, "Asha Rao", "General");
  Show(move);
  auto& groups = Find<QComboBox>(move, "groups");
  groups.setCurrentText("General");
  messages_.Await("Source and Destination Groups cannot be the same.");
  Press(move, "action");
  groups.setCurrentText("Family");
  Press(move, "action");
  EXPECT_EQ(Stored("Select * from client_master", "groupid"), Typed(WholeText(group.SavedId())));
}

TEST_F(DialogTest, ARemedyKeepsItsTextsPlanetAndDate) {
  const std::int32_t client = AddClient();
  const std::unique_ptr<RemedyDialog> dialog(RemedyDialog::ForNew(place_, client));
  Show(*dialog);
  EXPECT_EQ(Find<QComboBox>(*dialog, "forPlanet").itemText(0), "None");
  messages_.Await("Problem/Symptom is a mandatory field.");
  Press(*dialog, "action");
  EXPECT_EQ(FocusName(*dialog), "problem");
  Type(*dialog, "problem", "Can't sleep");
  Find<QPlainTextEdit>(*dialog, "remedy").setPlainText(QString(1001, 'x'));
  messages_.Await("Text cannot exceed more than 1000 characters.");
  Press(*dialog, "action");
  EXPECT_EQ(FocusName(*dialog), "remedy");
  Type(*dialog, "remedy", "Water to the Sun");
  Find<QComboBox>(*dialog, "forPlanet").setCurrentText("Sun");
  Press(*dialog, "action");
  EXPECT_EQ(Stored("Select * from client_remedy", "problem"), "Can't sleep");
  EXPECT_EQ(Stored("Select * from client_remedy", "forplanetid"), "1");
  EXPECT_EQ(Stored("Select * from client_remedy", "remedydate"), "2026-11-24 00:00:00");

  session_->StoreConnection.Execute("Update client_remedy set remedydate = #02/01/2025 10:20:00#");
  const std::unique_ptr<RemedyDialog> edit(RemedyDialog::ForEdit(place_, dialog->SavedId()));
  Show(*edit);
  Type(*edit, "remedy", "Water");
  Press(*edit, "action");
  EXPECT_EQ(Stored("Select * from client_remedy", "remedy"), "Water");
  EXPECT_EQ(Stored("Select * from client_remedy", "remedydate").substr(0, 10), "2025-02-01");
}

TEST_F(DialogTest, AnUnreadDateOfARemedyIsNotSaved) {
  const std::unique_ptr<RemedyDialog> dialog(RemedyDialog::ForNew(place_, AddClient()));
  Show(*dialog);
  Type(*dialog, "problem", "Headache");
  Type(*dialog, "remedy", "Rest");
  Type(*dialog, "remedyDate", "31.2.2026");
  EXPECT_EQ(Find<QLabel>(*dialog, "remedyDateEcho").text(), "There is no day 31 in February 2026.");
  messages_.Await("There is no day 31 in February 2026.");
  Press(*dialog, "action");
  EXPECT_EQ(FocusName(*dialog), "remedyDate");
  EXPECT_EQ(Stored("Select count(id) as cnt from client_remedy", "cnt"), "0");
  QTest::keyClicks(dialog->focusWidget(), "3 feb 2026");
  Press(*dialog, "action");
  EXPECT_EQ(Stored("Select * from client_remedy", "remedydate"), "2026-02-03 00:00:00");
}

// Escape and the window's close button ask where something was typed; Cancel never does.
TEST_F(DialogTest, WhatWasTypedIsNotThrownAwayUnasked) {
  const char* question = "What was typed here is not saved. Do you want to throw it away?";
  const std::int32_t client = AddClient();
  struct Case {
    const char* Field;
    std::function<QDialog*()> Make;
  };
  const std::vector<Case> cases = {
      {"groupName", [this] { return new GroupDialog(place_); }},
      {"cityName", [this] { return CityDialog::ForNew(place_); }},
      {"problem", [this, client] { return RemedyDialog::ForNew(place_, client); }},
      {"AstrologerName", [this] { return new SettingsDialog(place_); }},
  };
  for (const Case& one : cases) {
    SCOPED_TRACE(one.Field);
    const std::unique_ptr<QDialog> dialog(one.Make());
    Show(*dialog);
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());

    const std::unique_ptr<QDialog> typed(one.Make());
    Show(*typed);
    Type(*typed, one.Field, "Something");
    messages_.Await(question, core::MessageAnswer::No);
    QTest::keyClick(typed.get(), Qt::Key_Escape);
    EXPECT_TRUE(typed->isVisible());
    messages_.Await(question, core::MessageAnswer::No);
    EXPECT_FALSE(typed->close());
    messages_.Await(question, core::MessageAnswer::Yes);
    EXPECT_TRUE(typed->close());
    EXPECT_EQ(typed->result(), QDialog::Rejected);

    const std::unique_ptr<QDialog> canceled(one.Make());
    Show(*canceled);
    Type(*canceled, one.Field, "Something");
    Press(*canceled, "cancel");
    EXPECT_FALSE(canceled->isVisible());
  }
  PickCityDialog pick(place_);
  Show(pick);
  Type(pick, "citySearch", "mumbai");
  QTest::keyClick(&pick, Qt::Key_Escape);
  EXPECT_FALSE(pick.isVisible());
}

TEST_F(DialogTest, SettingsAreCheckedFieldByFieldAndTakenAtOnce) {
  SettingsDialog dialog(place_);
  Show(dialog);
  EXPECT_EQ(dialog.windowTitle(), "Settings - General");
  const auto& words = Find<QLabel>(dialog, "birthMomentWords");
  EXPECT_GE(words.height(), words.heightForWidth(words.width())) << "no line of it is cut";
  auto& moment = Find<QComboBox>(dialog, "BirthMoment");
  EXPECT_EQ(moment.currentText(), "Local mean time");
  moment.setFocus();
  QTest::keyClick(&moment, Qt::Key_C);
  auto& options = Find<QListWidget>(dialog, "option");
  options.setCurrentRow(1);
  EXPECT_EQ(dialog.windowTitle(), "Settings - Orbits");
  Type(dialog, "Orbit_30", "6");
  messages_.Await("Value cannot be less than 0 or greater than 5.");
  QTest::keyClick(&Find<QWidget>(dialog, "Orbit_30"), Qt::Key_Tab);
  QCoreApplication::processEvents();
  EXPECT_EQ(FocusName(dialog), "Orbit_30");
  Type(dialog, "Orbit_30", "2");
  QTest::keyClick(&Find<QWidget>(dialog, "Orbit_30"), Qt::Key_Tab);
  QCoreApplication::processEvents();
  EXPECT_EQ(Find<QLabel>(dialog, "caption_Orbit_30").text(), "30 Degree: (28 to 32)");

  Find<QLineEdit>(dialog, "AstrologerName").setText(QString(51, 'n'));
  messages_.Await("Name cannot exceed 50 characters.");
  Press(dialog, "action");
  EXPECT_EQ(dialog.windowTitle(), "Settings - Profile");
  EXPECT_EQ(FocusName(dialog), "AstrologerName");
  Type(dialog, "AstrologerName", "D'Souza");
  Press(dialog, "action");
  EXPECT_EQ(session_->State.Orbs[0], 2);
  EXPECT_EQ(session_->State.AstrologerName, "D'Souza");
  EXPECT_EQ(core::BirthMomentOf(*session_), 'C');
}

// A click at an item of the list of pages, as a hand makes it.
void ClickPage(QWidget& dialog, int page) {
  auto& options = *dialog.findChild<QListWidget*>("option");
  QTest::mouseClick(options.viewport(), Qt::LeftButton, {},
                    options.visualItemRect(options.item(page)).center());
  QCoreApplication::processEvents();
}

TEST_F(DialogTest, ABadOrbIsToldHoweverItsFieldIsLeftButHoldsNobodyBack) {
  SettingsDialog dialog(place_);
  Show(dialog);
  ClickPage(dialog, 1);
  Type(dialog, "Orbit_60", "4");
  ClickPage(dialog, 2);
  ClickPage(dialog, 1);
  EXPECT_EQ(Find<QLabel>(dialog, "caption_Orbit_60").text(), "60 Degree: (56 to 64)");

  Type(dialog, "Orbit_30", "6");
  messages_.Await("Value cannot be less than 0 or greater than 5.");
  ClickPage(dialog, 2);
  EXPECT_EQ(dialog.windowTitle(), "Settings - Orbits");
  EXPECT_EQ(FocusName(dialog), "Orbit_30");

  messages_.Await(core::kResetOrbsQuestion, core::MessageAnswer::No);
  Press(dialog, "resetOrbs");
  EXPECT_EQ(Find<QLineEdit>(dialog, "Orbit_60").text(), "4");
  messages_.Await(core::kResetOrbsQuestion, core::MessageAnswer::Yes);
  Press(dialog, "resetOrbs");
  EXPECT_EQ(Find<QLineEdit>(dialog, "Orbit_60").text(), "5");

  Type(dialog, "Orbit_30", "six");
  Press(dialog, "cancel");
  QCoreApplication::processEvents();
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(DialogTest, TheFolderAndTheCityThatAreChosenInTheSettingsAreStored) {
  SettingsDialog dialog(place_);
  Show(dialog);
  files_.Chosen = home_.Place.Folder / "charts of mine";
  Press(dialog, "chooseChartPath");
  WhenOpen("pickCityDialog", [](QWidget& pick) {
    QTest::mouseClick(&Find<QTabBar>(pick, "cityViews"), Qt::LeftButton, {},
                      Find<QTabBar>(pick, "cityViews").tabRect(CityList::AllCities).center());
    Type(pick, "citySearch", "mumbai");
    ClickRow(Find<TableView>(pick, "cityList"), 0);
    Press(pick, "action");
  });
  Press(dialog, "chooseCity");
  const QString city = Find<QLabel>(dialog, "UserCityID").text();
  Press(dialog, "action");
  EXPECT_EQ(Stored("Select * from settings", "chartpath"), files_.Chosen.string());
  EXPECT_EQ(Stored("Select ct.cityname from settings s, city_master ct where s.usercityid = ct.id",
                   "cityname"),
            Typed(city));
  EXPECT_TRUE(city.startsWith("Mumbai"));
}

TEST_F(DialogTest, AMarkedCityIsThePickedOneAndFocusAloneMarksNone) {
  PickCityDialog dialog(place_);
  Show(dialog);
  QTest::mouseClick(&Find<QTabBar>(dialog, "cityViews"), Qt::LeftButton, {},
                    Find<QTabBar>(dialog, "cityViews").tabRect(CityList::AllCities).center());
  auto& list = Find<TableView>(dialog, "cityList");
  QTest::keyClick(&Find<QWidget>(dialog, "citySearch"), Qt::Key_Tab);
  EXPECT_EQ(FocusName(dialog), "cityList");
  EXPECT_FALSE(list.currentIndex().isValid());
  ClickRow(list, 1);
  const QPoint at = list.visualRect(list.Model().index(1, 0)).center();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, at);
  ASSERT_EQ(list.selectionModel()->selectedRows().size(), 1);
  Press(dialog, "action");
  EXPECT_EQ(ui::Shown(dialog.Picked().Name), list.Model().index(1, 0).data().toString());
}

}  // namespace
}  // namespace orvex::ui
