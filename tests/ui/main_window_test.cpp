#include "ui/main/main_window.h"

#include <malloc.h>

#include <QAction>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>

#include "chart/client_saving.h"
#include "practice/groups.h"
#include "support/ui_desk.h"
#include "ui/base/open_windows.h"
#include "ui/main/sky_panel.h"

namespace orvex::ui {
namespace {

class MainWindowTest : public test::DeskTest {
 protected:
  ~MainWindowTest() override { DeleteOpenWindows(); }

  std::int32_t AddClient(const std::string& name, const std::string& birth) {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    chart::SelectCity(*session_, 1, form);
    form.FullName = name;
    form.Birth = test::Moment(birth);
    // Each in a second of its own, by which it is found again.
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
    return chart::SaveNewClient(*session_, form, 1).Id;
  }

  void Open() {
    window_ = std::make_unique<MainWindow>(place_);
    Show(*window_);
  }

  void Trigger(const char* action) {
    auto* found = window_->findChild<QAction*>(action);
    ASSERT_NE(found, nullptr) << action;
    ASSERT_TRUE(found->isEnabled()) << action;
    found->trigger();
    QCoreApplication::processEvents();
  }

  bool CanDo(const char* action) { return window_->findChild<QAction*>(action)->isEnabled(); }
  QString Label(const char* name) { return Find<QLabel>(*window_, name).text(); }
  TableView& List(const char* name) { return Find<TableView>(*window_, name); }

  std::unique_ptr<MainWindow> window_;
};

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
  messages_.Await("Are you sure you want to delete the selected Client?", core::MessageAnswer::No);
  Trigger("deleteClient");
  EXPECT_EQ(Label("totalClients"), "Total Clients: 1");
  messages_.Await("Are you sure you want to delete the selected Client?", core::MessageAnswer::Yes);
  Trigger("deleteClient");
  EXPECT_EQ(Label("totalClients"), "Total Clients: 0");
  messages_.Await(practice::kDeleteGroupQuestion, core::MessageAnswer::Yes);
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
  EXPECT_EQ(Label("skyTitle"), "Sky View at 10:00:01 AM");
  EXPECT_TRUE(Label("currentAscendant").startsWith("Current ASC: "));
  EXPECT_EQ(List("skyRulingPlanets").Model().rowCount(), 8);
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
  EXPECT_TRUE(QApplication::clipboard()->text().startsWith("Client Name\tGen\tBirth/Horary Date"));
}

}  // namespace
}  // namespace orvex::ui
