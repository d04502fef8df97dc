// Births in and out through the main window: menus, dialogs, and files dropped onto it.
#include <sys/stat.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollBar>
#include <QStatusBar>
#include <QUrl>
#include <QWindow>

#include "chart/client_saving.h"
#include "exchange/exchange_preview.h"
#include "practice/groups.h"
#include "support/ui_desk.h"
#include "ui/base/open_windows.h"
#include "ui/main/main_window.h"
#include "ui/main/work_progress.h"

namespace orvex::ui {
namespace {

constexpr const char* kPune = "#B93:*,18N31,73E51,5hE30,0\n";

class ImportExportTest : public test::DeskTest {
 protected:
  ImportExportTest() { practice::AddGroup(*session_, "Others"); }
  ~ImportExportTest() override { DeleteOpenWindows(); }

  std::filesystem::path Write(const std::string& name, const std::string& text) {
    const std::filesystem::path file = home_.Place.Folder / "in" / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
    return file;
  }

  static std::string Birth(const std::string& name) {
    return "#A93:" + name + ",*,m,5.7.1990,14:30,Pune,IN\n" + kPune;
  }

  void Open() {
    window_ = std::make_unique<MainWindow>(place_);
    window_->resize(1280, 720);
    Show(*window_);
  }

  void Trigger(const char* action) {
    auto* found = window_->findChild<QAction*>(action);
    ASSERT_NE(found, nullptr) << action;
    window_->activateWindow();
    QCoreApplication::processEvents();
    QTest::keySequence(window_.get(), found->shortcut());
    QCoreApplication::processEvents();
  }

  std::int64_t Count(const std::string& rows) const {
    return session_->StoreConnection.Query("Select count(*) as n from " + rows).Integer("n");
  }

  static QString Cell(QWidget& window, const char* table, int row, int column) {
    return Find<TableView>(window, table).Model().index(row, column).data().toString();
  }

  // Drops urls onto a point of the window as the desktop does; whether they were taken.
  bool Drop(const QList<QUrl>& urls, const QPoint& at) {
    QMimeData data;
    data.setUrls(urls);
    data.setText(urls.isEmpty() ? QString("text") : urls.front().toString());
    QWindow* window = window_->windowHandle();
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &enter);
    QDragMoveEvent move(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &move);
    if (!move.isAccepted()) {
      QDragLeaveEvent leave;
      QCoreApplication::sendEvent(window, &leave);
      return false;
    }
    QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &drop);
    return drop.isAccepted();
  }

  QPoint MiddleOf(const char* widget) {
    auto& found = Find<QWidget>(*window_, widget);
    return found.mapTo(window_.get(), found.rect().center());
  }

  std::unique_ptr<MainWindow> window_;
};

TEST_F(ImportExportTest, FilesAreShownBeforeTheyAreSavedAndRefusedLinesHoldThemBack) {
  files_.ToRead = {Write("a.aaf", Birth("First") + "nonsense\n" + Birth("Second")),
                   Write("b.csv",
                         "name,birth,city id,offset\nThird,1990-07-05 14:30,1,5.5\n"
                         "Fourth,1990-07-05 14:30,1,9.5\nFifth,never,1,5.5\n")};
  Open();
  WhenOpen("importDialog", [this](QWidget& dialog) {
    EXPECT_FALSE(Find<QPushButton>(dialog, "action").isEnabled());
    Press(dialog, "chooseFiles");
    EXPECT_EQ(Find<TableView>(dialog, "importBirths").Model().rowCount(), 3);
    EXPECT_EQ(Cell(dialog, "importBirths", 0, 0), "Second") << "a line takes its birth with it";
    EXPECT_EQ(Cell(dialog, "importBirths", 2, 6) + "/" + Cell(dialog, "importBirths", 2, 7),
              "9.5/5.5");
    EXPECT_EQ(Cell(dialog, "importRefused", 0, 0) + Cell(dialog, "importRefused", 0, 1), "a.aaf3");
    EXPECT_EQ(Cell(dialog, "importRefused", 1, 0) + Cell(dialog, "importRefused", 1, 1), "b.csv4");
    EXPECT_EQ(Find<QLabel>(dialog, "importStatus").text(), "3 new, 0 already stored, 2 refused");
    EXPECT_FALSE(Find<QPushButton>(dialog, "action").isEnabled());
    QTest::mouseClick(&Find<QCheckBox>(dialog, "leaveOut"), Qt::LeftButton, {}, {8, 8});
    EXPECT_TRUE(Find<QPushButton>(dialog, "action").isEnabled());
    EXPECT_EQ(Count("client_master"), 0);
    auto& group = Find<QComboBox>(dialog, "importGroup");
    group.setFocus();
    QTest::keyClicks(&group, "Others");
    EXPECT_FALSE(Find<QPushButton>(dialog, "action").isEnabled()) << "the lines are read anew";
    QTest::mouseClick(&Find<QCheckBox>(dialog, "leaveOut"), Qt::LeftButton, {}, {8, 8});
    Press(dialog, "action");
  });
  Trigger("importBirths");
  EXPECT_EQ(Count("client_master where groupid = 2"), 3);
  EXPECT_EQ(Count("client_planets"), 27);
  EXPECT_EQ(Find<TableView>(*window_, "clientList").Model().rowCount(), 3);
  EXPECT_EQ(window_->findChild<QStatusBar*>()->currentMessage(),
            "3 imported, 0 already stored, 2 refused");
}

