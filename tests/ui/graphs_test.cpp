#include <gtest/gtest.h>

#include <QAction>
#include <QHelpEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QToolTip>
#include <QXmlStreamReader>

#include "chart/client_saving.h"
#include "support/pdf_text.h"
#include "support/printing.h"
#include "support/ui_desk.h"
#include "ui/base/theme.h"
#include "ui/graphs/dasha_timeline_view.h"
#include "ui/graphs/month_graph_view.h"
#include "ui/horoscope/horoscope_window.h"
#include "ui/transit/transit_grid_page.h"

namespace orvex::ui {
namespace {

class Graphs : public test::DeskTest {
 protected:
  ~Graphs() override { Theme::SetMode(ThemeMode::Light); }

  // The whole text of an SVG file; its title is checked. Fails where it is no XML.
  static QString TextOfSvg(const std::filesystem::path& file, const QString& title) {
    QXmlStreamReader xml(QByteArray::fromStdString(test::ReadFile(file)));
    QString text;
    QString found;
    while (!xml.atEnd()) {
      xml.readNext();
      if (xml.isStartElement() && xml.name() == u"title") {
        found = xml.readElementText();
      }
      text += xml.isCharacters() ? xml.text().toString() : QString();
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_EQ(found, title);
    return text;
  }

  static QString HintAt(QWidget& view, const QPointF& at) {
    QHelpEvent help(QEvent::ToolTip, at.toPoint(), view.mapToGlobal(at.toPoint()));
    QApplication::sendEvent(&view, &help);
    return QToolTip::text();
  }

  static void ExpectPrivate(const std::filesystem::path& file, const std::string& start) {
    EXPECT_TRUE(test::ReadFile(file).starts_with(start)) << file;
    EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms(0600));
  }

  HoroscopeWindow& OpenClient(const std::string& name) {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    chart::SelectCity(*session_, 1, form);
    form.CityId = 1;
    form.FullName = name;
    form.Birth = test::Moment("1990-07-05 14:30:00");
    const core::SaveResult saved = chart::SaveNewClient(*session_, form, 1);
    EXPECT_FALSE(saved.Refused);
    window_.reset(OpenHoroscope(place_, saved.Id));
    Show(*window_);
    auto& pages = Find<QListWidget>(*window_, "pages");
    pages.setFocus();
    QTest::keyClicks(&pages, "Timeline");
    EXPECT_EQ(pages.currentItem()->text(), "Timeline");
    return *window_;
  }

  static void ClickBar(DashaTimelineView& view, std::size_t level, std::size_t row) {
    const TimelineLayout layout = LayOutTimeline(view.Picture(), view.font(), view.rect());
    QTest::mouseClick(&view, Qt::LeftButton, {},
                      layout.Rows.at(level).Bars.at(row).Box.center().toPoint());
  }

