#include "ui/main/search_page.h"

#include <QAction>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "chart/client_saving.h"
#include "practice/groups.h"
#include "practice/remedies.h"
#include "support/ui_desk.h"
#include "ui/base/moment_edit.h"
#include "ui/base/open_windows.h"
#include "ui/main/main_window.h"

namespace orvex::ui {
namespace {

class SearchPageTest : public test::DeskTest {
 protected:
  SearchPageTest() {
    const std::int32_t students = practice::AddGroup(*session_, "Students").Id;
    AddClient("Asha Rao", "1990-11-24 14:30:00", "F", "work", 1);
    AddClient("Ravi Iyer", "1981-02-01 06:10:00", "M", "a house", students);
    AddClient("Meera Krishnan", "1975-08-30 21:45:00", "F", "work abroad", students);
    const auto remedy = [this](int planet, const char* problem, std::int32_t client) {
      practice::SaveNewRemedy(
          *session_, {planet, problem, "A yellow stone", test::Moment("2026-03-01")}, client);
    };
    remedy(1, "Restless sleep", 1);
    remedy(6, "Worry", 1);
    remedy(6, "Restless days", 2);
    window_ = std::make_unique<MainWindow>(place_);
    Show(*window_);
    window_->findChild<QAction*>("searchClients")->trigger();
  }
  ~SearchPageTest() override { DeleteOpenWindows(); }

  void AddClient(const std::string& name, const std::string& birth, const char* gender,
                 const char* comments, std::int32_t group) {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    chart::SelectCity(*session_, 1, form);
    form.FullName = name;
    form.Birth = test::Moment(birth);
    form.Gender = gender;
    form.Comments = comments;
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
    EXPECT_FALSE(chart::SaveNewClient(*session_, form, group).Refused);
  }

  QWidget& Page() { return Find<QWidget>(*window_, "searchPage"); }
  TableView& Results() { return Find<TableView>(Page(), "searchResults"); }
  QListWidget& Groups() { return Find<QListWidget>(Page(), "groups"); }
  QString Caption(const char* name) { return Find<QLabel>(Page(), name).text().remove(QChar('&')); }
  bool IsShown(const char* name) { return Find<QWidget>(Page(), name).isVisible(); }
  bool IsEnabled(const char* name) { return Find<QWidget>(Page(), name).isEnabled(); }
  void Choose(const char* box, const QString& text) {
    auto& widget = Find<QComboBox>(Page(), box);
    ASSERT_GE(widget.findText(text), 0) << box;
    widget.setCurrentIndex(widget.findText(text));
  }
  void SetDate(const char* field, int year, int month, int day) {
    Find<DateEdit>(Page(), field).SetDate(core::MakeDateTime({year, month, day}).value());
  }
  void Press(const char* button) { DeskTest::Press(Page(), button); }
  // A radio button is hit on its mark, at the left.
  void Mark(const char* button) {
    auto& widget = Find<QRadioButton>(Page(), button);
    QTest::mouseClick(&widget, Qt::LeftButton, {}, {8, widget.height() / 2});
  }

  // The first column of what the search finds.
  QStringList Found() {
    Press("search");
    QStringList names;
    for (int row = 0; row < Results().Model().rowCount(); ++row) {
      names << Results().Model().index(row, 0).data().toString();
    }
    return names;
  }