// The bar's own calls are what a timer would see: the store within the one batch.
TEST_F(ImportExportTest, CancelingSavesNothingAndTheSkyStandsStillWhileTheStoreIsWritten) {
  std::string births;
  for (int birth = 0; birth < 60; ++birth) {
    births += Birth("Client " + std::to_string(birth));
  }
  files_.ToRead = {Write("many.aaf", births)};
  Open();
  const QString title = Find<QLabel>(*window_, "nowTitle").text();
  home_.Clock.Set(home_.Clock.Now() + std::chrono::minutes(5));
  const auto atWork = [this](QWidget& dialog, const std::function<void()>& deed) {
    auto* timer = new QTimer(&dialog);
    QObject::connect(timer, &QTimer::timeout, &dialog, [timer, &dialog, deed] {
      if (Find<WorkProgress>(dialog, "importProgress").IsAtWork()) {
        timer->stop();
        deed();
      }
    });
    timer->start(0);
  };
  WhenOpen("importDialog", [&](QWidget& dialog) {
    atWork(dialog, [&dialog] { QTest::keyClick(&dialog, Qt::Key_Escape); });
    Press(dialog, "chooseFiles");
    EXPECT_EQ(Find<TableView>(dialog, "importBirths").Model().rowCount(), 0);
    Press(dialog, "chooseFolder");
    EXPECT_EQ(Find<TableView>(dialog, "importBirths").Model().rowCount(), 60);
    atWork(dialog, [&] {
      QMetaObject::invokeMethod(window_->findChild<QAction*>("refreshSky"), "trigger");
      EXPECT_EQ(Find<QLabel>(*window_, "nowTitle").text(), title);
      Press(dialog, "cancel");
    });
    Press(dialog, "action");
    EXPECT_EQ(Count("client_master"), 0);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(Find<QLabel>(dialog, "importStatus").text(), "Canceled. Nothing was imported.");
    Press(dialog, "action");
  });
  files_.Chosen = home_.Place.Folder / "in";
  Trigger("importBirths");
  EXPECT_EQ(Count("client_master"), 60);
  EXPECT_NE(Find<QLabel>(*window_, "nowTitle").text(), title);
}

TEST_F(ImportExportTest, APracticeWithoutClientsIsOfferedTheImport) {
  files_.ToRead = {Write("a.aaf", Birth("First") + Birth("Second"))};
  Open();
  WhenOpen("importDialog", [](QWidget& dialog) {
    Press(dialog, "chooseFiles");
    Press(dialog, "action");
  });
  Press(*window_, "firstImport");
  EXPECT_FALSE(Find<QWidget>(*window_, "firstRun").isVisible());
  EXPECT_EQ(Find<TableView>(*window_, "clientList").Model().rowCount(), 2);
}

