#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>

#include "chart/client_saving.h"
#include "core/settings.h"
#include "support/ui_desk.h"
#include "ui/base/open_windows.h"
#include "ui/base/theme.h"
#include "ui/horoscope/horoscope_window.h"

namespace orvex::ui {
namespace {

class ExactPageTest : public test::DeskTest {
 protected:
  ~ExactPageTest() override {
    for (const QPointer<QWidget>& window : windows_) {
      delete window;
    }
  }

  QWidget& OpenPage(const std::string& horaryNumber = "", const std::string& latitude = "") {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    chart::SelectCity(*session_, 1, form);
    form.FullName = "Asha Rao";
    form.Birth = test::Moment("1990-07-05 14:30:20");
    if (!horaryNumber.empty()) {
      form.Horary = true;
      form.HoraryNumber = horaryNumber;
      form.HoraryQuestion = "When?";
      form.Latitude = latitude;
    }
    const core::SaveResult saved = chart::SaveNewClient(*session_, form, 1);
    EXPECT_FALSE(saved.Refused) << saved.Refused->Text;
    HoroscopeWindow* window = OpenHoroscope(place_, saved.Id);
    windows_.emplace_back(window);
    Show(*window);
    auto& pages = Find<QListWidget>(*window, "pages");
    const auto found = pages.findItems("To the second", Qt::MatchExactly);
    QTest::mouseClick(pages.viewport(), Qt::LeftButton, {},
                      pages.visualItemRect(found.at(0)).center());
    QCoreApplication::processEvents();
    return *window;
  }

  static QString Cell(QWidget& window, const char* table, int row, int column) {
    return Find<TableView>(window, table).Model().index(row, column).data().toString();
  }

 private:
  std::vector<QPointer<QWidget>> windows_;
};

TEST_F(ExactPageTest, AClickTurnsToTheOtherAyanamsaAndTheNextClientKeepsIt) {
  QWidget& window = OpenPage();
  const QString before = Find<QLabel>(window, "exactCaptions").text();
  EXPECT_TRUE(before.contains("1990-07-05 09:00:20 UT")) << before.toStdString();
  const QString position = Cell(window, "ExactCusps", 0, 1);
  EXPECT_EQ(Find<TableView>(window, "ExactPlanets").Model().rowCount(), 9);

  Press(window, "readKpNew");
  EXPECT_NE(Cell(window, "ExactCusps", 0, 1), position);
  EXPECT_NE(Find<QLabel>(window, "exactCaptions").text(), before);
  EXPECT_EQ(core::ExactAyanamsaOf(*session_), "kp-new");
  EXPECT_TRUE(Find<QPushButton>(OpenPage(), "readKpNew").isChecked());

  Press(window, "readKp");
  EXPECT_EQ(Cell(window, "ExactCusps", 0, 1), position);
  EXPECT_EQ(core::ExactAyanamsaOf(*session_), "kp");
}

TEST_F(ExactPageTest, WhereTheStoredChartSaysOtherwiseTheCellIsTintedAndNamed) {
  QWidget& window = OpenPage();
  int tinted = 0;
  for (const char* name : {"ExactCusps", "ExactPlanets"}) {
    TableModel& model = Find<TableView>(window, name).Model();
    const int stored = model.columnCount() - 1;
    for (int row = 0; row < model.rowCount(); ++row) {
      const QString named = model.index(row, stored).data().toString();
      for (int column = 0; column < stored; ++column) {
        const QModelIndex cell = model.index(row, column);
        const QString caption =
            model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        const bool differs = named.split(", ").contains(caption);
        const bool isTinted =
            cell.data(Qt::BackgroundRole).isValid() &&
            cell.data(Qt::BackgroundRole).value<QColor>() == Theme::Background("FFFBB3");
        EXPECT_EQ(isTinted, differs) << name << " " << row << " " << caption.toStdString();
        tinted += isTinted ? 1 : 0;
      }
    }
  }
  EXPECT_GT(tinted, 0);
}

TEST_F(ExactPageTest, AllRowsAreInSightWithoutABarOnSmallScreensOneTableAtATime) {
  QWidget& window = OpenPage();
  const auto expectWhole = [&](const char* name, bool shown) {
    const auto& view = Find<TableView>(window, name);
    ASSERT_EQ(view.isVisible(), shown) << name;
    if (shown) {
      EXPECT_EQ(view.verticalScrollBar()->maximum(), 0) << name << " at " << window.height();
      EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0) << name << " at " << window.width();
      EXPECT_TRUE(window.rect().contains(QRect(view.mapTo(&window, QPoint(0, 0)), view.size())))
          << name;
    }
  };
  for (const QSize size : {QSize(1280, 720), QSize(1366, 768), QSize(1920, 1080)}) {
    window.resize(size);
    QCoreApplication::processEvents();
    expectWhole("ExactCusps", true);
    expectWhole("ExactPlanets", true);
    EXPECT_FALSE(Find<QWidget>(window, "showExactCusps").isVisible());
  }
  window.resize(960, 540);
  QCoreApplication::processEvents();
  for (const bool planets : {true, false}) {
    Press(window, planets ? "showExactPlanets" : "showExactCusps");
    QCoreApplication::processEvents();
    expectWhole("ExactCusps", !planets);
    expectWhole("ExactPlanets", planets);
  }
}

TEST_F(ExactPageTest, AnAscendantThatTheLatitudeDoesNotHaveIsSaidInThePlaceOfTheCusps) {
  QWidget& window = OpenPage("170", "68");
  EXPECT_EQ(Find<QLabel>(window, "exactMessage").text(),
            "No chart has this Ascendant at this latitude.");
  EXPECT_TRUE(Find<QLabel>(window, "exactMessage").isVisible());
  EXPECT_FALSE(Find<QWidget>(window, "ExactCusps").isVisible());
  EXPECT_EQ(Find<TableView>(window, "ExactPlanets").Model().rowCount(), 9);
}

}  // namespace
}  // namespace orvex::ui
