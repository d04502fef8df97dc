// Groups, the list and the card of the chosen client, as a hand uses them.
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include "practice/groups.h"
#include "practice/remedies.h"
#include "ui/horoscope/horoscope_window.h"
#include "ui/main_window_home.h"

namespace orvex::ui {
namespace {

class ClientsPageTest : public MainWindowTest {
 protected:
  ClientsPageTest() {
    family_ = practice::AddGroup(*session_, "Family").Id;
    AddClient("Asha Rao", "1990-11-24 14:30:00");
    AddClient("Ravi Iyer", "1981-02-01 06:10:00");
    AddClient("Meera Krishnan", "1879-08-30 21:45:00", family_);
    Open();
    Show(*window_);
    window_->resize(1366, 768);
    QCoreApplication::processEvents();
  }

  TableView& Clients() { return List("clientList"); }
  TableView& Groups() { return List("groupList"); }
  QStringList Column(TableView& table, int column = 0) {
    QStringList texts;
    for (int row = 0; row < table.Model().rowCount(); ++row) {
      texts << table.Model().index(row, column).data().toString();
    }
    return texts;
  }
  void Key(int key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(window_->focusWidget(), static_cast<Qt::Key>(key), modifiers);
    QCoreApplication::processEvents();
  }
  void Rest() { QTest::qWait(250); }

