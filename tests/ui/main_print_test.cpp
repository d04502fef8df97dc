// What the main window and its dialogs print, and the reports of a group.
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <set>

#include "chart/client_saving.h"
#include "support/printing.h"
#include "support/shown_rows.h"
#include "support/ui_desk.h"
#include "ui/base/open_windows.h"
#include "ui/main/main_window.h"

namespace orvex::ui {
namespace {

namespace fs = std::filesystem;
using test::ExpectRows;
using test::RowText;

class MainPrint : public test::DeskTest {
 protected:
  ~MainPrint() override { DeleteOpenWindows(); }

  // Their comments are their names.
  void AddClients(std::initializer_list<const char*> names) {
    for (const char* name : names) {
      chart::ClientForm form = chart::OpenAddClient(*session_);
      chart::SelectCity(*session_, 1, form);
      form.FullName = name;
      form.Comments = name;
      form.Birth = test::Moment("1990-07-05 14:30:00");
      home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
      ASSERT_FALSE(chart::SaveNewClient(*session_, form, 1).Refused);
    }
  }

  MainWindow& Open() {
    window_ = std::make_unique<MainWindow>(place_);
    Show(*window_);
    return *window_;
  }

  // The text of what Ctrl+P prints in a window.
  QString Printed(QWidget& window) {
    const fs::path file = home_.Place.Folder / "printed.pdf";
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; }));
    const auto seen = test::PrintWhenShown(file);
    QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(seen->Count, 1);
    layout_ = seen->Layout;
    return test::TextOfPdf(file);
  }

  void Export(const QString& entry) {
    for (QAction* action : Find<QMenu>(*window_, "groupReports").actions()) {
      if (action->text() == entry) {
        action->trigger();
        return;
      }
    }
    ADD_FAILURE() << entry.toStdString();
  }

  QString JobText() { return Find<QLabel>(*window_, "jobText").text(); }

  std::set<std::string> ChartFiles() const {
    std::set<std::string> names;
    const fs::path folder = home_.Place.Folder / "Charts";
    if (fs::exists(folder)) {
      for (const auto& entry : fs::directory_iterator(folder)) {
        names.insert(entry.path().filename());
      }
    }
    return names;
  }

  void TakeTemplate() const {
    fs::copy_file(test::DataFolder() / "HoroscopeTemplate.htm", home_.Place.ReportTemplate());
  }

  std::unique_ptr<MainWindow> window_;
  QPageLayout layout_;
};

TEST_F(MainPrint, ListsArePrintedNarrowedAndInTheirOrder) {
  AddClients({"Asha Rao", "Zoya Rao <&>", "Ravi Iyer", "Meena Rao"});
  MainWindow& window = Open();
  auto& clients = Find<TableView>(window, "clientList");
  Type(window, "clientFilter", "rao");
  const QHeaderView& header = *clients.horizontalHeader();
  // The order goes round: rising, falling, the table's own.
  for (int click = 0; click < 3 && !RowText(clients, 0).startsWith("ZoyaRao<&>"); ++click) {
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                      QPoint(header.sectionViewportPosition(0) + 8, header.height() / 2));
  }
  ASSERT_EQ(clients.Model().rowCount(), 3);
  ASSERT_TRUE(RowText(clients, 0).startsWith("ZoyaRao<&>")) << RowText(clients, 0).toStdString();
  const QString text = Printed(window);
  ExpectRows(clients, text);
  EXPECT_FALSE(text.contains("RaviIyer"));
}

TEST_F(MainPrint, WhatASearchHasFoundIsPrintedAndThatItFoundNothingToo) {
  AddClients({"Asha Rao", "Zoya Rao <&>", "Ravi Iyer"});
  MainWindow& window = Open();
  QTest::keyClick(&window, Qt::Key_2, Qt::ControlModifier);
  auto& page = Find<QWidget>(window, "searchPage");
  const auto search = [&](const char* name) {
    Type(page, "searchText", name);
    QTest::keyClick(window.focusWidget(), Qt::Key_Return);
    return Printed(window);
  };
  QString text = search("rao");
  auto& results = Find<TableView>(page, "searchResults");
  ASSERT_EQ(results.Model().rowCount(), 2);
  ExpectRows(results, text);
  EXPECT_TRUE(text.contains("Found2record(s)")) << text.toStdString();
  EXPECT_FALSE(text.contains("RaviIyer"));
  text = search("nobody of that name");
  EXPECT_EQ(results.Model().rowCount(), 0);
  EXPECT_FALSE(results.EmptyText().isEmpty());
  EXPECT_TRUE(text.contains(test::Squeezed(results.EmptyText()))) << text.toStdString();
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  QTest::keyClick(&window, Qt::Key_1, Qt::ControlModifier);
  Type(window, "clientFilter", "nobody of that name");
  text = Printed(window);
  EXPECT_TRUE(text.contains("NoClientsFound")) << text.toStdString();
}

