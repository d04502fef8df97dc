#include <QAction>
#include <QContextMenuEvent>
#include <QListWidget>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>

#include "chart/client_saving.h"
#include "core/cell_colors.h"
#include "core/home.h"
#include "support/transit_windows.h"
#include "ui/base/cell_delegate.h"
#include "ui/base/moment_edit.h"
#include "ui/base/open_windows.h"
#include "ui/base/theme.h"
#include "ui/graphs/day_graph_view.h"
#include "ui/horoscope/horoscope_window.h"
#include "ui/main/main_window.h"
#include "ui/transit/hora_view.h"
#include "ui/transit/month_table.h"
#include "ui/transit/transit_details_dialog.h"

namespace orvex::ui {
namespace {

using test::TransitWindowTest;

constexpr int kMoonColumn = 2;
constexpr int kRahuColumn = 8;

TEST_F(TransitWindowTest, TheGridShowsTodayRetrogradesAndTheWayToOtherMonths) {
  const auto page = OpenGrid();
  EXPECT_EQ(page->Title(), "Planetary Transit in Dubai at 10:00");
  EXPECT_EQ(Caption(*page, "monthTitle"), "November 2026");
  const QModelIndex today = Cell(*page, "grid", 23, kMoonColumn);
  EXPECT_EQ(today.data(Qt::BackgroundRole).value<QColor>(), Theme::Background(core::kGoodColor));
  EXPECT_EQ(Find<TableView>(*page, "grid").currentIndex().row(), 23);
  const QModelIndex rahu = Cell(*page, "grid", 0, kRahuColumn);
  EXPECT_EQ(rahu.data(Qt::ForegroundRole).value<QColor>(), Theme::Red());
  EXPECT_EQ(rahu.data(Qt::ToolTipRole).toString(),
            "Rahu in Aquarius (Nakshatra: Dhanishtha, Pada: 3)");

  EXPECT_EQ(Told(*page, "nextMonth"), "December 2026 >");
  Press(*page, "nextMonth");
  EXPECT_EQ(Caption(*page, "monthTitle"), "December 2026");
  EXPECT_EQ(Told(*page, "nextMonth"), "January 2027 >");
  Find<QWidget>(*page, "grid").setFocus();
  QTest::keyClick(page.get(), Qt::Key_Greater, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Caption(*page, "monthTitle") == "January 2027"; }));
  EXPECT_EQ(Told(*page, "previousMonth"), "< December 2026");
  QTest::keyClick(&Find<QWidget>(*page, "grid"), Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(Caption(*page, "monthTitle"), "December 2026");
  EXPECT_EQ(Find<QWidget>(*page, "thisMonth").toolTip(), "Nov 2026");
  Find<TableView>(*page, "grid").setCurrentIndex(Cell(*page, "grid", 2, kMoonColumn));
  Press(*page, "thisMonth");
  EXPECT_EQ(Caption(*page, "monthTitle"), "November 2026");
  EXPECT_EQ(Find<TableView>(*page, "grid").currentIndex(), Cell(*page, "grid", 23, kMoonColumn));
}

TEST_F(TransitWindowTest, AMonthIsPickedByKeysUnderItsName) {
  const auto page = OpenGrid();
  struct Case {
    std::vector<Qt::Key> Keys;
    const char* Month;
  };
  for (const Case& each : std::vector<Case>{
           {{Qt::Key_Right, Qt::Key_Return}, "December 2026"},
           {{Qt::Key_PageDown, Qt::Key_Up, Qt::Key_Left, Qt::Key_Return}, "August 2027"},
           {{Qt::Key_Down, Qt::Key_Escape}, "August 2027"}}) {
    Press(*page, "monthTitle");
    QWidget* picker = QApplication::activePopupWidget();
    ASSERT_NE(picker, nullptr);
    for (const Qt::Key key : each.Keys) {
      QTest::keyClick(picker->focusWidget(), key);
    }
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(Caption(*page, "monthTitle"), each.Month);
  }
}

// The fonts of the program, which are narrower than those that a desktop without them falls back
// to.
class ProgramFont {
 public:
  ProgramFont() {
    QFont font("Open Sans");
    font.setPointSizeF(type::kText);
    QApplication::setFont(font);
  }
  ~ProgramFont() { QApplication::setFont(before_); }

