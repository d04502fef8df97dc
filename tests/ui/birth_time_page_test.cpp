// The page "Birth time" as a hand uses it.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>

#include "chart/client_saving.h"
#include "horoscope/moved_lords.h"
#include "judgement/birth_times.h"
#include "support/ui_desk.h"
#include "ui/base/open_windows.h"
#include "ui/horoscope/horoscope_window.h"

namespace orvex::ui {
namespace {

using horoscope::MovedLordsColumn;
using judgement::BirthTimeColumn;

class BirthTimePageTest : public test::DeskTest {
 protected:
  ~BirthTimePageTest() override { DeleteOpenWindows(); }

  void AddClient(const std::function<void(chart::ClientForm&)>& change = {}) {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    chart::SelectCity(*session_, 1, form);
    form.FullName = "Asha Rao";
    form.Birth = test::Moment("1990-07-05 14:30:20");
    form.Comments = "from the mother";
    if (change) {
      change(form);
    }
    client_ = chart::SaveNewClient(*session_, form, 1).Id;
    ASSERT_NE(client_, 0);
  }

  void OpenPage() {
    window_ = OpenHoroscope(place_, client_);
    Show(*window_);
    auto& pages = Find<QListWidget>(*window_, "pages");
    QTest::mouseClick(
        pages.viewport(), Qt::LeftButton, {},
        pages.visualItemRect(pages.findItems("Birth time", Qt::MatchExactly).at(0)).center());
    QCoreApplication::processEvents();
  }

  TableView& Table(const char* name) { return Find<TableView>(*window_, name); }

  template <typename Column>
  std::string Text(const char* table, int row, Column column) {
    return Typed(Table(table)
                     .Model()
                     .index(row, static_cast<int>(core::Table::Index(column)))
                     .data()
                     .toString());
  }

  int RowOfNow() {
    for (int row = 0; row < Table("birthTimes").Model().rowCount(); ++row) {
      if (Text("birthTimes", row, BirthTimeColumn::Now) == "Now") {
        return row;
      }
    }
    ADD_FAILURE() << "no row of now";
    return 0;
  }

  static void ChooseMatter(QWidget& dialog, const QString& matter) {
    auto& box = Find<QComboBox>(dialog, "matter");
    box.setFocus();
    QTest::keyClicks(&box, matter);
    EXPECT_EQ(box.currentText(), matter);
  }

  void SetMinutes(const QString& minutes) {
    auto& field = Find<QSpinBox>(*window_, "benchMinutes");
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, minutes);
    QTest::keyClick(&field, Qt::Key_Return);
  }

