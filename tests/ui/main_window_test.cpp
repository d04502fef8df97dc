#include <malloc.h>

#include <QAction>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTabBar>
#include <QToolButton>

#include "core/settings.h"
#include "practice/groups.h"
#include "practice/remedies.h"
#include "ui/dialogs/city_list.h"
#include "ui/horoscope/horoscope_window.h"
#include "ui/main/sky_panel.h"
#include "ui/main_window_home.h"

namespace orvex::ui {
namespace {

TEST_F(MainWindowTest, ANewPracticeIsLedToItsFirstHoroscope) {
  Open();
  EXPECT_TRUE(Find<QWidget>(*window_, "firstRun").isVisible());
  WhenOpen("clientDialog", [](QWidget& dialog) {
    Type(dialog, "fullName", "First Client");
    Press(dialog, "action");
  });
  Press(*window_, "firstClient");
  EXPECT_FALSE(Find<QWidget>(*window_, "firstRun").isVisible());
  EXPECT_EQ(Label("totalClients"), "Total Clients: 1");
  EXPECT_EQ(List("clientList").Model().rowCount(), 1);
  EXPECT_EQ(session_->State.OpenHoroscopes.size(), 1U);
}

// Under a clock that stands still, as in any second, each client is opened with its own chart.
TEST_F(MainWindowTest, ClientsOfOneSecondAreWholeClients) {
  core::SettingsForm form = core::OpenSettings(*session_);
  form.InstantChartGroupId = 1;
  ASSERT_FALSE(core::SaveSettings(*session_, form).Refused);
  Open();
  const auto press = [this](Qt::Key key) {
    window_->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window_.get()));
    QTest::keyClick(window_.get(), key, Qt::ControlModifier);
  };
  for (const char* name : {"Asha Rao", "Ravi Iyer"}) {
    WhenOpen("clientDialog", [name](QWidget& dialog) {
      Type(dialog, "fullName", name);
      Press(dialog, "action");
    });
    press(Qt::Key_N);
  }
  press(Qt::Key_I);
  press(Qt::Key_I);
  EXPECT_EQ(session_->State.OpenHoroscopes, (std::vector<std::int32_t>{1, 2, 3, 4}));
  EXPECT_EQ(
      Stored("Select count(*) as n from (Select clientid from client_planets group by clientid "
             "having count(*) = 9)",
             "n"),
      "4");
}

TEST_F(MainWindowTest, TheCommandsFollowWhatIsChosen) {
  AddClient("Asha Rao", "1990-11-24 14:30:00");
  AddClient("Ravi Iyer", "1981-02-01 06:10:00");
  Open();
  EXPECT_EQ(Label("clientCount"), "2 client(s)");
  EXPECT_EQ(Label("remedyCaption"), "Remedy given to: Asha Rao");
  EXPECT_EQ(Label("birthdayCaption"), "1 Birthday(s) Today");
  EXPECT_TRUE(CanDo("editClient"));
  EXPECT_FALSE(CanDo("moveClient"));

  Type(*window_, "clientFilter", "iyer");
  EXPECT_EQ(Label("clientCount"), "1 client(s) filtered");
  EXPECT_EQ(Label("remedyCaption"), "Remedy given:");
  EXPECT_FALSE(CanDo("viewHoroscope"));
  ClickRow(List("clientList"), 0);
  EXPECT_TRUE(CanDo("viewHoroscope"));

  WhenOpen("groupDialog", [](QWidget& dialog) {
    Type(dialog, "groupName", "Family");
    Press(dialog, "action");
  });
  Trigger("addGroup");
  EXPECT_TRUE(CanDo("moveClient"));
}

TEST_F(MainWindowTest, AClientWhoseHoroscopeIsOpenIsNeitherEditedNorDeleted) {
  AddClient("Asha Rao", "1990-11-24 14:30:00");
  Open();
  ClickRow(List("clientList"), 0, true);
  ASSERT_EQ(session_->State.OpenHoroscopes.size(), 1U);
  Trigger("viewHoroscope");
  EXPECT_EQ(session_->State.OpenHoroscopes.size(), 1U);
  messages_.Await("Horoscope can't be edited as it is currently open.");
  Trigger("editClient");
  messages_.Await("Horoscope can't be deleted as it is currently open.");
  Trigger("deleteClient");
  messages_.Await("Can't delete a Group when one or more Horoscopes are open.");
  Trigger("deleteGroup");
}