  std::unique_ptr<HoroscopeWindow> window_;
};

TEST_F(Graphs, TheMonthGraphShowsTheMonthAskedForAndTellsWhatIsUnderThePointer) {
  MonthGraphView view(place_);
  view.resize(900, 600);
  view.ShowMonth(transit::UserCityView(*session_), 11, 2026);
  Show(view);
  const MonthLayout layout = LayOutMonth(view.Picture(), view.font(), view.rect());
  EXPECT_TRUE(layout.Today);
  const QString hint = HintAt(view, layout.Lines.at(0).Code.Box.center());
  EXPECT_TRUE(hint.startsWith("Sun in Scorpio (Nakshatra: Anuradha, Pada: 4)\n30 November 2026, "))
      << hint.toStdString();
  std::vector<std::size_t> chosen;
  QObject::connect(&view, &MonthGraphView::CellChosen, [&](std::size_t row, std::size_t column) {
    chosen = {row, column};
  });
  QTest::mouseClick(&view, Qt::LeftButton, {}, layout.Lines.at(6).Code.Box.center().toPoint());
  EXPECT_EQ(chosen, (std::vector<std::size_t>{29, 7}));
  view.ShowMonth(transit::UserCityView(*session_), 2, 2024);
  EXPECT_EQ(view.Picture().Days.size(), 29U);
  EXPECT_FALSE(view.Picture().Today);
  EXPECT_THROW(view.ShowMonth(transit::UserCityView(*session_), 12, 1499), std::out_of_range);
  EXPECT_EQ(view.Picture().Days.size(), 29U);
}

TEST_F(Graphs, TheGraphBesideTheGridShowsTheSameMonthAndOpensTheSameDay) {
  TransitGridPage page(place_);
  page.resize(1100, 640);
  Show(page);
  page.CreateGrid(11, 2026);
  Press(page, "showGraph");
  auto& graph = Find<MonthGraphView>(page, "monthGraph");
  EXPECT_TRUE(graph.isVisible());
  EXPECT_TRUE(graph.Picture().Today);
  Press(page, "nextMonth");
  EXPECT_EQ(graph.Picture().Days.front(), test::Moment("2026-12-01"));
  const MonthLayout layout = LayOutMonth(graph.Picture(), graph.font(), graph.rect());
  QString title;
  WhenOpen("transitDetails", [&title](QWidget& dialog) {
    title = dialog.windowTitle();
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  QTest::mouseClick(&graph, Qt::LeftButton, {}, layout.Lines.at(6).Code.Box.center().toPoint());
  EXPECT_EQ(title, "Transit Details for Saturn (31 December 2026, Thursday)");
}

TEST_F(Graphs, SavedGraphsAreLightAndPrivateWhateverTheTheme) {
  MonthGraphView view(place_);
  view.ShowMonth(transit::UserCityView(*session_), 11, 2026);
  Show(view);
  files_.Chosen = home_.Place.Folder / "light.svg";
  view.setFocus();
  QTest::keySequence(&view, QKeySequence::Save);
  Theme::SetMode(ThemeMode::Dark);
  files_.Chosen = home_.Place.Folder / "dark.svg";
  QTest::keySequence(&view, QKeySequence::Save);
  EXPECT_EQ(test::ReadFile(home_.Place.Folder / "light.svg"),
            test::ReadFile(home_.Place.Folder / "dark.svg"));
  ExpectPrivate(files_.Chosen, "<?xml");
  const QString text =
      TextOfSvg(files_.Chosen, "Planetary Transit in Dubai at 10:00, November 2026");
  for (const char* shown : {"Aries", "Pisces", "SA", "KE", "30", "Today, 24 Nov 2026"}) {
    EXPECT_TRUE(text.contains(shown)) << shown;
  }
  files_.Chosen = home_.Place.Folder / "none" / "month.svg";
  messages_.Await("the file " + files_.Chosen.string() + " could not be written");
  QTest::keySequence(&view, QKeySequence::Save);

  const std::string store = test::ReadFile(home_.Place.StoreFile());
  files_.Chosen = home_.Place.StoreFile();
  messages_.Await("The file " + files_.Chosen.string() +
                  " belongs to Orvex+ itself: the database, its copies, the report template or "
                  "the settings. Please choose another name.");
  QTest::keySequence(&view, QKeySequence::Save);
  EXPECT_EQ(test::ReadFile(files_.Chosen), store);
}

TEST_F(Graphs, AClickOnABarOpensItsPeriodAndTheKeysGoOnFromThere) {
  HoroscopeWindow& window = OpenClient("Asha Rao");
  auto& view = Find<DashaTimelineView>(window, "dashaTimeline");
  const TimelinePicture before = view.Picture();
  ClickBar(view, 0, 4);
  EXPECT_EQ(view.Picture().Levels[0].Chosen, 4U);
  const auto dates = [&](std::size_t level) {
    const std::vector<TimelinePeriod>& periods = view.Picture().Levels.at(level).Periods;
    return std::pair(periods.front().Start, periods.back().End);
  };
  const TimelinePeriod dasha = view.Picture().Levels[0].Periods[4];
  EXPECT_EQ(dates(1), std::pair(dasha.Start, dasha.End));
  ClickBar(view, 1, 3);
  EXPECT_EQ(view.Picture().Levels[1].Chosen, 3U);
  EXPECT_EQ(view.Level(), 1U);
  QTest::keyClick(&view, Qt::Key_Right);
  EXPECT_EQ(view.Picture().Levels[1].Chosen, 4U);
  const TimelinePeriod bhukti = view.Picture().Levels[1].Periods[4];
  EXPECT_EQ(dates(2), std::pair(bhukti.Start, bhukti.End));
  QTest::keyClick(&view, Qt::Key_Down);
  QTest::keyClick(&view, Qt::Key_End);
  EXPECT_EQ(view.Level(), 2U);
  EXPECT_EQ(view.Picture().Levels[2].Chosen, 8U);
  QTest::keyClick(&view, Qt::Key_Right);
  EXPECT_EQ(view.Picture().Levels[2].Chosen, 8U);
  QTest::keyClick(&view, Qt::Key_Up);
  QTest::keyClick(&view, Qt::Key_Up);
  QTest::keyClick(&view, Qt::Key_Home);
  EXPECT_EQ(view.Picture().Levels[0].Chosen, 0U);
  EXPECT_EQ(view.accessibleDescription().section('\n', 0, 0),
            "Dasha " + Shown(view.Picture().Levels[0].Periods[0].Planet));
  Press(window, "runningPeriodsButton");
  for (std::size_t level = 0; level < kTimelineLevels; ++level) {
    EXPECT_EQ(view.Picture().Levels.at(level).Chosen, before.Levels.at(level).Chosen) << level;
  }
}

TEST_F(Graphs, ATimelineSavesTheNameOfItsClientAsText) {
  HoroscopeWindow& window = OpenClient("<Asha> & \"Rao\"");
  files_.Chosen = home_.Place.Folder / "timeline.svg";
  Press(window, "saveGraphButton");
  ExpectPrivate(files_.Chosen, "<?xml");
  const QString text = TextOfSvg(files_.Chosen, "Timeline - Horoscope for <Asha> & \"Rao\"");
  for (const char* shown : {"Horoscope for <Asha> & \"Rao\"", "Birth, 5 Jul 1990", "Antaras of "}) {
    EXPECT_TRUE(text.contains(shown)) << shown;
  }
  const auto printed = home_.Place.Folder / "timeline.pdf";
  const auto seen = test::PrintWhenShown(printed);
  Press(window, "printGraphButton");
  ExpectPrivate(printed, "%PDF");
  EXPECT_EQ(seen->Layout.orientation(), QPageLayout::Landscape);
  const QString paper = test::TextOfPdf(printed);
  for (const char* shown : {"Horoscopefor<Asha>&\"Rao\"", "Birth,5Jul1990", "Antarasof"}) {
    EXPECT_TRUE(paper.contains(shown)) << shown;
  }
  auto& view = Find<DashaTimelineView>(window, "dashaTimeline");
  const TimelineLayout layout = LayOutTimeline(view.Picture(), view.font(), view.rect());
  EXPECT_TRUE(HintAt(view, layout.Rows[2].Bars[5].Box.center()).startsWith("Antara "));
  HintAt(view, layout.Rows[2].Heading.Box.center());
  EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
}

}  // namespace
}  // namespace orvex::ui
