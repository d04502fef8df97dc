// The horoscope's window under mouse and keys: charts, periods, ruling planets, sheets.
#include <QDir>
#include <QImage>

#include "ui/horoscope/ruling_line.h"
#include "ui/horoscope_window_home.h"

namespace orvex::ui {
namespace {

TEST_F(HoroscopeWindowTest, ARightClickOnAChartTurnsItsStyleAndShowsTheDivisions) {
  Open();
  auto& chalit = Find<ChartView>("chalitChart");
  const QPoint middle = chalit.rect().center();
  const struct {
    Qt::Key Letter;
    char Style;
  } cases[] = {{Qt::Key_E, 'E'}, {Qt::Key_S, 'S'}, {Qt::Key_N, 'N'}};
  for (const auto& one : cases) {
    QStringList ticked;
    RightClick(chalit, middle, [&](QMenu& menu) {
      for (const QAction* action : menu.actions()) {
        ticked += action->isChecked() ? QStringList(action->text()) : QStringList();
      }
      QTest::keyClick(&menu, one.Letter);
    });
    EXPECT_EQ(ticked.size(), 1) << one.Style;
    EXPECT_EQ(chalit.Picture().Style, one.Style);
    EXPECT_EQ(Find<ChartView>("rashiChart").Picture().Style, one.Style);
  }
  RightClick(chalit, middle, [](QMenu& menu) { QTest::keyClick(&menu, Qt::Key_D); });
  auto& divisions = Find<QDialog>("divisionalCharts");
  EXPECT_TRUE(divisions.isVisible());
  // Among the divisions too, without an entry that opens them again.
  auto& navamsha = *divisions.findChild<ChartView*>("navamsha");
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&divisions));
  int entries = 0;
  RightClick(navamsha, navamsha.rect().center(), [&](QMenu& menu) {
    for (const QAction* action : menu.actions()) {
      entries += action->isSeparator() ? 0 : 1;
      EXPECT_NE(action->objectName(), "divisions");
    }
    QTest::keyClick(&menu, Qt::Key_S);
  });
  EXPECT_EQ(entries, 6);
  EXPECT_EQ(navamsha.Picture().Style, 'S');
}

TEST_F(HoroscopeWindowTest, OneChartGoesToTheClipboardToAFileAndToPaper) {
  Open();
  auto& rashi = Find<ChartView>("rashiChart");
  const QPoint corner(6, 6);
  const auto press = [&](Qt::Key letter) {
    RightClick(rashi, corner, [letter](QMenu& menu) { QTest::keyClick(&menu, letter); });
  };
  QApplication::clipboard()->clear();
  press(Qt::Key_C);
  EXPECT_EQ(QApplication::clipboard()->image().size(), QSize(720, 720));

  const std::pair<const char*, std::string> kinds[] = {
      {"chart.png", "\x89PNG"}, {"chart.svg", "<?xml"}, {"chart.bmp", "BM"}, {"chart", "\x89PNG"}};
  for (const auto& [name, start] : kinds) {
    files_.Chosen = home_.Place.Folder / name;
    press(Qt::Key_V);
    EXPECT_EQ(test::ReadFile(files_.Chosen).substr(0, start.size()), start) << name;
    EXPECT_EQ(std::filesystem::status(files_.Chosen).permissions(), std::filesystem::perms(0600));
  }
  // None of the program's own files is written over.
  files_.Chosen = home_.Place.StoreFile();
  const std::string store = test::ReadFile(files_.Chosen);
  press(Qt::Key_V);
  EXPECT_EQ(test::ReadFile(files_.Chosen), store);
  EXPECT_FALSE(home_.Messages.All().empty());

  MenuEntry("rotationMenu", "&7 · spouse, partner").trigger();
  QString printed;
  WhenOpen("printPreview", [&](QDialog& preview) {
    printed = preview.windowTitle();
    preview.reject();
  });
  press(Qt::Key_P);
  EXPECT_EQ(printed, "Print: Horoscope for Asha Rao (Rotated to 7)");
}

TEST_F(HoroscopeWindowTest, TheArrowKeysGoFromListToListAndAlongEach) {
  Open();
  Turn("Periods");
  const char* const lists[] = {"DashaList", "BhuktiList", "AntaraList", "SookshmaList"};
  const auto focused = [this] { return window_->focusWidget()->objectName().toStdString(); };
  const auto press = [this](Qt::Key key) {
    QTest::keyClick(window_->focusWidget(), key);
    QCoreApplication::processEvents();
  };
  Find<TableView>("DashaList").setFocus();
  press(Qt::Key_Left);
  EXPECT_EQ(focused(), "DashaList");
  for (int list = 1; list < 4; ++list) {
    press(Qt::Key_Right);
    EXPECT_EQ(focused(), lists[list]);
  }
  press(Qt::Key_Right);
  EXPECT_EQ(focused(), "SookshmaList");
  press(Qt::Key_Left);
  press(Qt::Key_Left);
  ASSERT_EQ(focused(), "BhuktiList");
  // The path of today is chosen at first: Venus / Mercury. Down opens what follows it.
  EXPECT_EQ(Text("AntaraList", 0, 0), "Mercury");
  press(Qt::Key_Down);
  EXPECT_EQ(Text("AntaraList", 0, 0), "Ketu");
  press(Qt::Key_Right);
  press(Qt::Key_Down);
  EXPECT_EQ(Text("SookshmaList", 0, 0), Text("AntaraList", 1, 0));
  EXPECT_EQ(focused(), "AntaraList");
  press(Qt::Key_Left);
  press(Qt::Key_Left);
  press(Qt::Key_Home);
  EXPECT_EQ(Text("BhuktiList", 0, 0), "Mercury");
  // Today again.
  QTest::keyClick(window_, Qt::Key_J, Qt::ControlModifier);
  QCoreApplication::processEvents();
  EXPECT_EQ(Text("BhuktiList", 0, 0), "Venus");
  EXPECT_EQ(Text("AntaraList", 0, 0), "Mercury");
  EXPECT_EQ(focused(), "DashaList");
}