 private:
  QFont before_ = QApplication::font();
};

TEST_F(TransitWindowTest, AllDaysStandInSightAndTheGraphHasTheSameRows) {
  const ProgramFont font;
  auto window = std::make_unique<MainWindow>(place_);
  window->resize(1280, 720);
  Show(*window);
  Press(*window, "foldSkyButton");
  Press(*window, "showTransitsButton");
  auto& page = *window->findChild<TransitGridPage*>();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !page.Title().isEmpty(); }));
  auto& grid = Find<MonthTable>(*window, "grid");
  auto& graph = Find<DayGraphView>(*window, "dayGraph");
  for (const int month : {12, 11, 2}) {
    page.CreateGrid(month, 2026);
    QCoreApplication::processEvents();
    EXPECT_FALSE(grid.verticalScrollBar()->isVisible()) << month;
    EXPECT_FALSE(grid.horizontalScrollBar()->isVisible()) << month;
    ASSERT_TRUE(graph.isVisible());
    for (int row = 0; row < grid.Model().rowCount(); ++row) {
      const QRect cell = grid.visualRect(grid.Model().index(row, 1));
      const QPoint middle = grid.viewport()->mapToGlobal(cell.center());
      const QRectF day = DayBox(graph.Layout(), static_cast<std::size_t>(row));
      EXPECT_TRUE(day.contains(QPointF(day.center().x(), graph.mapFromGlobal(middle).y())))
          << month << ", " << row;
    }
  }
  EXPECT_EQ(Text(*window, "pageTitle"), "Planetary Transit in Dubai at 10:00");
  EXPECT_FALSE(Find<QWidget>(*window, "clientCount").isVisible());
  // A line opens the day that it stands at, in the row at its side.
  QString title;
  WhenOpen("transitDetails", [&title](QWidget& dialog) {
    title = dialog.windowTitle();
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  const double moon = graph.Picture().Series.at(1).Longitudes.at(4);
  QTest::mouseClick(&graph, Qt::LeftButton, {}, graph.Layout().Scale.At(4, moon).toPoint());
  EXPECT_EQ(title, "Transit Details for Moon (5 February 2026, Thursday)");
  EXPECT_EQ(grid.currentIndex(), grid.Model().index(4, 2));
  // Where the sky needs the room, the grid is alone, and the button says why.
  Press(*window, "unfoldSkyButton");
  QCoreApplication::processEvents();
  EXPECT_FALSE(graph.isVisible());
  EXPECT_FALSE(Enabled(*window, "showBoth"));
  EXPECT_TRUE(Find<QWidget>(*window, "showBoth").toolTip().contains("F8"));
  EXPECT_TRUE(Find<QPushButton>(*window, "showTable").isChecked());
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  QTest::keyClick(window.get(), Qt::Key_F8);
  QCoreApplication::processEvents();
  EXPECT_TRUE(graph.isVisible());
  EXPECT_TRUE(Find<QPushButton>(*window, "showBoth").isChecked());
  QTest::keyClick(window.get(), Qt::Key_1, Qt::ControlModifier);
  EXPECT_TRUE(Find<QWidget>(*window, "clientCount").isVisible());
}

TEST_F(TransitWindowTest, TheMonthGoesIntoACalendarFile) {
  const auto page = OpenGrid();
  files_.Chosen = home_.Place.Folder / "month.ics";
  QSignalSpy told(page.get(), &TransitGridPage::Done);
  Press(*page, "monthCalendar");
  const std::string calendar = core::ReadTextFile(files_.Chosen);
  EXPECT_TRUE(calendar.find("SUMMARY:Sun enters Scorpio") != std::string::npos);
  ASSERT_EQ(told.count(), 1);
  EXPECT_TRUE(told.front().front().toString().endsWith("month.ics"));
}

TEST_F(TransitWindowTest, TheChangesOfTheMonthAndOfADayStandBesideTheTables) {
  const auto page = OpenGrid();
  Press(*page, "showGraph");
  Press(*page, "showChanges");
  EXPECT_FALSE(Find<QPushButton>(*page, "showGraph").isChecked());
  auto& changes = Find<TableView>(*page, "changes");
  EXPECT_TRUE(changes.isVisible());
  EXPECT_TRUE(CellText(*page, "changes", 0, 0).endsWith(" Nov 2026"));
  QStringList texts;
  for (int row = 0; row < changes.Model().rowCount(); ++row) {
    texts << CellText(*page, "changes", row, 0) + ' ' + CellText(*page, "changes", row, 3);
  }
  // Entries of the almanac of that month: the Sun's sankranti and Mercury's station.
  EXPECT_TRUE(texts.contains("16 Nov 2026 Sun enters Scorpio"));
  EXPECT_TRUE(texts.contains("13 Nov 2026 Mercury turns direct"));

  Press(*page, "nextMonth");
  EXPECT_TRUE(CellText(*page, "changes", 0, 0).endsWith(" Dec 2026"));
  Press(*page, "showTable");
  EXPECT_TRUE(Find<TableView>(*page, "grid").isVisible());

  TransitDetailsDialog details(place_, transit::Planet::Sun, test::Moment("2026-11-16 00:00:00"));
  Show(details);
  EXPECT_EQ(CellText(details, "changes", 1, 3), "Sun enters Scorpio");
  Press(details, "nextDay");
  EXPECT_EQ(CellText(details, "changes", 0, 3), "Sun enters the sub of Mars");
}

TEST_F(TransitWindowTest, TheGridEndsWithTheYears1500And2500) {
  const auto page = OpenGrid();
  GoTo(*page, "January", 1500);
  EXPECT_EQ(CellText(*page, "grid", 0, 0), "Monday 1 Jan 1500");
  EXPECT_FALSE(Enabled(*page, "previousMonth"));
  EXPECT_TRUE(Enabled(*page, "nextMonth"));
  GoTo(*page, "December", 2500);
  EXPECT_FALSE(CellText(*page, "grid", 30, kMoonColumn).trimmed().isEmpty());
  EXPECT_FALSE(Enabled(*page, "nextMonth"));
  EXPECT_TRUE(Enabled(*page, "previousMonth"));
  GoTo(*page, "February", 2024);
  EXPECT_EQ(Find<TableView>(*page, "grid").Model().rowCount(), 29);
}

TEST_F(TransitWindowTest, ACityInAnotherZoneAndAnotherTimeStayForThePage) {
  const auto page = OpenGrid();
  const QString inDubai = CellText(*page, "grid", 0, kMoonColumn);
  WhenAskedTakeMumbai();
  Press(*page, "changeCity");
  EXPECT_EQ(page->Title(), "Planetary Transit in Mumbai at 10:00");
  const QString inMumbai = CellText(*page, "grid", 0, kMoonColumn);
  EXPECT_NE(inMumbai, inDubai);
  // Ten in Dubai is half past eleven in Mumbai.
  auto& time = Find<TimeEdit>(*page, "transitTime");
  EXPECT_EQ(time.text(), "10:00");
  page->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(page.get()));
  time.setFocus(Qt::TabFocusReason);
  QTest::keyClicks(&time, "1130");
  ASSERT_TRUE(QTest::qWaitFor([&] { return page->Title().endsWith("at 11:30"); }))
      << Typed(time.text());
  EXPECT_EQ(CellText(*page, "grid", 0, kMoonColumn), inDubai);

  session_->State.UserCityName = "Elsewhere";
  page->hide();
  page->show();
  QTest::qWait(150);
  EXPECT_EQ(page->Title(), "Planetary Transit in Mumbai at 11:30");
}

