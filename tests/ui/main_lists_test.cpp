#include <QAction>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QProcess>
#include <QTextDocumentFragment>

#include "chart/client_saving.h"
#include "practice/client_list.h"
#include "practice/groups.h"
#include "practice/remedies.h"
#include "support/ui_desk.h"
#include "ui/base/open_windows.h"
#include "ui/main/main_window.h"
#include "ui/main/sky_panel.h"

namespace orvex::ui {
namespace {

class MainListsTest : public test::DeskTest {
 protected:
  ~MainListsTest() override { DeleteOpenWindows(); }

  std::int32_t Add(const std::string& name, const std::string& birth,
                   const std::string& question = "") {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    chart::SelectCity(*session_, 1, form);
    form.FullName = name;
    form.Birth = test::Moment(birth);
    form.Horary = !question.empty();
    form.HoraryNumber = "108";
    form.HoraryQuestion = question;
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
    return chart::SaveNewClient(*session_, form, 1).Id;
  }

  void Open() {
    window_ = std::make_unique<MainWindow>(place_);
    Show(*window_);
  }

  TableView& Clients() { return Find<TableView>(*window_, "clientList"); }

  // A right click on a list, then the letter of an entry of its menu.
  static void ChooseInMenu(TableView& list, Qt::Key letter) {
    QTimer::singleShot(0, qApp, [letter] {
      QWidget* menu = QApplication::activePopupWidget();
      ASSERT_NE(menu, nullptr);
      QTest::keyClick(menu, letter);
    });
    const QPoint at = list.viewport()->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, list.viewport()->mapToGlobal(at));
    QApplication::sendEvent(list.viewport(), &event);
  }

  std::unique_ptr<MainWindow> window_;
};

// The texts of a spreadsheet in the order of its cells.
QString TextsOf(const std::filesystem::path& spreadsheet) {
  QProcess unzip;
  unzip.start("unzip",
              {"-p", QString::fromStdString(spreadsheet.string()), "xl/sharedStrings.xml"});
  EXPECT_TRUE(unzip.waitForFinished());
  return QString::fromUtf8(unzip.readAllStandardOutput());
}

TEST_F(MainListsTest, AListGoesOutAsItIsShownNarrowedAndInItsOrder) {
  Add("Asha Rao", "1990-01-24 14:30:00");
  Add("Bela Rao", "1981-02-01 06:10:00");
  Add("Chitra Iyer", "1975-08-30 21:45:00");
  Open();
  Type(*window_, "clientFilter", "rao");
  QHeaderView& header = *Clients().horizontalHeader();
  for (int click = 0; click < 2 && Clients().Model().index(0, 0).data() != "Bela Rao"; ++click) {
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                      {header.sectionViewportPosition(0) + 8, header.height() / 2});
  }
  files_.Chosen = home_.Place.Folder / "rao.xlsx";
  ChooseInMenu(Clients(), Qt::Key_X);
  const QString texts = TextsOf(files_.Chosen);
  EXPECT_GT(texts.indexOf("Bela Rao"), 0);
  EXPECT_GT(texts.indexOf("Asha Rao"), texts.indexOf("Bela Rao"));
  EXPECT_FALSE(texts.contains("Chitra"));
}

TEST_F(MainListsTest, AQuestionStandsInItsToolTipAsItWasTyped) {
  const std::string questions[] = {R"(Will "he" come <b>back</b> & when?)", "Plain?", "a < b > c"};
  for (const std::string& question : questions) {
    Add("Query", "2026-11-24 09:00:00", question);
  }
  Open();
  QStringList shown;
  for (int row = 0; row < Clients().Model().rowCount(); ++row) {
    const int column = static_cast<int>(practice::ClientColumn::HoraryNumber);
    const QString tip = Clients().Model().index(row, column).data(Qt::ToolTipRole).toString();
    shown << (Qt::mightBeRichText(tip) ? QTextDocumentFragment::fromHtml(tip).toPlainText() : tip);
  }
  for (const std::string& question : questions) {
    EXPECT_TRUE(shown.contains(Shown(question))) << question;
  }
}

TEST_F(MainListsTest, BirthdaysFollowTheClockOverMidnight) {
  Add("Born on the 25th", "1990-11-25 14:30:00");
  home_.Clock.Set(test::Moment("2026-11-24 23:59:58"));
  Open();
  const auto& caption = Find<QLabel>(*window_, "birthdayCaption");
  EXPECT_EQ(caption.text(), "0 Birthday(s) Today");
  home_.Clock.Set(test::Moment("2026-11-25 00:00:03"));
  window_->findChild<SkyPanel*>()->Refresh();  // as each minute does
  EXPECT_EQ(caption.text(), "1 Birthday(s) Today");
}

TEST_F(MainListsTest, AGroupIsDeletedOnlyAfterItsClientsAndRemediesAreTold) {
  const std::int32_t asha = Add("Asha Rao", "1990-01-24 14:30:00");
  const std::int32_t bela = Add("Bela Rao", "1981-02-01 06:10:00");
  for (const std::int32_t client : {asha, asha, bela}) {
    practice::SaveNewRemedy(*session_, {2, "No rest", "Pearl", home_.Clock.Now()}, client);
  }
  const std::int32_t other = practice::AddGroup(*session_, "Students").Id;
  session_->StoreConnection.Execute(
      "Update client_master set groupid = " + Typed(WholeText(other)) +
      " where id = " + Typed(WholeText(bela)));
  Open();
  messages_.Await(
      std::string(practice::kDeleteGroupQuestion) + "\n\nGeneral (clients: 1, remedies: 2)",
      core::MessageAnswer::No);
  window_->findChild<QAction*>("deleteGroup")->trigger();
  EXPECT_EQ(Clients().Model().rowCount(), 1);
}

}  // namespace
}  // namespace orvex::ui