TEST_F(MainPrint, TheMonthIsPrintedAsTheTableOrTheGraphInSight) {
  AddClients({"Asha Rao"});
  MainWindow& window = Open();
  QTest::keyClick(&window, Qt::Key_T, Qt::ControlModifier);
  auto& grid = Find<TableView>(window, "grid");
  ASSERT_TRUE(QTest::qWaitFor([&grid] { return grid.Model().rowCount() == 30; }));
  QString text = Printed(window);
  ExpectRows(grid, text);
  EXPECT_TRUE(text.contains("PlanetaryTransitinDubaiat10:00"));
  Press(window, "showGraph");
  text = Printed(window);
  EXPECT_EQ(layout_.orientation(), QPageLayout::Landscape);
  EXPECT_TRUE(text.contains("Today,24Nov2026") && text.contains("Aries"));
  EXPECT_FALSE(text.contains(RowText(grid, 0)));
}

TEST_F(MainPrint, HorasAndTheDayOfAPlanetArePrinted) {
  AddClients({"Asha Rao"});
  MainWindow& window = Open();
  QTest::keyClick(&window, Qt::Key_H, Qt::ControlModifier);
  const QString horas = Printed(window);
  for (const char* table : {"dayHoras", "nightHoras"}) {
    ExpectRows(Find<TableView>(window, table), horas);
  }
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  QTest::keyClick(&window, Qt::Key_T, Qt::ControlModifier);
  auto& grid = Find<TableView>(window, "grid");
  ASSERT_TRUE(QTest::qWaitFor([&grid] { return grid.Model().rowCount() == 30; }));
  WhenOpen("transitDetails", [this](QWidget& dialog) {
    const QString text = Printed(dialog);
    for (const char* table : {"hours", "skyPlanets"}) {
      ExpectRows(Find<TableView>(dialog, table), text);
    }
    EXPECT_TRUE(text.startsWith(test::Squeezed(dialog.windowTitle())));
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  QTest::mouseClick(grid.viewport(), Qt::LeftButton, {},
                    grid.visualRect(grid.Model().index(3, 3)).center());
  EXPECT_FALSE(layout_.pageSize().name().isEmpty());
}

TEST_F(MainPrint, AGroupIsExportedBesideTheWindowAndCanceledBetweenClients) {
  TakeTemplate();
  MainWindow& window = Open();
  EXPECT_FALSE(Find<QMenu>(window, "groupReports").isEnabled()) << "nobody is in the group";
  window_.reset();
  AddClients({"A", "B", "C", "D", "E"});
  Open();
  Export("Report and PDF: Dasha and Bhukti");
  EXPECT_FALSE(Find<QMenu>(*window_, "groupReports").isEnabled());
  ASSERT_TRUE(QTest::qWaitFor([this] { return JobText().endsWith(": 5 of 5 written"); }, 60000));
  EXPECT_EQ(ChartFiles().size(), 20U);
  QTest::mouseClick(&Find<QToolButton>(*window_, "openJobFolder"), Qt::LeftButton);
  EXPECT_EQ(files_.Opened, fs::absolute(session_->State.ChartPath));

  fs::remove_all(home_.Place.Folder / "Charts");
  Export("Report and PDF: Dasha, Bhukti, Antara and Sookshma");
  const auto pdfs = [this] {
    const std::set<std::string> names = ChartFiles();
    return std::count_if(names.begin(), names.end(),
                         [](const std::string& name) { return name.ends_with(".pdf"); });
  };
  ASSERT_TRUE(QTest::qWaitFor([&] { return pdfs() > 0; }, 60000));
  QTest::mouseClick(&Find<QToolButton>(*window_, "cancelJob"), Qt::LeftButton);
  ASSERT_TRUE(QTest::qWaitFor([this] { return JobText().contains("canceled"); }, 60000));
  const auto whole = static_cast<std::size_t>(pdfs());
  EXPECT_LT(whole, 5U);
  EXPECT_EQ(ChartFiles().size(), 4 * whole) << "no client's files are there in part";
  EXPECT_TRUE(JobText().endsWith(QString("canceled, %1 of 5 written").arg(whole)));
}

TEST_F(MainPrint, ClientsWhoseReportFailsAreNamedAndTheOthersWritten) {
  TakeTemplate();
  AddClients({"A", "B", "C"});
  Open();
  const fs::path charts = fs::absolute(session_->State.ChartPath);
  fs::create_directories(charts / "2.htm");  // a folder is in the way of the second
  messages_.Await("No report was written for:\nB: the file " + (charts / "2.htm").string() +
                  " could not be written");
  Export("Report: Dasha and Bhukti");
  ASSERT_TRUE(QTest::qWaitFor([this] { return JobText().endsWith(": 2 of 3 written"); }, 60000));
  EXPECT_TRUE(ChartFiles().contains("3.htm"));
  EXPECT_FALSE(ChartFiles().contains("Rashi-2.bmp"));
}

}  // namespace
}  // namespace orvex::ui