// Restored from a larger screen, the dialog keeps its buttons on this one, and what is compared in
// sight.
TEST_F(ImportExportTest, TheDialogStaysOnTheScreenWithItsButtonsAndOffsets) {
  files_.ToRead = {Write("a.aaf", Birth("First"))};
  Open();
  for (const bool again : {false, true}) {
    WhenOpen("importDialog", [again](QWidget& dialog) {
      const QRect screen = dialog.screen()->availableGeometry();
      EXPECT_LT(dialog.height(), screen.height()) << again;
      EXPECT_LE(dialog.width(), screen.width()) << again;
      EXPECT_TRUE(dialog.rect().contains(Find<QWidget>(dialog, "action").geometry()));
      dialog.resize(760, 500);
      Press(dialog, "chooseFiles");
      const auto& births = Find<TableView>(dialog, "importBirths");
      EXPECT_EQ(births.horizontalScrollBar()->maximum(), 0);
      for (const exchange::PreviewColumn column :
           {exchange::PreviewColumn::OffsetInFile, exchange::PreviewColumn::OffsetOfClocks,
            exchange::PreviewColumn::State}) {
        EXPECT_FALSE(births.isColumnHidden(static_cast<int>(column)));
      }
      dialog.resize(5000, 5000);
      QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    Trigger("importBirths");
  }
}

TEST_F(ImportExportTest, FilesAndFoldersDroppedOntoTheWindowOpenTheImportWithThem) {
  const std::filesystem::path file = Write("one/drop.AAF", Birth("Dropped"));
  const auto url = [](const std::filesystem::path& path) {
    return QUrl::fromLocalFile(Shown(path.string()));
  };
  Open();
  const struct {
    const char* Onto;
    QList<QUrl> Urls;
    int Births;  // -1: not taken
  } cases[] = {{"clientList", {url(file)}, 1},
               {"clientFilter", {url(file)}, 1},
               {"nowTitle", {url(file.parent_path())}, 1},
               {"clientList",
                {url(file), url(Write("b.csv", "name,birth,city id\nB,1990-07-05 14:30,1\n"))},
                2},
               {"clientList", {url(Write("c.txt", "no birth"))}, -1},
               {"clientList", {url(file), QUrl("https://example.org/x.aaf")}, -1},
               {"clientList", {}, -1}};
  for (const auto& one : cases) {
    int shown = -1;
    WhenOpen("importDialog", [&shown](QWidget& dialog) {
      ASSERT_TRUE(QTest::qWaitFor(
          [&dialog] { return Find<TableView>(dialog, "importBirths").Model().rowCount() > 0; }));
      shown = Find<TableView>(dialog, "importBirths").Model().rowCount();
      QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(Drop(one.Urls, MiddleOf(one.Onto)), one.Births >= 0) << one.Onto;
    if (one.Births >= 0) {
      ASSERT_TRUE(QTest::qWaitFor([&shown] { return shown >= 0; })) << one.Onto;
    }
    EXPECT_EQ(shown, one.Births) << one.Onto;
  }
  EXPECT_EQ(Find<QLineEdit>(*window_, "clientFilter").text(), "");
  EXPECT_EQ(Count("client_master"), 0);
}

TEST_F(ImportExportTest, ClientsGoOutAsTheChosenFileAndTheProgramsOwnFilesAreSafe) {
  Open();
  WhenOpen("importDialog", [](QWidget& dialog) {
    Press(dialog, "chooseFiles");
    Press(dialog, "action");
  });
  files_.ToRead = {Write("in.aaf", Birth("Asha") + Birth("Ravi"))};
  Trigger("importBirths");
  const struct {
    const char* Clients;
    const char* Format;
    const char* File;
    const char* Begins;
    int Lines;
  } cases[] = {{"exportClient", "asAaf", "one.aaf", "#: Astrological Exchange Format", 4},
               {"exportGroup", "asAaf", "group.aaf", "#: Astrological Exchange Format", 7},
               {"exportAll", "asCsv", "all.csv", "name,birth,city id", 3},
               {"exportGroup", "asSpreadsheet", "list.xlsx", "PK", -1}};
  for (const auto& one : cases) {
    files_.Chosen = home_.Place.Folder / one.File;
    WhenOpen("exportDialog", [&one](QWidget& dialog) {
      EXPECT_EQ(Find<QRadioButton>(dialog, "asCsv").isEnabled(), false) << "one client has no CSV";
      for (const char* choice : {one.Clients, one.Format}) {
        auto& button = Find<QRadioButton>(dialog, choice);
        QTest::mouseClick(&button, Qt::LeftButton, {}, {8, button.height() / 2});
        EXPECT_TRUE(button.isChecked()) << choice;
      }
      Press(dialog, "action");
    });
    Trigger("exportClients");
    const std::string text = test::ReadFile(files_.Chosen);
    EXPECT_EQ(text.rfind(one.Begins, 0), 0U) << one.File;
    if (one.Lines >= 0) {
      EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), one.Lines) << text;
    }
    struct ::stat facts = {};
    ASSERT_EQ(::stat(files_.Chosen.c_str(), &facts), 0);
    EXPECT_EQ(facts.st_mode & 0777U, 0600U);
    EXPECT_EQ(window_->findChild<QStatusBar*>()->currentMessage(),
              "Written: " + Shown(files_.Chosen.string()));
  }
  const std::string store = test::ReadFile(home_.Place.StoreFile());
  files_.Chosen = home_.Place.StoreFile();
  bool asked = false;
  messages_.AnswerOthers([&asked](const std::string& text) {
    asked = text.find("ORVD.mdb") != std::string::npos;
    return core::MessageAnswer::Ok;
  });
  WhenOpen("exportDialog", [](QWidget& dialog) {
    Press(dialog, "action");
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  Trigger("exportClients");
  EXPECT_TRUE(asked);
  EXPECT_EQ(test::ReadFile(home_.Place.StoreFile()), store);
}

}  // namespace
}  // namespace orvex::ui