TEST_F(TransitWindowTest, APlanetOfTheGridOpensItsHoursByMouseAndKey) {
  const auto page = OpenGrid();
  std::vector<QString> titles;
  const auto noteTitle = [&titles](QWidget& dialog) {
    titles.push_back(dialog.windowTitle());
    QTest::keyClick(&dialog, Qt::Key_Escape);
  };
  WhenOpen("transitDetails", noteTitle);
  ClickCell(*page, "grid", 4, kMoonColumn);
  WhenOpen("transitDetails", noteTitle);
  QTest::keyClick(&Find<TableView>(*page, "grid"), Qt::Key_Right);
  QTest::keyClick(&Find<TableView>(*page, "grid"), Qt::Key_Return);
  ClickCell(*page, "grid", 4, 0);  // a date opens nothing
  ASSERT_EQ(titles.size(), 2U);
  EXPECT_EQ(titles[0], "Transit Details for Moon (5 November 2026, Thursday)");
  EXPECT_EQ(titles[1], "Transit Details for Mercury (5 November 2026, Thursday)");
}

TEST_F(TransitWindowTest, DetailsGoFromHoursToMinutesAndFromDayToDay) {
  TransitDetailsDialog details(place_, transit::Planet::Moon, session_->Time.Today());
  Show(details);
  EXPECT_EQ(Caption(details, "previousDay"), "Monday, 23 November 2026");
  EXPECT_FALSE(Find<QWidget>(details, "today").isVisible());
  EXPECT_FALSE(Find<QWidget>(details, "backToHours").isVisible());
  EXPECT_EQ(FocusName(details), "hours");

  ClickCell(details, "hours", 14, 0);
  EXPECT_FALSE(Find<QWidget>(details, "hours").isVisible());
  EXPECT_EQ(Text(details, "hour"), "14:00");
  EXPECT_EQ(CellText(details, "minutes", 11, 0), "14:55");
  Press(details, "backToHours");
  EXPECT_TRUE(Find<QWidget>(details, "hours").isVisible());
  QTest::keyClick(&Find<QWidget>(details, "hours"), Qt::Key_Down);
  QTest::keyClick(&Find<QWidget>(details, "hours"), Qt::Key_Return);
  EXPECT_EQ(CellText(details, "minutes", 0, 0), "15:00");

  Press(details, "nextDay");
  EXPECT_TRUE(Find<QWidget>(details, "hours").isVisible());
  EXPECT_EQ(details.windowTitle(), "Transit Details for Moon (25 November 2026, Wednesday)");
  EXPECT_TRUE(Find<QWidget>(details, "today").isVisible());
  QTest::keyClick(&details, Qt::Key_Left, Qt::AltModifier);
  QTest::keyClick(&details, Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(details.windowTitle(), "Transit Details for Moon (23 November 2026, Monday)");
  Press(details, "today");
  EXPECT_EQ(Caption(details, "nextDay"), "Wednesday, 25 November 2026");
  QTest::keyClick(&details, Qt::Key_Escape);
  EXPECT_FALSE(details.isVisible());
}

TEST_F(TransitWindowTest, TheSkyOfTheDetailsIsThatOfThePickedInstant) {
  TransitDetailsDialog details(place_, transit::Planet::Sun, test::Moment("2026-11-20"));
  Show(details);
  EXPECT_EQ(Text(details, "skyTitle"), "Sky View at 10:00:00 AM");
  EXPECT_TRUE(Text(details, "skyDay").startsWith("Friday, "));
  // What rules the tithi stands for itself and tells itself at the moon's status.
  EXPECT_TRUE(Text(details, "skyGanapathiRuling").startsWith("Ruling Planet: "));
  EXPECT_EQ(Find<QLabel>(details, "skyMoon").toolTip(), Text(details, "skyGanapathiRuling"));
  EXPECT_EQ(CellText(details, "panchang", 3, 0), "Hora");
  EXPECT_EQ(details.findChild<QWidget*>("skyRulingPlanets"), nullptr);
  EXPECT_EQ(CellText(details, "skyDayHoras", 0, 0), "Venus");
  auto& picker = Find<TimeEdit>(details, "picker");
  EXPECT_EQ(picker.text(), "10:00");
  picker.setFocus(Qt::TabFocusReason);
  QTest::keyClicks(&picker, "0915");
  EXPECT_EQ(Text(details, "skyTitle"), "Sky View at 10:00:00 AM");
  QTest::keyClick(&picker, Qt::Key_Return);
  EXPECT_EQ(Text(details, "skyTitle"), "Sky View at 09:15:00 AM");
  EXPECT_TRUE(details.isVisible());
  Type(details, "picker", "25:00");
  QTest::keyClick(&picker, Qt::Key_Return);
  EXPECT_EQ(Text(details, "skyTitle"), "Sky View at 09:15:00 AM");
  Type(details, "picker", "9.15 pm");
  Press(details, "go");
  EXPECT_EQ(Text(details, "skyTitle"), "Sky View at 09:15:00 PM");
}

TEST_F(TransitWindowTest, TheHoursGoOutAsASpreadsheet) {
  TransitDetailsDialog details(place_, transit::Planet::Sun, test::Moment("2026-11-20"));
  Show(details);
  files_.Chosen = home_.Place.Folder / "hours.xlsx";
  QTimer::singleShot(0, qApp, [] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (QAction* entry : menu->actions()) {
      if (entry->text().startsWith("E&xport")) {
        entry->trigger();
      }
    }
    menu->close();
  });
  QContextMenuEvent asked(QContextMenuEvent::Keyboard, {5, 5}, {5, 5});
  QApplication::sendEvent(&Find<QWidget>(details, "hours"), &asked);
  EXPECT_TRUE(std::filesystem::exists(files_.Chosen));
}

