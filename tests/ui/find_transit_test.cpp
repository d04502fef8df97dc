#include "ui/transit/find_transit_dialog.h"

#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>

#include "support/transit_windows.h"
#include "ui/main/sky_panel.h"

namespace orvex::ui {
namespace {

using test::TransitWindowTest;

TEST_F(TransitWindowTest, FindRefusesWhatIsNoDegreeAndGoesBackToTheField) {
  FindTransitDialog find(place_);
  Show(find);
  EXPECT_EQ(Find<QComboBox>(find, "planet").itemText(0), "Jupiter");
  EXPECT_EQ(Find<QComboBox>(find, "Nakshatra").itemText(0), "Anuradha");
  EXPECT_EQ(Find<QComboBox>(find, "Rashi").itemText(0), "Aries");
  EXPECT_EQ(Text(find, "result"), transit::kFindPrompt);
  const std::vector<std::pair<const char*, const char*>> refusals = {
      {"", "Numeric value required."},
      {"abc", "Numeric value required."},
      {"-5", "Value should be between 0 to 360 degrees."},
      {"361", "Value should be between 0 to 360 degrees."}};
  for (const auto& [typed, message] : refusals) {
    Type(find, "Degree", typed);
    if (*typed == '\0') {
      Find<QLineEdit>(find, "Degree").clear();
    }
    messages_.Await(message);
    Press(find, "find");
    EXPECT_EQ(FocusName(find), "Degree") << typed;
    EXPECT_EQ(Text(find, "result"), transit::kFindPrompt);
    EXPECT_FALSE(Enabled(find, "sync"));
  }
}

TEST_F(TransitWindowTest, OnlyTheFieldsOfTheChosenTargetAreOpen) {
  FindTransitDialog find(place_);
  Show(find);
  const auto open = [&find] {
    QString fields;
    for (const char* field : {"Degree", "Nakshatra", "Pada", "Rashi"}) {
      fields += Enabled(find, field) ? "1" : "0";
    }
    return fields;
  };
  EXPECT_EQ(open(), "1000");
  Find<QRadioButton>(find, "byNakshatra").click();
  EXPECT_EQ(open(), "0110");
  Find<QRadioButton>(find, "byRashi").click();
  EXPECT_EQ(open(), "0001");
}

TEST_F(TransitWindowTest, WhatIsFoundIsToldAndLeadsIntoTheGrid) {
  const auto page = OpenGrid();
  WhenOpen("findTransitDialog", [](QWidget& find) {
    Find<QComboBox>(find, "planet").setCurrentText("Sun");
    Find<QRadioButton>(find, "byRashi").click();
    Find<QComboBox>(find, "Rashi").setCurrentText("Capricorn");
    QTest::keyClick(&find, Qt::Key_Return);
    EXPECT_EQ(Text(find, "result"), "Sun will get to Capricorn on 14 January 2027 at 17:00.");
    EXPECT_EQ(Text(find, "status"), "Ready");
    EXPECT_EQ(Find<TableView>(find, "hours").Model().rowCount(), 24);
    EXPECT_EQ(Find<TableView>(find, "hours").currentIndex().row(), 17);
    EXPECT_EQ(FocusName(find), "sync");
    QTest::keyClick(find.focusWidget(), Qt::Key_Space);
  });
  Press(*page, "findTransit");
  EXPECT_EQ(Caption(*page, "monthTitle"), "January 2027");
  const QModelIndex marked = Find<TableView>(*page, "grid").currentIndex();
  EXPECT_EQ(marked, Cell(*page, "grid", 13, 1));
  EXPECT_EQ(marked.data(Qt::BackgroundRole).value<QColor>(), QColor(238, 237, 245));
  EXPECT_TRUE(Find<TableView>(*page, "grid").selectionModel()->isSelected(marked));
  QTest::qWait(150);  // no timer builds the month anew
  EXPECT_EQ(Cell(*page, "grid", 13, 1).data(Qt::BackgroundRole).value<QColor>(),
            QColor(238, 237, 245));
}

TEST_F(TransitWindowTest, ThePadaThatIsPickedIsTheOneThatIsSearchedFor) {
  FindTransitDialog find(place_);
  Show(find);
  Find<QComboBox>(find, "planet").setCurrentText("Sun");
  Type(find, "from", "24 nov 2026");
  QTest::mouseClick(&Find<QWidget>(find, "byNakshatra"), Qt::LeftButton, {}, {8, 8});
  auto& stars = Find<QComboBox>(find, "Nakshatra");
  stars.setFocus();
  QTest::keyClicks(&stars, "Rohini");
  auto& padas = Find<QComboBox>(find, "Pada");
  padas.setFocus();
  Press(find, "find");
  EXPECT_EQ(Typed(Text(find, "result")),
            "Sun will get to Rohini Nakshatra (Pada 1) on 25 May 2027 at 17:00.");
  padas.setFocus();
  QTest::keyClick(&padas, Qt::Key_End);
  Press(find, "find");
  EXPECT_EQ(Typed(Text(find, "result")),
            "Sun will get to Rohini Nakshatra (Pada 4) on 5 June 2027 at 03:00.");
}

TEST_F(TransitWindowTest, AFoundDateBeyondTheGridIsKeptOutOfIt) {
  FindTransitDialog find(place_);
  Show(find);
  Find<QComboBox>(find, "planet").setCurrentText("Sun");
  Type(find, "from", "1 jan 2600");
  Type(find, "Degree", "100");
  Press(find, "find");
  EXPECT_TRUE(Text(find, "result").contains("2600"));
  messages_.Await("The grid shows the years 1500 to 2500.");
  Press(find, "sync");
  EXPECT_TRUE(find.isVisible());
}

// No hour is ever followed by 360 degrees: this search goes on through the centuries.
class LongSearchTest : public TransitWindowTest {
 protected:
  LongSearchTest() : find_(place_) {
    Show(find_);
    Find<QComboBox>(find_, "planet").setCurrentText("Moon");
    Type(find_, "Degree", "360");
  }