  std::int32_t client_ = 0;
  HoroscopeWindow* window_ = nullptr;
};

TEST_F(BirthTimePageTest, EventsAreNotedChangedAndDeletedAndEachTimeTheSpansAreTriedAnew) {
  AddClient();
  OpenPage();
  const auto counts = [this] { return Text("birthTimes", 0, BirthTimeColumn::Events); };
  EXPECT_EQ(counts(), "0 of 0");
  EXPECT_FALSE(Find<QPushButton>(*window_, "editEvent").isEnabled());

  messages_.Await("Please select a Matter from the list.");
  WhenOpen("lifeEventDialog", [](QWidget& dialog) {
    Type(dialog, "eventDate", "11.2.2003");
    Press(dialog, "action");
    EXPECT_EQ(FocusName(dialog), "matter");
    ChooseMatter(dialog, "Marriage");
    Type(dialog, "remark", "in \"Pune\" & 'home'");
    Press(dialog, "action");
  });
  Press(*window_, "addEvent");
  EXPECT_EQ(Table("lifeEvents").AsTabbedText(),
            "Date\tMatter\tRemark\n11 February 2003\tMarriage\tin \"Pune\" & 'home'\n");
  EXPECT_TRUE(counts() == "0 of 1" || counts() == "1 of 1") << counts();

  WhenOpen("lifeEventDialog", [](QWidget& dialog) {
    EXPECT_EQ(Find<QComboBox>(dialog, "matter").currentText(), "Marriage");
    ChooseMatter(dialog, "Service");
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  Table("lifeEvents").setFocus();
  QTest::keyClick(&Table("lifeEvents"), Qt::Key_Return);
  EXPECT_EQ(Text("lifeEvents", 0, judgement::EventColumn::Matter), "Service");
  window_->activateWindow();
  QCoreApplication::processEvents();

  const std::string question =
      std::string(judgement::kDeleteEventQuestion) + "\n\nService, 11 February 2003";
  messages_.Await(question, core::MessageAnswer::No);
  QTest::keyClick(&Table("lifeEvents"), Qt::Key_Delete);
  EXPECT_EQ(Table("lifeEvents").Model().rowCount(), 1);
  messages_.Await(question, core::MessageAnswer::Yes);
  QTest::keyClick(&Table("lifeEvents"), Qt::Key_Delete);
  EXPECT_EQ(Table("lifeEvents").Model().rowCount(), 0);
  EXPECT_EQ(counts(), "0 of 0");
}

TEST_F(BirthTimePageTest, TheWindowAroundTheBirthIsChosenAndRulersAreThoseOfTheMoment) {
  AddClient();
  OpenPage();
  const auto first = [this] { return Text("birthTimes", 0, BirthTimeColumn::From); };
  EXPECT_EQ(first(), "1990-07-05 14:20:20");
  SetMinutes("3");
  EXPECT_EQ(first(), "1990-07-05 14:27:20");
  SetMinutes("120");
  EXPECT_EQ(first(), "1990-07-05 12:30:20");
  EXPECT_EQ(Text("birthTimes", Table("birthTimes").Model().rowCount() - 1, BirthTimeColumn::Until),
            "1990-07-05 16:30:20");

  const auto rulers = [this] {
    std::string all;
    for (int row = 0; row < Table("birthTimes").Model().rowCount(); ++row) {
      all += Text("birthTimes", row, BirthTimeColumn::Rulers);
    }
    return all;
  };
  const std::string before = rulers();
  home_.Clock.Set(home_.Clock.Now() + std::chrono::hours(30));
  EXPECT_EQ(rulers(), before);
  Press(*window_, "judgeNow");
  EXPECT_NE(rulers(), before);
}

// The Ascendant enters the next sub at the second at which the next span begins.
TEST_F(BirthTimePageTest, AStepOverABorderShowsTheOldAndTheNewLord) {
  AddClient();
  OpenPage();
  const int now = RowOfNow();
  const auto until = test::Moment(Text("birthTimes", now, BirthTimeColumn::Until)) -
                     test::Moment("1990-07-05 14:30:20");
  auto& unit = Find<QComboBox>(*window_, "stepUnit");
  unit.setFocus();
  QTest::keyClicks(&unit, "Seconds");
  auto& amount = Find<QSpinBox>(*window_, "stepAmount");
  const auto step = [&](std::int64_t seconds) {
    amount.setFocus();
    amount.selectAll();
    QTest::keyClicks(&amount, QString::number(seconds));
    window_->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window_));
    const QString before = Find<QLabel>(*window_, "movedBirth").text();
    QTest::keyClick(window_, Qt::Key_Right, Qt::AltModifier);
    EXPECT_NE(Find<QLabel>(*window_, "movedBirth").text(), before);
  };
  const auto sub = [this](int row) { return Text("movedLords", row, MovedLordsColumn::SubLord); };
  const auto isMarked = [this] {
    return Table("movedLords").Table().At(1, MovedLordsColumn::SubLord).Bold;
  };
  const std::string old = Text("birthTimes", now, BirthTimeColumn::SubLord);
  const std::string next = Text("birthTimes", now + 1, BirthTimeColumn::SubLord);
  EXPECT_EQ(sub(0) + sub(1), old + old);
  step(std::chrono::seconds(until).count() - 1);
  EXPECT_EQ(sub(0) + sub(1), old + old);
  EXPECT_FALSE(isMarked());
  step(1);
  EXPECT_EQ(sub(0) + " " + sub(1), old + " " + next);
  EXPECT_TRUE(isMarked());
  QTest::mouseClick(&Find<QPushButton>(*window_, "backToBirth"), Qt::LeftButton);
  EXPECT_EQ(sub(0) + sub(1), old + old);
}

TEST_F(BirthTimePageTest, ATakenTimeIsSavedByTheClientsDialogAloneAndTheWindowOpensAnew) {
  AddClient();
  OpenPage();
  const int now = RowOfNow();
  const auto stored = [this](const char* field) {
    return Stored("Select * from client_master where id = " + std::to_string(client_), field);
  };
  const std::string tag = Table("birthTimes").Model().TagOf(now + 1);
  const auto take = [&](const char* button) {
    ClickRow(Table("birthTimes"), now + 1);
    WhenOpen("clientDialog", [&, button](QWidget& dialog) {
      EXPECT_EQ(Find<QPlainTextEdit>(dialog, "comments").toPlainText().section('\n', 0, 0),
                "from the mother");
      Press(dialog, button);
    });
    Press(*window_, "takeTime");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    window_ = OpenHoroscope(place_, client_);
    QCoreApplication::processEvents();
  };
  take("cancel");
  EXPECT_EQ(stored("birthdate"), "1990-07-05 14:30:20");
  EXPECT_EQ(stored("comments"), "from the mother");
  ASSERT_EQ(RowOfNow(), now) << "the window opens at the page that was in sight";
  take("action");
  EXPECT_EQ(stored("birthdate"), tag);
  const std::string comments = stored("comments");
  EXPECT_EQ(
      comments.rfind("from the mother\nBirth time " + tag +
                         " taken in the place of 1990-07-05 14:30:20: Ascendant in the sign of ",
                     0),
      0U)
      << comments;
  EXPECT_EQ(Text("birthTimes", RowOfNow(), BirthTimeColumn::SubLord),
            Text("movedLords", 0, MovedLordsColumn::SubLord));
}

TEST_F(BirthTimePageTest, AGivenAscendantHasTheEnginesWordsInThePlaceOfTheSpans) {
  const std::function<void(chart::ClientForm&)> cases[] = {[](chart::ClientForm& form) {
                                                             form.Horary = true;
                                                             form.HoraryNumber = "100";
                                                             form.HoraryQuestion = "When?";
                                                           },
                                                           [](chart::ClientForm& form) {
                                                             form.AscendantByHand = true;
                                                             form.AscendantDegree = "123.45";
                                                           }};
  for (const auto& change : cases) {
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
    AddClient(change);
    OpenPage();
    auto& message = Find<QLabel>(*window_, "benchMessage");
    EXPECT_TRUE(message.isVisible());
    EXPECT_EQ(message.text(),
              "The Ascendant of this chart is given; there is no birth time to be found from it.");
    EXPECT_FALSE(Table("birthTimes").isVisible());
    EXPECT_FALSE(Find<QPushButton>(*window_, "takeTime").isVisible());
    EXPECT_FALSE(Table("movedLords").isVisible());
    EXPECT_TRUE(Table("workPlanets").Model().rowCount() == 9);
  }
}

TEST_F(BirthTimePageTest, ThePageFitsASmallScreenWithoutABar) {
  AddClient();
  OpenPage();
  auto* bars = static_cast<QScrollArea*>(Find<QWidget>(*window_, "birthTime").parent()->parent());
  for (const QSize& size : {QSize(1280, 720), QSize(1366, 740)}) {
    window_->resize(size);
    QCoreApplication::processEvents();
    ASSERT_EQ(window_->size(), size);
    EXPECT_EQ(bars->horizontalScrollBar()->maximum(), 0) << size.width();
    EXPECT_EQ(bars->verticalScrollBar()->maximum(), 0) << size.height();
  }
}

}  // namespace
}  // namespace orvex::ui