TEST_F(MainWindowTest, DeletingAsksFirstAndTheLastGroupLeavesWordsOfWhatToDo) {
  AddClient("Asha Rao", "1990-11-24 14:30:00");
  Open();
  const std::string question = "Are you sure you want to delete the selected Client?\n\nAsha Rao";
  messages_.Await(question, core::MessageAnswer::No);
  Trigger("deleteClient");
  EXPECT_EQ(Label("totalClients"), "Total Clients: 1");
  messages_.Await(question, core::MessageAnswer::Yes);
  Trigger("deleteClient");
  EXPECT_EQ(Label("totalClients"), "Total Clients: 0");
  messages_.Await(
      std::string(practice::kDeleteGroupQuestion) + "\n\nGeneral (clients: 0, remedies: 0)",
      core::MessageAnswer::Yes);
  Trigger("deleteGroup");
  EXPECT_EQ(Label("clientCount"), "No Groups defined. Please add a Group to get started.");
  EXPECT_FALSE(CanDo("addClient"));
  EXPECT_FALSE(Find<QLineEdit>(*window_, "clientFilter").isEnabled());
}

TEST_F(MainWindowTest, AnInstantChartIsStoredShownAndOpened) {
  AddClient("Asha Rao", "1990-11-24 14:30:00");
  Open();
  home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
  Trigger("instantChart");
  EXPECT_EQ(Label("totalClients"), "Total Clients: 2");
  EXPECT_EQ(session_->State.OpenHoroscopes.size(), 1U);
  EXPECT_EQ(List("clientList").currentIndex().data().toString(),
            "Instant Chart - 24 Nov 2026 10:00");

  session_->State.InstantChartGroupId = 0;
  messages_.Await(
      "Instant Chart not configured in Settings window. Do you wish to configure it now?",
      core::MessageAnswer::Yes);
  WhenOpen("settingsDialog", [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  Trigger("instantChart");
  EXPECT_EQ(Label("totalClients"), "Total Clients: 2");
}

TEST_F(MainWindowTest, TheSkyFollowsTheClockWithoutGrowing) {
  AddClient("Asha Rao", "1990-11-24 14:30:00");
  Open();
  EXPECT_EQ(Label("nowTitle"), "Sky View at 10:00:01 AM");
  EXPECT_TRUE(Label("currentAscendant").startsWith("Current ASC: "));
  EXPECT_EQ(List("nowRulingPlanets").Model().rowCount(), 7);
  // Which lord comes next stands at the lords, and below the planets where the window is high.
  const struct {
    int Row;
    const char* Label;
    const char* Begins;
  } nexts[] = {{2, "nowNext0", "Ascendant enters the "}, {5, "nowNext1", "Moon enters the "}};
  for (const auto& next : nexts) {
    const QString told =
        List("nowRulingPlanets").Model().index(next.Row, 1).data(Qt::ToolTipRole).toString();
    EXPECT_TRUE(told.startsWith(next.Begins)) << Typed(told);
    EXPECT_EQ(Label(next.Label), told);
    for (const int high : {1000, 600}) {
      window_->resize(1366, high);
      QCoreApplication::processEvents();
      EXPECT_EQ(Find<QWidget>(*window_, next.Label).isVisible(), high == 1000);
    }
  }
  QTest::keyClick(window_.get(), Qt::Key_5, Qt::ControlModifier);
  EXPECT_EQ(Label("skyTitle"), "Sky View at 10:00:01 AM");
  EXPECT_EQ(List("skyRulingPlanets").Model().rowCount(), 8);
  QTest::keyClick(window_.get(), Qt::Key_1, Qt::ControlModifier);
  auto& sky = *window_->findChild<SkyPanel*>();
  const auto ticks = [&](int count) {
    for (int tick = 0; tick < count; ++tick) {
      home_.Clock.Set(home_.Clock.Now() + std::chrono::minutes(1));
      sky.Refresh();
      QCoreApplication::processEvents();
    }
    return ::mallinfo2().uordblks;
  };
  const std::size_t before = ticks(60);
  const std::size_t after = ticks(24 * 60);
  EXPECT_LT(after, before + 200 * 1024);
}

TEST_F(MainWindowTest, ATableIsCopiedWithItsCaptionsAndSortedByTrueDates) {
  AddClient("Born late", "1990-12-05 14:30:00");
  AddClient("Born early", "1990-02-15 14:30:00");
  Open();
  auto& list = List("clientList");
  list.sortByColumn(2, Qt::AscendingOrder);
  EXPECT_EQ(list.Model().index(0, 0).data().toString(), "Born early");
  QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(QApplication::clipboard()->text().startsWith("Client Name\tBirth/Horary Date\tCity"));
  QTest::keyClick(&list, Qt::Key_F4);
  QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(QApplication::clipboard()->text().startsWith("Client Name\tGen\tBirth/Horary Date"));
}

TEST_F(MainWindowTest, AnotherCityOfTheSettingsIsThatOfTheSkyAndOfTheGridAtOnce) {
  AddClient("Asha Rao", "1990-11-24 14:30:00");
  Open();
  Trigger("transitGrid");
  auto& grid = List("grid");
  ASSERT_TRUE(QTest::qWaitFor([&grid] { return grid.Model().rowCount() > 0; }));
  const QString moon = grid.Model().index(0, 2).data().toString();
  const QString ascendant = Label("currentAscendant");
  WhenOpen("settingsDialog", [](QWidget& settings) {
    WhenOpen("pickCityDialog", [](QWidget& pick) {
      QTabBar& views = Find<QTabBar>(pick, "cityViews");
      QTest::mouseClick(&views, Qt::LeftButton, {}, views.tabRect(CityList::AllCities).center());
      Type(pick, "citySearch", "new york");
      ClickRow(Find<TableView>(pick, "cityList"), 0, true);
    });
    Press(settings, "chooseCity");
    Press(settings, "action");
  });
  Trigger("settings");
  EXPECT_NE(Label("currentAscendant"), ascendant);
  EXPECT_TRUE(QTest::qWaitFor([&] { return grid.Model().index(0, 2).data().toString() != moon; }));
}

TEST_F(MainWindowTest, RemediesWrittenElsewhereAreSeenWhenTheWindowIsComeBackTo) {
  const std::int32_t client = AddClient("Asha Rao", "1990-11-24 14:30:00");
  Open();
  QWidget horoscope;
  Show(horoscope);
  practice::SaveNewRemedy(*session_, {2, "No rest", "Pearl", home_.Clock.Now()}, client);
  EXPECT_EQ(List("remedyList").Model().rowCount(), 0);
  window_->activateWindow();
  QCoreApplication::processEvents();
  EXPECT_EQ(List("remedyList").Model().index(0, 0).data().toString(), "No rest");
}

TEST_F(MainWindowTest, ARemedyOfAHoroscopeIsDeletedAfterTheQuestion) {
  const std::int32_t client = AddClient("Asha Rao", "1990-11-24 14:30:00");
  practice::SaveNewRemedy(*session_, {2, "No rest", "Pearl", home_.Clock.Now()}, client);
  HoroscopeWindow& horoscope = *OpenHoroscope(place_, client);
  Show(horoscope);
  auto& pages = Find<QListWidget>(horoscope, "pages");
  pages.setFocus();
  QTest::keyClicks(&pages, "Remedies");
  auto& remedies = Find<TableView>(horoscope, "RemedyTable");
  ClickRow(remedies, 0);
  messages_.Await("Are you sure you want to delete the selected Remedy?\n\nAsha Rao",
                  core::MessageAnswer::Yes);
  QTest::keyClick(&remedies, Qt::Key_Delete);
  EXPECT_EQ(remedies.Model().rowCount(), 0);
  EXPECT_TRUE(session_->StoreConnection.Query("Select id from client_remedy").AtEnd());
}

// The one rule of every list: what is marked is what a command would act on.
class ChoiceTest : public MainWindowTest {
 protected:
  ChoiceTest() {
    AddClient("Asha Rao", "1990-11-24 14:30:00");
    AddClient("Ravi Iyer", "1981-02-01 06:10:00");
    AddClient("Meera Krishnan", "1975-08-30 21:45:00");
    Open();
  }

  QString Marked() {
    const QModelIndexList rows = List("clientList").selectionModel()->selectedRows();
    return rows.isEmpty() ? QString() : rows.constFirst().data().toString();
  }

  void ExpectChosen(const QString& name) {
    EXPECT_EQ(Marked(), name);
    EXPECT_EQ(List("clientList").currentIndex().siblingAtColumn(0).data().toString(), name);
    EXPECT_EQ(Label("remedyCaption"),
              name.isEmpty() ? "Remedy given:" : "Remedy given to: " + name);
    EXPECT_EQ(CanDo("deleteClient"), !name.isEmpty());
  }

  void ClickHeader(int column) {
    QHeaderView& header = *List("clientList").horizontalHeader();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                      {header.sectionViewportPosition(column) + 8, header.height() / 2});
  }
};

TEST_F(ChoiceTest, TheMarkedClientIsTheChosenOneWhateverIsClickedSortedOrTyped) {
  ExpectChosen("Asha Rao");
  ClickRow(List("clientList"), 2);
  ExpectChosen("Ravi Iyer");
  ClickHeader(2);
  ExpectChosen("Ravi Iyer");
  ClickHeader(2);
  ExpectChosen("Ravi Iyer");

  TableView& list = List("clientList");
  QTest::keyClick(&list, Qt::Key_Home);
  EXPECT_EQ(list.currentIndex().row(), 0);
  ExpectChosen(list.Model().index(0, 0).data().toString());
  QTest::keyClick(&list, Qt::Key_End);
  EXPECT_EQ(list.currentIndex().row(), 2);
  ExpectChosen(list.Model().index(2, 0).data().toString());

  const QString last = Marked();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier,
                    list.visualRect(list.currentIndex()).center());
  ExpectChosen(last);

  Type(*window_, "clientFilter", " ");
  ExpectChosen("");
  QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
  ExpectChosen("");
  ClickRow(list, 0);
  ExpectChosen(list.Model().index(0, 0).data().toString());
}

