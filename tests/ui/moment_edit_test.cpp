#include "ui/base/moment_edit.h"

#include <QCalendarWidget>
#include <QLabel>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "support/ui_desk.h"
#include "ui/base/theme.h"

namespace orvex::ui {
namespace {

// A date and a time in a window, with another field beside them.
class MomentEditTest : public test::DeskTest {
 protected:
  MomentEditTest() : date_(new DateEdit("date")), time_(new TimeEdit("time")) {
    auto* column = new QVBoxLayout(&window_);
    auto* other = new QLineEdit;
    other->setObjectName("other");
    for (QWidget* widget : std::initializer_list<QWidget*>{date_, date_->MakeEcho(), time_,
                                                           time_->MakeEcho(), other}) {
      column->addWidget(widget);
    }
    date_->SetDate(test::Moment("1990-07-05"));
    time_->SetTime(core::TimeOfDayOf(test::Moment("1990-07-05 14:30:20")));
    Show(window_);
  }

  QString Echo(const char* field) {
    return Find<QLabel>(window_, (std::string(field) + "Echo").c_str()).text();
  }

  static bool IsRed(const QWidget& widget, QPalette::ColorRole role) {
    return widget.palette().color(role) == Theme::Red();
  }

  static void TurnWheel(QWidget& widget) {
    const QPointF at(widget.rect().center());
    QWheelEvent turn(at, widget.mapToGlobal(at), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &turn);
  }

  QWidget window_;
  DateEdit* date_;
  TimeEdit* time_;
};

TEST_F(MomentEditTest, WhatIsTypedIsToldInWordsAndRefusedInRed) {
  EXPECT_EQ(date_->text(), "5 Jul 1990");
  EXPECT_EQ(time_->text(), "14:30:20");
  Type(window_, "date", "29021992");
  EXPECT_EQ(Echo("date"), "Saturday, 29 February 1992");
  EXPECT_EQ(date_->Date(), test::Moment("1992-02-29"));
  EXPECT_FALSE(IsRed(*date_, QPalette::Text));
  Type(window_, "time", "1430");
  EXPECT_EQ(Echo("time"), "02:30:00 PM");

  Type(window_, "date", "31.2.1990");
  EXPECT_EQ(Echo("date"), "There is no day 31 in February 1990.");
  EXPECT_TRUE(IsRed(*date_, QPalette::Text));
  EXPECT_TRUE(IsRed(Find<QLabel>(window_, "dateEcho"), QPalette::WindowText));
  EXPECT_FALSE(date_->Date());
  QTest::keyClick(date_, Qt::Key_Up);
  EXPECT_EQ(date_->text(), "31.2.1990");
}

TEST_F(MomentEditTest, OneTabLeadsFromFieldToField) {
  date_->setFocus();
  QTest::keyClick(date_, Qt::Key_Tab);
  EXPECT_EQ(FocusName(window_), "time");
  QTest::keyClick(time_, Qt::Key_Tab);
  EXPECT_EQ(FocusName(window_), "other");
}

TEST_F(MomentEditTest, ArrowsStepThePartAtTheCursorAndTheWheelWantsTheFocus) {
  date_->setFocus();
  QTest::keyClick(date_, Qt::Key_Home);
  QTest::keyClick(date_, Qt::Key_Up);
  EXPECT_EQ(date_->text(), "6 Jul 1990");
  QTest::keyClick(date_, Qt::Key_End);
  QTest::keyClick(date_, Qt::Key_Down);
  QTest::keyClick(date_, Qt::Key_Down);
  EXPECT_EQ(date_->text(), "6 Jul 1988");
  TurnWheel(*time_);
  EXPECT_EQ(time_->text(), "14:30:20");
  time_->setFocus();
  QTest::keyClick(time_, Qt::Key_Home);
  TurnWheel(*time_);
  EXPECT_EQ(time_->text(), "15:30:20");
}

TEST_F(MomentEditTest, ADayOfTheCalendarIsTakenByAClick) {
  auto* button = date_->findChild<QToolButton*>();
  ASSERT_NE(button, nullptr);
  QTest::mouseClick(button, Qt::LeftButton);
  auto* calendar = date_->findChild<QCalendarWidget*>();
  ASSERT_NE(calendar, nullptr);
  EXPECT_EQ(calendar->selectedDate(), QDate(1990, 7, 5));
  auto* days = calendar->findChild<QTableView*>();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(calendar->window()));
  const QModelIndex beside =
      days->currentIndex().siblingAtColumn(days->currentIndex().column() + 1);
  QTest::mouseClick(days->viewport(), Qt::LeftButton, {}, days->visualRect(beside).center());
  EXPECT_EQ(date_->text(), "6 Jul 1990");
  EXPECT_EQ(Echo("date"), "Friday, 6 July 1990");
}

}  // namespace
}  // namespace orvex::ui