TEST_F(TransitWindowTest, DetailsEndWithTheYears1500And2500) {
  TransitDetailsDialog first(place_, transit::Planet::Ketu, test::Moment("1500-01-01"));
  Show(first);
  EXPECT_FALSE(Enabled(first, "previousDay"));
  EXPECT_TRUE(Enabled(first, "nextDay"));
  TransitDetailsDialog last(place_, transit::Planet::Ketu, test::Moment("2500-12-31"));
  Show(last);
  EXPECT_TRUE(Enabled(last, "previousDay"));
  EXPECT_FALSE(Enabled(last, "nextDay"));
  QTest::keyClick(&last, Qt::Key_Right, Qt::AltModifier);
  EXPECT_TRUE(last.windowTitle().contains("31 December 2500"));
}

TEST_F(TransitWindowTest, TheHorasFollowTheDateAndTheCity) {
  auto view = std::make_unique<HoraView>(place_);
  Show(*view);
  EXPECT_EQ(view->windowTitle(), "Hora for Dubai");
  EXPECT_EQ(Text(*view, "horaCaption"), "Hora for Dubai");
  EXPECT_EQ(CellText(*view, "dayHoras", 0, 0), "Mars");
  EXPECT_EQ(CellText(*view, "nightHoras", 0, 0), "Saturn");
  EXPECT_EQ(CellText(*view, "dayHoras", 0, 1), "06:40 AM");
  EXPECT_EQ(Text(*view, "sunrise"), "Sunrise: 6:40 AM");
  EXPECT_EQ("Sunset: " + CellText(*view, "dayHoras", 11, 2), Text(*view, "sunset"));
  const auto runs = [&view](int row) {
    return Cell(*view, "dayHoras", row, 0).data(Qt::FontRole).value<QFont>().bold();
  };
  EXPECT_TRUE(runs(3));  // 09:22 to 10:16
  auto& cells = *qobject_cast<CellDelegate*>(Find<TableView>(*view, "dayHoras").itemDelegate());
  const auto width = [&](int row) {
    return cells.PlacedWidth(QStyleOptionViewItem(), Cell(*view, "dayHoras", row, 0));
  };
  EXPECT_GT(width(3), width(10) + 20);  // Mercury both, the one that runs with a word behind it
  home_.Clock.Set(test::Moment("2026-11-24 10:20:00"));
  view->FollowClock();
  EXPECT_FALSE(runs(3));
  EXPECT_TRUE(runs(4));
  Press(*view, "nextDay");
  EXPECT_EQ(CellText(*view, "dayHoras", 0, 0), "Mercury");
  QTest::keyClick(view.get(), Qt::Key_Left, Qt::AltModifier);
  Press(*view, "previousDay");
  EXPECT_EQ(CellText(*view, "dayHoras", 0, 0), "Moon");
  auto& date = Find<DateEdit>(*view, "horaDate");
  date.setFocus(Qt::TabFocusReason);
  QTest::keyClicks(&date, "05072026");
  EXPECT_EQ(CellText(*view, "dayHoras", 0, 0), "Sun");
  Type(*view, "horaDate", "5.7");
  EXPECT_EQ(Text(*view, "horaDateEcho"),
            "Not a date: write it as 5.7.1990, 5 jul 1990 or 1990-07-05.");
  EXPECT_EQ(CellText(*view, "dayHoras", 0, 0), "Sun");
  const QString inDubai = Text(*view, "sunrise");
  WhenAskedTakeMumbai();
  Press(*view, "changeCity");
  EXPECT_EQ(view->windowTitle(), "Hora for Mumbai");
  EXPECT_NE(Text(*view, "sunrise"), inDubai);
  Type(*view, "horaDate", "31.12.9999");
  EXPECT_FALSE(Enabled(*view, "nextDay"));
  EXPECT_EQ(Find<TableView>(*view, "dayHoras").Model().rowCount(), 12);
}

