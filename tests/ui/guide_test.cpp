#include <QAbstractButton>
#include <QAction>
#include <QKeySequence>
#include <QListWidget>
#include <QShortcut>
#include <QTextStream>
#include <filesystem>
#include <set>

#include "chart/client_saving.h"
#include "core/home.h"
#include "core/text.h"
#include "support/data_folder.h"
#include "support/ui_desk.h"
#include "ui/base/keys.h"
#include "ui/base/open_windows.h"
#include "ui/horoscope/horoscope_window.h"
#include "ui/main/main_window.h"
#include "ui/transit/transit_details_dialog.h"

namespace orvex::ui {
namespace {

using Keys = std::set<std::string>;

class GuideTest : public test::DeskTest {
 protected:
  ~GuideTest() override { DeleteOpenWindows(); }

  // The first column of the table under a heading of the page of keys.
  static Keys Told(const std::string& heading) {
    Keys keys;
    bool inside = false;
    for (const std::string& line :
         core::Split(core::ReadTextFile(test::GuideSource() / "keys.md"), '\n')) {
      inside = core::Contains(line, "## ") ? line == "## " + heading : inside;
      const std::vector<std::string> cells = core::Split(line, '|');
      if (!inside || cells.size() < 3 || core::Contains(line, "---") ||
          core::Contains(line, "| key")) {
        continue;
      }
      const QKeySequence read(Shown(core::Trim(cells[1])), QKeySequence::PortableText);
      keys.insert(Typed(read.toString(QKeySequence::PortableText)));
    }
    return keys;
  }

  // Every shortcut of a window, which must stand for one thing. Alt and a letter of a caption are
  // told by the line under it.
  static Keys Present(const QWidget& window) {
    Keys keys;
    const auto add = [&keys](const QKeySequence& key) {
      const QString text = key.toString(QKeySequence::PortableText);
      if (!key.isEmpty() && !(text.startsWith("Alt+") && text.size() == 5)) {
        keys.insert(Typed(text));
      }
    };
    for (const QAction* action : window.findChildren<QAction*>()) {
      const bool everywhere = action->shortcutContext() == Qt::WindowShortcut;
      EXPECT_FALSE(everywhere && keys.contains(Typed(action->shortcut().toString())))
          << Typed(action->shortcut().toString()) << " is two things";
      add(action->shortcut());
    }
    for (const QShortcut* shortcut : window.findChildren<QShortcut*>()) {
      add(shortcut->key());
    }
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
      add(button->shortcut());
    }
    return keys;
  }
};

TEST_F(GuideTest, TheKeysOfTheGuideAreThoseOfTheWindows) {
  const MainWindow window(place_);
  EXPECT_EQ(Told("Main window"), Present(window));

  chart::ClientForm form = chart::OpenAddClient(*session_);
  chart::SelectCity(*session_, 1, form);
  form.FullName = "Asha Rao";
  form.Birth = test::Moment("1990-11-24 14:30:00");
  HoroscopeWindow* horoscope = OpenHoroscope(place_, chart::SaveNewClient(*session_, form, 1).Id);
  ASSERT_NE(horoscope, nullptr);
  auto& pages = Find<QListWidget>(*horoscope, "pages");
  for (int page = 0; page < pages.count(); ++page) {
    pages.setCurrentRow(page);
  }
  EXPECT_EQ(Told("Horoscope"), Present(*horoscope));
  TransitDetailsDialog day(place_, transit::Planet::Moon, session_->Time.Today());
  Keys known = Told(kTransits);
  known.merge(Told(kTables));
  const Keys present = Present(day);
  for (const std::string& key : Told(kTransits)) {
    EXPECT_TRUE(present.contains(key)) << key;
  }
  for (const std::string& key : present) {
    EXPECT_TRUE(known.contains(key)) << key;
  }
  for (const char* told : {"Main window", "Horoscope", kTransits, kTables}) {
    EXPECT_TRUE(core::Contains(core::ReadTextFile(test::GuideSource() / "keys.md"),
                               Typed(GuideTableOfKeys(told))))
        << told;
  }
}

TEST_F(GuideTest, TheHelpOpensTheGuideThatIsInstalledWithTheProgram) {
  MainWindow window(place_);
  for (QAction* action : window.findChildren<QAction*>()) {
    if (action->shortcut() == QKeySequence(QKeySequence::HelpContents)) {
      action->trigger();
    }
  }
  EXPECT_EQ(files_.Opened.filename(), "index.html");
  EXPECT_TRUE(std::filesystem::exists(files_.Opened));
}

}  // namespace
}  // namespace orvex::ui
