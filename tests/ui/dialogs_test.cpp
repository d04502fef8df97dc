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
}

}  // namespace
}  // namespace orvex::ui
