// Looking for anyone with the keyboard and the mouse, from wherever the keys are.
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "practice/groups.h"
#include "ui/main_window_home.h"

namespace orvex::ui {
namespace {

class FindAnyoneBoxTest : public MainWindowTest {
 protected:
  FindAnyoneBoxTest() {
    family_ = practice::AddGroup(*session_, "Family").Id;
    AddClient("Asha Rao", "1990-11-24 14:30:00");
    AddClient("Ravi Iyer", "1981-02-01 06:10:00", family_);
    AddClient("Imran Shaikh", "1986-04-17 06:10:00", family_);
    Open();
  }

  // A key where the focus is; the pause after the last letter passes.
  void Key(int key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(window_->focusWidget(), static_cast<Qt::Key>(key), modifiers);
    QCoreApplication::processEvents();
  }
  // Each letter goes to where the keys are by then.
  void Letters(const QString& text) {
    for (const QChar letter : text) {
      QTest::keyClicks(window_->focusWidget(), letter);
    }
  }
  void Write(const QString& text) {
    Letters(text);
    ASSERT_TRUE(QTest::qWaitFor([this] { return IsOpen(); })) << text.toStdString();
  }
  bool IsOpen() {
    const auto* popup = window_->findChild<QWidget*>("anyonePopup");
    return popup != nullptr && popup->isVisible();
  }
  QListWidget& Found() { return Find<QListWidget>(*window_, "anyoneFound"); }
  QStringList Rows() {
    QStringList rows;
    for (int row = 0; row < Found().count(); ++row) {
      rows << Found().item(row)->text();
    }
    return rows;
  }
  QString Chosen() { return List("clientList").currentIndex().data().toString(); }

  std::int32_t family_ = 0;
};

TEST_F(FindAnyoneBoxTest, EveryGroupIsSearchedFromThePlaceWhereTheKeysAre) {
  ASSERT_EQ(List("clientList").Model().rowCount(), 2);  // of Family, which comes first
  Key(Qt::Key_K, Qt::ControlModifier);
  EXPECT_EQ(FocusName(*window_), "findAnyone");
  Write("RA");
  EXPECT_EQ(Rows(), (QStringList{"A name begins with it", "Asha Rao", "Ravi Iyer", "Within a name",
                                 "Imran Shaikh"}));
  // The popup lies over the page and within the window.
  EXPECT_TRUE(
      window_->rect().contains(QRect(Found().mapTo(window_.get(), QPoint()), Found().size())));
  Key(Qt::Key_Escape);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Find<QLineEdit>(*window_, "findAnyone").text(), "");
  EXPECT_EQ(FocusName(*window_), "clientList");

  // What is typed in the list begins the same search.
  Write("rao");
  EXPECT_EQ(FocusName(*window_), "findAnyone");
  EXPECT_EQ(Rows().at(1), "Asha Rao");
  Key(Qt::Key_F2);
  EXPECT_EQ(Label("groupTitle"), "General");
  EXPECT_EQ(Chosen(), "Asha Rao");
  EXPECT_TRUE(session_->State.OpenHoroscopes.empty());

  Key(Qt::Key_K, Qt::ControlModifier);
  Key(Qt::Key_K, Qt::ControlModifier);
  EXPECT_EQ(FocusName(*window_), "searchText");
}

TEST_F(FindAnyoneBoxTest, EnterOpensTheMarkedOneAndCtrlEnterEditsIt) {
  Write("ra");
  Key(Qt::Key_Down);
  EXPECT_EQ(Found().currentItem()->text(), "Ravi Iyer");
  Key(Qt::Key_Up);
  Key(Qt::Key_Up);
  EXPECT_EQ(Found().currentItem()->text(), "Asha Rao");
  Key(Qt::Key_Down);
  Key(Qt::Key_Return);
  EXPECT_EQ(session_->State.OpenHoroscopes, std::vector<std::int32_t>{2});
  ComeBack();

  // The key counts before the pause is over.
  List("clientList").setFocus();
  Letters("imran");
  QString edited;
  WhenOpen("clientDialog", [&edited](QWidget& dialog) {
    edited = Find<QLineEdit>(dialog, "fullName").text();
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(edited, "Imran Shaikh");
  EXPECT_EQ(session_->State.OpenHoroscopes, std::vector<std::int32_t>{2});
}

TEST_F(FindAnyoneBoxTest, TheLastRowsMakeABirthOrAQueryOfTheTypedName) {
  struct Case {
    const char* Typed;
    int Downs;
    bool Query;
  };
  for (const Case& one : std::vector<Case>{
           {"Zubin", 0, false}, {"Zubin Mehta", 1, true}, {"ra", 3, false}, {"ra", 99, true}}) {
    List("clientList").setFocus();
    Write(one.Typed);
    for (int down = 0; down < one.Downs; ++down) {
      Key(Qt::Key_Down);
    }
    QString name;
    bool query = false;
    WhenOpen("clientDialog", [&](QWidget& dialog) {
      name = Find<QLineEdit>(dialog, "fullName").text();
      query = Find<QAbstractButton>(dialog, "horary").isChecked();
      messages_.AnswerOthers([](const std::string&) { return core::MessageAnswer::Yes; });
      QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    Key(Qt::Key_Return);
    EXPECT_EQ(name, one.Typed) << one.Downs;
    EXPECT_EQ(query, one.Query) << one.Typed << " " << one.Downs;
    ComeBack();
  }
}

TEST_F(FindAnyoneBoxTest, AClickOpensWhoIsUnderIt) {
  Write("ra");
  QListWidget& found = Found();
  QTest::mouseClick(found.viewport(), Qt::LeftButton, {},
                    found.visualItemRect(found.item(4)).center());
  EXPECT_EQ(session_->State.OpenHoroscopes, std::vector<std::int32_t>{3});
  EXPECT_FALSE(IsOpen());
}

}  // namespace
}  // namespace orvex::ui