  // Does it in the middle of the search.
  template <typename Deed>
  void SearchAnd(Deed deed) {
    QTimer::singleShot(60, &find_, deed);
    Press(find_, "find");
  }

  FindTransitDialog find_;
};

TEST_F(LongSearchTest, CancelIsHeardAndTypingGoesOn) {
  SearchAnd([this] {
    EXPECT_EQ(Text(find_, "result"), "Please wait...");
    EXPECT_EQ(Text(find_, "status"), "Working...");
    EXPECT_FALSE(Enabled(find_, "find"));
    EXPECT_FALSE(Enabled(find_, "planet"));
    EXPECT_TRUE(Find<QWidget>(find_, "progress").isVisible());
    Type(find_, "Degree", "12.5");
    Press(find_, "cancel");
  });
  EXPECT_EQ(Text(find_, "result"), transit::kFindPrompt);
  EXPECT_EQ(Text(find_, "status"), "Process was canceled");
  EXPECT_EQ(Find<TableView>(find_, "hours").Model().rowCount(), 24);
  EXPECT_EQ(Find<QLineEdit>(find_, "Degree").text(), "12.5");
  EXPECT_TRUE(Enabled(find_, "find"));
  EXPECT_FALSE(Enabled(find_, "cancel"));
  EXPECT_FALSE(Enabled(find_, "sync"));
  Press(find_, "find");
  EXPECT_TRUE(Text(find_, "result").startsWith("Moon will get to 12.5 degree(s) on "));
}

TEST_F(LongSearchTest, EscapeEndsTheSearchAndThenTheDialog) {
  SearchAnd([this] { QTest::keyClick(&find_, Qt::Key_Escape); });
  EXPECT_TRUE(find_.isVisible());
  EXPECT_EQ(Text(find_, "status"), "Process was canceled");
  QTest::keyClick(&find_, Qt::Key_Escape);
  EXPECT_FALSE(find_.isVisible());
}

TEST_F(LongSearchTest, ClosingTheDialogEndsTheSearchToo) {
  SearchAnd([this] { find_.close(); });
  EXPECT_FALSE(find_.isVisible());
}

TEST_F(TransitWindowTest, TheSkyThatTicksInTheMiddleChangesNoResult) {
  FindTransitDialog find(place_);
  SkyPanel sky(place_);
  Show(find);
  Find<QComboBox>(find, "planet").setCurrentText("Moon");
  // Only a Moon that stands on the minute at the hour is found here, after years.
  Type(find, "Degree", "0");
  Press(find, "find");
  const QString alone = Text(find, "result");
  EXPECT_TRUE(alone.startsWith("Moon will get to 0 degree(s) on "));
  int ticks = 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, &sky, [&] {
    ++ticks;
    sky.Refresh();
  });
  timer.start(0);
  Press(find, "find");
  EXPECT_GT(ticks, 0);
  EXPECT_EQ(Text(find, "result"), alone);
}

}  // namespace
}  // namespace orvex::ui
