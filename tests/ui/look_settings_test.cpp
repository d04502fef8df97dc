// The settings of the look, set with the keys in their dialog, in both windows.
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>

#include "ui/base/cell_text.h"
#include "ui/base/chart_view.h"
#include "ui/base/theme.h"
#include "ui/base/window_look.h"
#include "ui/horoscope/horoscope_window.h"
#include "ui/main/kept_main_window.h"
#include "ui/main_window_home.h"

namespace orvex::ui {
namespace {

class LookSettingsTest : public MainWindowTest {
 protected:
  ~LookSettingsTest() override {
    TakeLook({});
    Theme::SetMode(ThemeMode::Light);
  }
};

TEST_F(LookSettingsTest, OpenWindowsFollowAtOnceAndStayWhereTheyAre) {
  const std::int32_t client = AddClient("Asha Rao", "1990-07-05 14:30:00");
  KeptMainWindow kept(place_);
  Show(kept.Window());
  kept.Window().Show({0, 1, client});
  HoroscopeWindow* horoscope = OpenHoroscope(place_, client);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(horoscope));
  horoscope->resize(1280, 720);
  horoscope->Turn("dasha");
  QCoreApplication::processEvents();
  const auto pageList = [&] { return horoscope->findChild<QListWidget*>("pages"); };
  const auto rail = [&] { return kept.Window().findChild<QWidget*>("settingsButton")->height(); };
  const int listWidth = pageList()->width();
  const int railHeight = rail();
  const auto set = [&](const char* degrees, const char* size, const char* theme) {
    // The desktop gives the keys to the window that is clicked.
    kept.Window().activateWindow();
    QCoreApplication::processEvents();
    bool opened = false;
    QTimer::singleShot(0, &kept, [=, &opened] {
      ASSERT_NE(QApplication::activeModalWidget(), nullptr);
      opened = true;
      auto& dialog = *QApplication::activeModalWidget();
      auto& options = *dialog.findChild<QListWidget*>("option");
      options.setFocus();
      QTest::keyClicks(&options, "Look");
      EXPECT_EQ(dialog.windowTitle(), "Settings - Look");
      QTest::keyClicks(dialog.findChild<QComboBox*>("DegreesShown"), degrees);
      auto& text = *dialog.findChild<QSpinBox*>("TextSize");
      text.setFocus();
      text.selectAll();
      QTest::keyClicks(&text, size);
      QTest::keyClicks(dialog.findChild<QComboBox*>("Theme"), theme);
      QTest::mouseClick(dialog.findChild<QPushButton*>("action"), Qt::LeftButton);
    });
    QTest::keyClick(&kept.Window(), Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_TRUE(opened);
    QTest::qWait(50);
  };
  set("As stored", "140", "Dark");
  EXPECT_EQ(Theme::TextSize(), 140);
  EXPECT_EQ(Theme::Mode(), ThemeMode::Dark);
  EXPECT_GT(pageList()->width(), listWidth * 12 / 10);
  EXPECT_GT(rail(), railHeight);
  EXPECT_EQ(pageList()->currentItem()->text(), "Periods");
  EXPECT_EQ(kept.Window().InSight().Client, client);
  horoscope->Turn("chart");
  const auto note = [&] {
    return horoscope->findChild<ChartView*>("chalitChart")->Picture().Fields[0].Note;
  };
  EXPECT_EQ(note(), "(194.67)");
  EXPECT_EQ(core::OpenSettings(*session_).TextSize, "140");
  set("In the sign", "100", "Light");
  EXPECT_EQ(pageList()->width(), listWidth);
  EXPECT_EQ(rail(), railHeight);
  EXPECT_EQ(note(), "14°40'");
  EXPECT_EQ(Theme::Mode(), ThemeMode::Light);
  delete horoscope;
}

}  // namespace
}  // namespace orvex::ui