TEST_F(ChoiceTest, ACommandOfTheSearchPageActsOnWhatWasFoundThere) {
  Trigger("searchClients");
  EXPECT_FALSE(CanDo("deleteClient"));
  EXPECT_FALSE(CanDo("deleteGroup"));
  QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
  TableView& found = List("searchResults");
  ASSERT_EQ(found.Model().rowCount(), 3);
  ClickRow(found, 2);
  ASSERT_EQ(found.currentIndex().data().toString(), "Ravi Iyer");
  messages_.Await("Are you sure you want to delete the selected Client?\n\nRavi Iyer",
                  core::MessageAnswer::Yes);
  QTest::keyClick(&found, Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ(found.Model().rowCount(), 2);
  ASSERT_TRUE(CanDo("deleteClient"));
  EXPECT_EQ(found.currentIndex().data().toString(), "Asha Rao");
  EXPECT_EQ(List("clientList").Model().rowCount(), 2);
  // What was chosen is found again: nothing else was chosen in between.
  ClickRow(found, 1);
  QSignalSpy chosen(&found, &TableView::TagChosen);
  Press(*window_, "search");
  EXPECT_EQ(chosen.count(), 1);
  EXPECT_EQ(found.currentIndex().row(), 0);
  Trigger("transitGrid");
  for (const char* action : {"viewHoroscope", "editClient", "deleteClient", "moveClient"}) {
    EXPECT_FALSE(CanDo(action)) << action;
  }
}

TEST_F(ChoiceTest, ADeletedClientComesBackAsItWas) {
  practice::SaveNewRemedy(*session_, {2, "No 'rest'", "Pearl #1#", home_.Clock.Now()}, 2);
  const auto rows = [this] {
    QStringList all;
    for (const char* table : {"client_master where id = 2", "client_planets where clientid = 2",
                              "client_remedy where clientid = 2"}) {
      for (core::Result row =
               session_->StoreConnection.Query(std::string("Select * from ") + table);
           !row.AtEnd(); row.Next()) {
        for (const std::string& field : row.FieldNames()) {
          all << (row.IsNull(field) ? QString("Null") : Shown(row.Text(field)));
        }
      }
    }
    return all;
  };
  session_->StoreConnection.Execute(
      "Update client_planets set rashihouse = null where planetid = 4");
  session_->StoreConnection.Execute("Update client_master set offset = 0.1 + 0.2 where id = 2");
  const QStringList before = rows();
  EXPECT_FALSE(Find<QWidget>(*window_, "undoButton").isVisible());
  const auto erase = [this](const std::string& name) {
    messages_.Await("Are you sure you want to delete the selected Client?\n\n" + name,
                    core::MessageAnswer::Yes);
    QTest::keyClick(&List("clientList"), Qt::Key_Delete, Qt::ControlModifier);
  };
  ClickRow(List("clientList"), 2);
  erase("Ravi Iyer");
  erase("Asha Rao");
  ASSERT_TRUE(rows().isEmpty());
  EXPECT_EQ(Label("totalClients"), "Total Clients: 1");

  auto& undo = Find<QToolButton>(*window_, "undoButton");
  ASSERT_TRUE(undo.isVisible());
  EXPECT_EQ(undo.text(), "Undo deletion of Asha Rao");
  QTest::mouseClick(&undo, Qt::LeftButton);
  ExpectChosen("Asha Rao");
  QTest::keyClick(&List("clientList"), Qt::Key_Z, Qt::ControlModifier);
  ExpectChosen("Ravi Iyer");
  EXPECT_EQ(Label("totalClients"), "Total Clients: 3");
  EXPECT_EQ(rows(), before);
  EXPECT_FALSE(undo.isVisible());
}

}  // namespace
}  // namespace orvex::ui
