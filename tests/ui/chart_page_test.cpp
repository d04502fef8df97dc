#include "ui/horoscope_window_home.h"

namespace orvex::ui {
namespace {

// Every chart, planet and cusp in sight at once, at the sizes of small screens.
TEST_F(HoroscopeWindowTest, ThePageOfTheChartNeedsNoBarOnASmallScreen) {
  Open();
  EXPECT_LE(window_->minimumSizeHint().width(), 1000);
  EXPECT_LE(window_->minimumWidth(), 1000);
  EXPECT_LE(window_->minimumHeight(), 600);
  for (const QSize size : {QSize(1280, 720), QSize(1366, 768), QSize(1920, 1080)}) {
    window_->resize(size);
    QCoreApplication::processEvents();
    ASSERT_EQ(window_->size(), size);
    for (const char* name : {"PlanetTable", "CuspTable", "RulingPlanets"}) {
      auto& view = Find<TableView>(name);
      EXPECT_TRUE(view.isVisible()) << name;
      const int last = view.Model().rowCount() - 1;
      EXPECT_TRUE(view.viewport()->rect().contains(view.visualRect(view.Model().index(last, 1))))
          << name << " at " << size.width();
      EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0) << name << " at " << size.width();
      EXPECT_EQ(view.verticalScrollBar()->maximum(), 0) << name << " at " << size.width();
    }
    const auto& planets = Find<TableView>("PlanetTable");
    for (const int column : {0, 1, 4, 5, 6, 7, 8, 9, 13}) {
      EXPECT_FALSE(planets.isColumnHidden(column)) << column << " at " << size.width();
    }
    EXPECT_TRUE(Find<ChartView>("chalitChart").isVisible());
  }
  // As small as it goes: one chart and one table, and the buttons turn to the others.
  window_->resize(960, 540);
  QCoreApplication::processEvents();
  EXPECT_EQ(window_->size(), QSize(960, 540));
  EXPECT_FALSE(Find<TableView>("CuspTable").isVisible());
  QTest::mouseClick(&Find<QPushButton>("showCusps"), Qt::LeftButton);
  EXPECT_TRUE(Find<TableView>("CuspTable").isVisible());
  EXPECT_FALSE(Find<TableView>("PlanetTable").isVisible());
}

TEST_F(HoroscopeWindowTest, TheWholeTableIsOneKeyAwayAndTheKeyTurnsBack) {
  Open();
  const auto& planets = Find<TableView>("PlanetTable");
  EXPECT_TRUE(planets.isColumnHidden(16));
  QTest::keyClick(window_, Qt::Key_F4);
  for (int column = 0; column < planets.Model().columnCount(); ++column) {
    EXPECT_FALSE(planets.isColumnHidden(column)) << column;
  }
  QTest::keyClick(window_, Qt::Key_F4);
  EXPECT_TRUE(planets.isColumnHidden(16));
}

TEST_F(HoroscopeWindowTest, AnAmberHeadShowsTheWayBackAndTheMenuTicksTheHouse) {
  Open();
  EXPECT_FALSE(Find<QWidget>("backToFirstHouse").isVisible());
  MenuEntry("rotationMenu", "&7 · spouse, partner").trigger();
  QStringList ticked;
  for (const QAction* house : Find<QMenu>("rotationMenu").actions()) {
    ticked += house->isChecked() ? QStringList(house->text()) : QStringList();
  }
  EXPECT_EQ(ticked, QStringList("&7 · spouse, partner"));
  EXPECT_EQ(Find<QLabel>("rotatedTo").text(), "Rotated to 7");
  QTest::mouseClick(&Find<QWidget>("backToFirstHouse"), Qt::LeftButton);
  EXPECT_EQ(window_->windowTitle(), "Horoscope for Asha Rao");
  EXPECT_FALSE(Find<QWidget>("backToFirstHouse").isVisible());
}

TEST_F(HoroscopeWindowTest, AColumnKeepsTheWidthThatItWasGiven) {
  Open();
  Find<TableView>("CuspTable").horizontalHeader()->resizeSection(2, 177);
  window_->resize(window_->width() + 100, window_->height());
  window_->close();
  QCoreApplication::sendPostedEvents(window_, QEvent::DeferredDelete);
  Open();
  EXPECT_EQ(Find<TableView>("CuspTable").columnWidth(2), 177);
  EXPECT_NE(Find<TableView>("CuspTable").columnWidth(3), 177);
}

}  // namespace
}  // namespace orvex::ui