  std::unique_ptr<MainWindow> window_;
};

TEST_F(SearchPageTest, TheKeyLeadsToTheTextAndEnterSearches) {
  EXPECT_EQ(FocusName(*window_), "searchText");
  EXPECT_EQ(Caption("resultCaption"), "Search Result(s):");
  EXPECT_FALSE(IsEnabled("exportResults"));
  QTest::keyClicks(window_->focusWidget(), "WORK");
  QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
  EXPECT_EQ(Caption("resultCaption"),
            "Found 2 record(s). Double click on a record to View Horoscope.");
  EXPECT_TRUE(IsEnabled("exportResults"));
  ClickRow(Results(), 1, true);
  QTest::keyClick(&Results(), Qt::Key_Return);
  EXPECT_EQ(session_->State.OpenHoroscopes, (std::vector<std::int32_t>{3}));

  Type(Page(), "searchText", "it's");
  QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
  EXPECT_EQ(Caption("resultCaption"), "Found 0 record(s).");
  EXPECT_FALSE(IsEnabled("exportResults"));
}

TEST_F(SearchPageTest, ADateThatIsNotReadIsNotSearchedFor) {
  Choose("dateRange", "Between");
  Type(Page(), "dateFrom", "1.1.1900");
  Type(Page(), "dateTo", "13/13/2000");
  EXPECT_TRUE(IsShown("dateToEcho"));
  messages_.Await("There is no month 13: the day comes first.");
  Press("search");
  EXPECT_EQ(FocusName(*window_), "dateTo");
  EXPECT_EQ(Caption("resultCaption"), "Search Result(s):");
  QTest::keyClicks(window_->focusWidget(), "31122000");
  QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
  EXPECT_TRUE(Caption("resultCaption").startsWith("Found "));
}

TEST_F(SearchPageTest, EachFilterOfTheFormReachesTheSearch) {
  EXPECT_EQ(Found(), (QStringList{"Asha Rao", "Meera Krishnan", "Ravi Iyer"}));
  Choose("gender", "Female");
  EXPECT_EQ(Found(), (QStringList{"Asha Rao", "Meera Krishnan"}));
  Choose("dateRange", "After");
  SetDate("dateFrom", 1981, 1, 1);
  EXPECT_EQ(Found(), QStringList{"Asha Rao"});
  Choose("dateRange", "Before");
  EXPECT_EQ(Found(), QStringList{"Meera Krishnan"});
  Choose("gender", "Any");
  Choose("dateRange", "Between");
  SetDate("dateTo", 1981, 2, 2);
  EXPECT_EQ(Found(), QStringList{"Ravi Iyer"});
  Choose("dateRange", "Any");
  EXPECT_FALSE(IsShown("dateFrom"));
  Type(Page(), "searchName", "RA");
  QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
  EXPECT_EQ(Caption("resultCaption").section(' ', 1, 1), "3");  // Rao, Meera, Ravi
  Type(Page(), "searchName", "ra ");
  Type(Page(), "searchText", "work");
  EXPECT_EQ(Found(), (QStringList{"Asha Rao", "Meera Krishnan"}));
  Type(Page(), "searchName", "'rao");
  EXPECT_EQ(Found(), QStringList());
  Type(Page(), "searchName", " iyer");
  Find<QLineEdit>(Page(), "searchText").clear();
  EXPECT_EQ(Found(), QStringList{"Ravi Iyer"});
  Find<QLineEdit>(Page(), "searchName").clear();

  // What the store says of the second client finds it again.
  const auto stored = [this](const std::string& what) {
    return std::stoi(Stored("Select " + what + " as n from client_master where id = 2", "n"));
  };
  Find<QComboBox>(Page(), "ascendant").setCurrentIndex(stored("cast(cuspdegree1 as int) / 30 + 1"));
  EXPECT_TRUE(Found().contains("Ravi Iyer"));
  Find<QComboBox>(Page(), "ascendant").setCurrentIndex(0);
  session_->StoreConnection.Execute("Update client_planets set inretro = (clientid = 2)");
  Choose("retrograde", "Saturn");
  EXPECT_EQ(Found(), QStringList{"Ravi Iyer"});
  EXPECT_EQ(Find<QComboBox>(Page(), "retrograde").count(), 6);
}

TEST_F(SearchPageTest, OnlyTickedGroupsAreSearchedAndOneMustBe) {
  EXPECT_FALSE(Groups().isVisible());
  Mark("selectedGroups");
  EXPECT_TRUE(Groups().isVisible());
  ASSERT_EQ(Groups().count(), 2);
  EXPECT_EQ(Found().size(), 3);
  Groups().setFocus();
  QTest::keyClick(&Groups(), Qt::Key_Space);  // unticks the first, "General"
  EXPECT_EQ(Found(), (QStringList{"Meera Krishnan", "Ravi Iyer"}));
  Press("tickNone");
  messages_.Await("You need to select at least one Group from the list.");
  Press("search");
  EXPECT_EQ(FocusName(*window_), "groups");
  EXPECT_EQ(Results().Model().rowCount(), 2);  // no search was run

  WhenOpen("groupDialog", [](QWidget& dialog) {
    Type(dialog, "groupName", "Family");
    DeskTest::Press(dialog, "action");
  });
  window_->findChild<QAction*>("addGroup")->trigger();
  ASSERT_EQ(Groups().count(), 3);
  EXPECT_EQ(Groups().item(0)->text(), "Family");
  EXPECT_EQ(Groups().item(0)->checkState(), Qt::Checked);
}

TEST_F(SearchPageTest, TheModeOfRemediesHasItsOwnFiltersAndColumns) {
  EXPECT_EQ(Found().size(), 3);
  EXPECT_EQ(Results().Model().columnCount(), 11);
  EXPECT_EQ(Caption("textCaption"), "Comments:");
  EXPECT_EQ(Caption("dateCaption"), "Birth Date:");
  EXPECT_FALSE(IsShown("forPlanet"));

  Mark("findRemedies");
  EXPECT_EQ(Results().Model().rowCount(), 0);
  EXPECT_EQ(Results().Model().columnCount(), 8);
  EXPECT_GE(Results().columnWidth(6), 100);
  EXPECT_EQ(Caption("resultCaption"), "Search Result(s):");
  EXPECT_FALSE(IsEnabled("exportResults"));
  EXPECT_EQ(Caption("textCaption"), "Problem/Remedy:");
  EXPECT_EQ(Caption("dateCaption"), "Remedy Date:");

  Type(Page(), "searchText", "restless");
  EXPECT_EQ(Found(), (QStringList{"Asha Rao", "Ravi Iyer"}));
  Choose("forPlanet", "Jupiter");
  EXPECT_EQ(Found(), QStringList{"Ravi Iyer"});
  EXPECT_FALSE(IsShown("dateTo"));
  Choose("dateRange", "Between");
  EXPECT_TRUE(IsShown("dateTo"));
  SetDate("dateFrom", 2026, 3, 2);
  EXPECT_EQ(Found(), QStringList());
}

TEST_F(SearchPageTest, NothingOnThePageIsDeadWithoutSayingWhy) {
  for (const char* mode : {"findClients", "findRemedies"}) {
    Mark(mode);
    for (const char* groups : {"allGroups", "selectedGroups"}) {
      Mark(groups);
      for (const char* dates : {"Any", "After", "Between"}) {
        Choose("dateRange", dates);
        for (const QWidget* widget : Page().findChildren<QWidget*>()) {
          EXPECT_TRUE(!widget->isVisible() || widget->isEnabled() || !widget->toolTip().isEmpty())
              << Typed(widget->objectName());
        }
      }
    }
  }
}

TEST_F(SearchPageTest, TheExportWritesWhatWasFound) {
  files_.Chosen = home_.Place.Folder / "found.xlsx";
  EXPECT_EQ(Found().size(), 3);
  Press("exportResults");
  EXPECT_GT(std::filesystem::file_size(files_.Chosen), 0U);
}

TEST_F(SearchPageTest, AListIsNotExportedOverTheProgramsOwnFiles) {
  const std::string store = test::ReadFile(home_.Place.StoreFile());
  std::filesystem::create_symlink(home_.Place.StoreFile(), home_.Place.Folder / "found.xlsx");
  EXPECT_EQ(Found().size(), 3);
  for (const std::filesystem::path& own :
       {home_.Place.StoreFile(), home_.Place.Folder / "found.xlsx",
        home_.Plan().MachineSettingsFile, home_.Place.DataFolder() / "Backups" / "found.xlsx"}) {
    files_.Chosen = own;
    messages_.Await("The file " + own.string() +
                    " belongs to Orvex+ itself: the database, its copies, the report template or "
                    "the settings. Please choose another name.");
    Press("exportResults");
  }
  EXPECT_EQ(test::ReadFile(home_.Place.StoreFile()), store);
  EXPECT_FALSE(std::filesystem::exists(files_.Chosen));
}

TEST_F(SearchPageTest, TheClientListShowsTheColumnThatItIsSortedBy) {
  const QHeaderView& header = *Find<TableView>(*window_, "clientList").horizontalHeader();
  EXPECT_TRUE(header.isSortIndicatorShown());
  EXPECT_EQ(header.sortIndicatorSection(), 0);
  WhenOpen("settingsDialog", [](QWidget& dialog) {
    Find<QComboBox>(dialog, "SortByField").setCurrentText("City");
    DeskTest::Press(dialog, "action");
  });
  window_->findChild<QAction*>("settings")->trigger();
  EXPECT_EQ(header.sortIndicatorSection(), 4);
}

}  // namespace
}  // namespace orvex::ui