  std::int32_t family_ = 0;
};

TEST_F(ClientsPageTest, AllAndRecentStandAboveTheGroupsWithTheirCounts) {
  EXPECT_EQ(Column(Groups()), (QStringList{"All clients", "Recent", "Family", "General"}));
  EXPECT_EQ(Column(Groups(), 1), (QStringList{"3", "", "1", "2"}));
  EXPECT_EQ(Label("groupTitle"), "Family");  // the first group, as at every start

  ClickRow(Groups(), 0);
  EXPECT_EQ(Column(Clients()), (QStringList{"Asha Rao", "Meera Krishnan", "Ravi Iyer"}));
  EXPECT_EQ(Label("clientCount"), "3 client(s)");
  EXPECT_FALSE(CanDo("deleteGroup"));
  EXPECT_TRUE(CanDo("deleteClient"));
  ClickRow(Clients(), 0, true);
  ComeBack();

  ClickRow(Groups(), 1);
  EXPECT_EQ(Column(Clients()), (QStringList{"Asha Rao", "Meera Krishnan", "Ravi Iyer"}));
  ClickRow(Groups(), 3);
  EXPECT_EQ(Column(Clients()), (QStringList{"Asha Rao", "Ravi Iyer"}));

  // A client that goes is counted no more; a new one goes to the group that was chosen last.
  ClickRow(Clients(), 1);
  messages_.Await("Are you sure you want to delete the selected Client?\n\nRavi Iyer",
                  core::MessageAnswer::Yes);
  Key(Qt::Key_Delete);
  EXPECT_EQ(Column(Groups(), 1), (QStringList{"2", "", "1", "1"}));
  ClickRow(Groups(), 0);
  WhenOpen("clientDialog", [](QWidget& dialog) {
    Type(dialog, "fullName", "New One");
    Press(dialog, "action");
  });
  Press(*window_, "addClientButton");
  EXPECT_EQ(Label("groupTitle"), "General");
  EXPECT_EQ(Column(Groups(), 1), (QStringList{"3", "", "1", "2"}));
}

TEST_F(ClientsPageTest, InTheListOfGroupsTheKeysMeanTheGroup) {
  ClickRow(Groups(), 2);
  WhenOpen("groupDialog", [](QWidget& dialog) {
    Type(dialog, "groupName", "Kin");
    Press(dialog, "action");
  });
  Key(Qt::Key_F2);
  EXPECT_EQ(Column(Groups()), (QStringList{"All clients", "Recent", "General", "Kin"}));
  EXPECT_EQ(Label("groupTitle"), "Kin");
  ComeBack();
  messages_.Await(std::string(practice::kDeleteGroupQuestion) + "\n\nKin (clients: 1, remedies: 0)",
                  core::MessageAnswer::No);
  Key(Qt::Key_Delete);
  Key(Qt::Key_Return);
  EXPECT_EQ(FocusName(*window_), "clientList");
  WhenOpen("groupDialog", [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  Press(*window_, "addGroupButton");
}

TEST_F(ClientsPageTest, TheCardFollowsWhenTheChoiceHasRestedAndNeverShowsAnother) {
  practice::SaveNewRemedy(*session_, {2, "No rest", "Pearl", home_.Clock.Now()}, 1);
  ClickRow(Groups(), 3);
  EXPECT_EQ(Label("cardName"), "Asha Rao");
  EXPECT_EQ(Label("cardBirth"), "");
  Rest();
  EXPECT_TRUE(Label("cardBirth").startsWith("24 November 1990 02:30 PM"));
  EXPECT_TRUE(Label("cardPerson").contains("36 years"));
  EXPECT_GT(Find<QWidget>(*window_, "runningPeriods").height(), 50);
  EXPECT_EQ(List("remedyList").Model().rowCount(), 1);
  Clients().setFocus();
  Key(Qt::Key_Down);
  EXPECT_EQ(Label("cardName"), "Ravi Iyer");
  EXPECT_EQ(Label("cardBirth"), "");
  EXPECT_EQ(List("remedyList").Model().rowCount(), 0);
  Rest();
  EXPECT_TRUE(Label("cardBirth").startsWith("1 February 1981"));

  // Of one who cannot be alive no period runs.
  ClickRow(Groups(), 2);
  Rest();
  EXPECT_TRUE(Label("cardBirth").startsWith("30 August 1879"));
  EXPECT_EQ(Find<QWidget>(*window_, "runningPeriods").height(), 0);

  Press(*window_, "cardOpen");
  EXPECT_EQ(session_->State.OpenHoroscopes, std::vector<std::int32_t>{3});
}

TEST_F(ClientsPageTest, F4ShowsAllColumnsOverListAndCard) {
  const auto shown = [this] {
    QStringList captions;
    QHeaderView& header = *Clients().horizontalHeader();
    for (int place = 0; place < header.count(); ++place) {
      const int column = header.logicalIndex(place);
      if (!header.isSectionHidden(column)) {
        captions
            << Clients().Model().headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
      }
    }
    return captions;
  };
  EXPECT_EQ(shown(), (QStringList{"Client Name", "Birth/Horary Date", "City"}));
  Key(Qt::Key_F4);
  EXPECT_EQ(shown(), (QStringList{"Client Name", "Gen", "Birth/Horary Date", "#", "City",
                                  "Created On", "Mobile", "Email", "Comments"}));
  EXPECT_FALSE(Find<QWidget>(*window_, "clientCard").isVisible());
  Press(*window_, "allColumnsButton");
  EXPECT_EQ(shown().size(), 3);
  EXPECT_TRUE(Find<QWidget>(*window_, "clientCard").isVisible());
  window_->resize(1920, 1000);
  QCoreApplication::processEvents();
  EXPECT_EQ(shown(), (QStringList{"Client Name", "Birth/Horary Date", "City", "Mobile", "Email"}));
}

TEST_F(ClientsPageTest, TheNarrowedListIsEnteredWithDownAndWidenedWithEscape) {
  ClickRow(Groups(), 3);
  Key(Qt::Key_F, Qt::ControlModifier);
  QTest::keyClicks(window_->focusWidget(), "rav");
  EXPECT_EQ(Column(Clients()), QStringList{"Ravi Iyer"});
  EXPECT_FALSE(CanDo("editClient"));
  Key(Qt::Key_Down);
  EXPECT_EQ(FocusName(*window_), "clientList");
  EXPECT_EQ(Label("cardName"), "Ravi Iyer");
  EXPECT_TRUE(CanDo("editClient"));
  Key(Qt::Key_F, Qt::ControlModifier);
  Key(Qt::Key_Escape);
  EXPECT_EQ(Clients().Model().rowCount(), 2);
  EXPECT_EQ(FocusName(*window_), "clientFilter");
  Key(Qt::Key_Escape);
  EXPECT_EQ(FocusName(*window_), "clientList");
}

TEST_F(ClientsPageTest, ABirthdayLeadsToItsClientAndToThePageToday) {
  EXPECT_EQ(Find<QPushButton>(*window_, "birthdaysLink").text(), "1 Birthday(s) Today");
  for (QAbstractButton* link : window_->findChildren<QAbstractButton*>()) {
    if (link->accessibleName() == "Asha Rao 36") {
      QTest::mouseClick(link, Qt::LeftButton);
    }
  }
  EXPECT_EQ(Label("groupTitle"), "General");
  EXPECT_EQ(Label("cardName"), "Asha Rao");
  Press(*window_, "birthdaysLink");
  EXPECT_TRUE(List("birthdayList").isVisible());
  EXPECT_EQ(Column(List("birthdayList")), QStringList{"Asha Rao"});
}

TEST_F(ClientsPageTest, WhatAHoroscopeChangedIsSeenWhenTheWindowIsComeBackTo) {
  ClickRow(Groups(), 3);
  QWidget other;
  Show(other);
  session_->StoreConnection.Execute("Update client_master set fullname = 'Asha Roy' where id = 1");
  EXPECT_EQ(Column(Clients()).front(), "Asha Rao");
  ComeBack();
  EXPECT_EQ(Column(Clients()).front(), "Asha Roy");
  EXPECT_EQ(Label("cardName"), "Asha Roy");
  EXPECT_EQ(Label("remedyCaption"), "Remedy given to: Asha Roy");
}

TEST_F(ClientsPageTest, ThePartsOfTheWindowFollowEachOtherByAKey) {
  Clients().setFocus();
  QStringList parts;
  for (int i = 0; i < 5; ++i) {
    Key(Qt::Key_F6);
    parts << FocusName(*window_);
  }
  EXPECT_EQ(parts,
            (QStringList{"cardMove", "nowPlanets", "findAnyone", "groupList", "clientList"}));
}

TEST_F(ClientsPageTest, TheMenusOpenWithTheirKeys) {
  for (const auto& [key, modifiers, title] :
       std::vector<std::tuple<Qt::Key, Qt::KeyboardModifiers, QString>>{
           {Qt::Key_F10, Qt::NoModifier, ""},
           {Qt::Key_C, Qt::AltModifier, "&Clients"},
           {Qt::Key_G, Qt::AltModifier, "&Groups"},
           {Qt::Key_R, Qt::AltModifier, "T&ransit"},
           {Qt::Key_T, Qt::AltModifier, "&Tools"},
           {Qt::Key_H, Qt::AltModifier, "&Help"}}) {
    Key(key, modifiers);
    auto* open = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(open, nullptr) << Typed(title);
    EXPECT_EQ(open->title(), title);
    while (QWidget* popup = QApplication::activePopupWidget()) {
      popup->close();
    }
  }
  Press(*window_, "menuButton");
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QApplication::activePopupWidget()->close();
}

}  // namespace
}  // namespace orvex::ui