TEST_F(TransitWindowTest, WhereTheSunStaysUpThereAreNoHoras) {
  session_->State.UserCityId = 1;
  session_->StoreConnection.Execute("Update city_master set latitude = 78.2 where id = 1");
  auto view = std::make_unique<HoraView>(place_);
  Show(*view);
  Type(*view, "horaDate", "21-06-2026");
  EXPECT_EQ(Find<TableView>(*view, "dayHoras").Model().rowCount(), 0);
  EXPECT_EQ(Text(*view, "sunrise"), "");
}

TEST_F(TransitWindowTest, TheMainWindowLeadsToAllOfThem) {
  auto window = std::make_unique<MainWindow>(place_);
  Show(*window);
  const auto trigger = [&window](const char* name) {
    auto* action = window->findChild<QAction*>(name);
    ASSERT_NE(action, nullptr) << name;
    action->trigger();
    QCoreApplication::processEvents();
  };
  trigger("transitGrid");
  EXPECT_TRUE(Find<QWidget>(*window, "transitGrid").isVisible());
  Press(*window, "showClientsButton");
  bool found = false;
  WhenOpen("findTransitDialog", [&found](QWidget& dialog) {
    found = true;
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  trigger("findTransit");
  EXPECT_TRUE(found);
  trigger("hora");
  trigger("hora");
  EXPECT_EQ(window->findChildren<HoraView*>().size(), 1);
  EXPECT_TRUE(window->findChild<HoraView*>()->isVisible());
}

TEST_F(TransitWindowTest, APlanetOfNowInAHoroscopeOpensItsHoursOfToday) {
  chart::ClientForm form = chart::OpenAddClient(*session_);
  chart::SelectCity(*session_, 1, form);
  form.FullName = "Asha Rao";
  form.Birth = test::Moment("1990-07-05 14:30:00");
  HoroscopeWindow* window = OpenHoroscope(place_, chart::SaveNewClient(*session_, form, 1).Id);
  Show(*window);
  auto& pages = Find<QListWidget>(*window, "pages");
  pages.setFocus();
  QTest::keyClicks(&pages, "Transit now");
  std::vector<QString> titles;
  const auto noteTitle = [&titles](QWidget& dialog) {
    titles.push_back(dialog.windowTitle());
    QTest::keyClick(&dialog, Qt::Key_Escape);
  };
  auto& now = Find<TableView>(*window, "TransitNow");
  WhenOpen("transitDetails", noteTitle);
  ClickRow(now, 1, true);
  WhenOpen("transitDetails", noteTitle);
  QTest::keyClick(&now, Qt::Key_Return);
  const QString planet = now.Model().index(1, 0).data().toString();
  const QString title = "Transit Details for " + planet + " (24 November 2026, Tuesday)";
  EXPECT_EQ(titles, (std::vector<QString>{title, title}));
  DeleteOpenWindows();
}

}  // namespace
}  // namespace orvex::ui