TEST_F(HoroscopeWindowTest, ASmallWindowHasTheRulingPlanetsInOneLineWithTheirSwitch) {
  Open();
  auto& line = Find<RulingLine>("rulingLine");
  EXPECT_FALSE(line.isVisible());
  EXPECT_TRUE(Find<TableView>("RulingPlanets").isVisible());
  for (const int width : {1099, 960}) {
    Resize(QSize(width, 600));
    EXPECT_TRUE(line.isVisible()) << width;
    EXPECT_FALSE(Find<TableView>("RulingPlanets").isVisible()) << width;
    for (std::size_t row = 0; row < 7; ++row) {
      EXPECT_TRUE(line.rect().contains(line.ChipBox(row))) << width << ", " << row;
    }
    EXPECT_TRUE(window_->rect().contains(QRect(line.mapTo(window_, QPoint(0, 0)), line.size())))
        << width;
  }
  EXPECT_TRUE(line.accessibleName().endsWith("Day Lord Jupiter"));
  QTest::mouseClick(&line, Qt::LeftButton, {}, line.ChipBox(6).center());
  EXPECT_EQ(window_->ChosenPlanet(), "JU");
  QTest::mouseClick(&Find<QPushButton>("rulingOfNow"), Qt::LeftButton);
  EXPECT_TRUE(line.accessibleName().endsWith("Day Lord Mars"));
  QTest::mouseClick(&line, Qt::LeftButton, {}, line.ChipBox(6).center());
  EXPECT_EQ(window_->ChosenPlanet(), "MA");
  Resize(QSize(1280, 720));
  EXPECT_FALSE(line.isVisible());
  EXPECT_TRUE(Find<QPushButton>("rulingOfNow").isVisible());
}

TEST_F(HoroscopeWindowTest, TheSheetOfAPlanetStandsAtTheSideOfAWideWindowAndIsNeverCut) {
  Open();
  Resize(QSize(1700, 1000));
  ClickCell("PlanetTable", 2, 0, true);
  auto& panel = Find<QWidget>("planetPanel");
  ASSERT_TRUE(panel.isVisible());
  EXPECT_EQ(window_->findChild<PlanetSheetDialog*>(), nullptr);
  EXPECT_EQ(Find<QLabel>("sheetTitle").text(), "Sun (Gemini)");
  QCoreApplication::processEvents();
  for (const QLabel* label : panel.findChildren<QLabel*>()) {
    const QRect inPanel(label->mapTo(&panel, QPoint(0, 0)), label->size());
    EXPECT_TRUE(panel.rect().left() <= inPanel.left() && inPanel.right() <= panel.rect().right())
        << label->text().toStdString();
    EXPECT_LE(label->heightForWidth(label->width()), label->height())
        << label->text().toStdString();
  }
  for (const char* list : {"sheetAspecting", "sheetAspectedBy"}) {
    EXPECT_EQ(Find<TableView>(list).horizontalScrollBar()->maximum(), 0) << list;
  }
  // Another planet takes its place; Escape puts it away.
  ClickCell("PlanetTable", 1, 0, true);
  EXPECT_EQ(Find<QLabel>("sheetTitle").text(), "Venus (Taurus)");
  EXPECT_EQ(panel.findChildren<QLabel*>("sheetTitle").size(), 1);
  QTest::keyClick(window_->focusWidget(), Qt::Key_Escape);
  EXPECT_FALSE(panel.isVisible());
  // A window that becomes narrow has no room for it.
  ClickCell("PlanetTable", 1, 0, true);
  EXPECT_TRUE(panel.isVisible());
  Resize(QSize(1699, 1000));
  EXPECT_FALSE(panel.isVisible());
  ClickCell("PlanetTable", 1, 0, true);
  EXPECT_NE(window_->findChild<PlanetSheetDialog*>(), nullptr);
}

// The screen of the tests is 800 pixels high; a size that was kept on a larger one is cut down to
// it.
TEST_F(HoroscopeWindowTest, AWindowWithItsFrameIsNoLargerThanItsScreen) {
  Open();
  Resize(QSize(1280, 1200));
  window_->close();
  QCoreApplication::sendPostedEvents(window_, QEvent::DeferredDelete);
  window_ = OpenHoroscope(place_, client_);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(window_));
  QCoreApplication::processEvents();
  const QRect free = window_->screen()->availableGeometry();
  const QRect framed = window_->frameGeometry();
  EXPECT_GT(framed.height(), window_->height()) << "the platform gives no frames";
  EXPECT_LE(framed.height(), free.height());
  EXPECT_GE(framed.top(), free.top());
  EXPECT_LE(framed.bottom(), free.bottom());
}

}  // namespace
}  // namespace orvex::ui
