// The page "Matter" under real clicks and keys.
#include "ui/matter_page_home.h"

namespace orvex::ui {
namespace {

using judgement::RankedColumn;

TEST_F(MatterPageTest, AMatterIsChosenByTypingAPieceOfItsName) {
  QWidget& window = Open();
  EXPECT_EQ(PageName(window), "Matter");
  EXPECT_EQ(Group(window), "House group 7 | 2 11 | 1 6 10") << "the first one of the list";
  const struct {
    const char* Typed;
    const char* Group;
  } cases[] = {{"serv", "House group 10 | 2 6 11 | 1 5 9 12"},
               {"abroad", "House group 12 | 3 9 | 2 4 11"},
               {"qqq", "House group 12 | 3 9 | 2 4 11"},  // none: the one before stays
               {"CHILD", "House group 5 | 2 11 | 1 4 10"},
               {"", "House group 5 | 2 11 | 1 4 10"}};
  for (const auto& example : cases) {
    TypeMatter(window, example.Typed);
    EXPECT_EQ(Group(window), example.Group) << example.Typed;
  }
  const judgement::Judgement judged = Judged("Child", judgement::NowAtUserCity(*session_));
  EXPECT_EQ(Lines(Shown(window, "MatterChain")), Lines(judged.MatterChain));
  EXPECT_EQ(Lines(Shown(window, "MatterCusps")), Lines(judged.MatterCusps));
  EXPECT_EQ(Lines(Shown(window, "HouseGrades")), Lines(judged.HouseGrades));
  ASSERT_EQ(Shown(window, "MatterPeriods").Rows.size(), judged.MatterPeriods.Rows.size());
  EXPECT_EQ(Shown(window, "MatterPeriods").At(3, RankedColumn::From).Text,
            judged.MatterPeriods.At(3, judgement::MatterPeriodColumn::From).Text);
  // The next horoscope begins with the same matter.
  EXPECT_EQ(Group(Open(AddClient("1985-01-02 03:04:00"))), "House group 5 | 2 11 | 1 4 10");
}

TEST_F(MatterPageTest, NothingOfThePageNeedsABarButTheListOfThePeriods) {
  QWidget& window = Open();
  for (const QSize size : {QSize(1280, 720), QSize(1366, 768), QSize(1920, 1080)}) {
    window.resize(size);
    for (const core::Row& matter : judgement::LoadMatters(*session_).Rows) {
      TypeMatter(window, ui::Shown(matter.Cells.front().Text));
      ASSERT_EQ(window.size(), size);
      const std::string where = matter.Cells.front().Text + " at " + std::to_string(size.width());
      for (const char* name : {"MatterChain", "MatterCusps", "HouseGrades", "MatterPlanets"}) {
        const auto& view = Find<TableView>(window, name);
        EXPECT_TRUE(view.isVisible()) << name << " of " << where;
        EXPECT_EQ(view.verticalScrollBar()->maximum(), 0) << name << " of " << where;
        EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0) << name << " of " << where;
      }
      const auto& sentence = Find<QLabel>(window, "matterSentence");
      EXPECT_GE(sentence.height(), sentence.heightForWidth(sentence.width())) << where;
      auto& periods = Find<TableView>(window, "MatterPeriods");
      EXPECT_EQ(periods.horizontalScrollBar()->maximum(), 0) << where;
      EXPECT_GE(periods.viewport()->height(), 4 * periods.rowHeight(0)) << where;
    }
  }
  // As small as it goes a part at a time, and the buttons turn to the others.
  window.resize(960, 540);
  QCoreApplication::processEvents();
  const struct {
    const char* Button;
    const char* Table;
  } parts[] = {{"showPeriods", "MatterPeriods"},
               {"showTests", "MatterPlanets"},
               {"showGrades", "HouseGrades"},
               {"showPromise", "MatterChain"}};
  for (const auto& part : parts) {
    Press(window, part.Button);
    for (const auto& other : parts) {
      EXPECT_EQ(Find<TableView>(window, other.Table).isVisible(), other.Table == part.Table)
          << part.Button << " " << other.Table;
    }
    EXPECT_EQ(Find<TableView>(window, part.Table).horizontalScrollBar()->maximum(), 0);
  }
}

TEST_F(MatterPageTest, EnterAndADoubleClickOpenThePathOfAPeriodOnThePageOfPeriods) {
  QWidget& window = Open();
  for (const bool byKey : {true, false}) {
    QTest::keyClick(&window, Qt::Key_M, Qt::ControlModifier);
    auto& list = Find<TableView>(window, "MatterPeriods");
    const int row = byKey ? 2 : 5;
    const core::Row period = list.Table().Rows.at(static_cast<std::size_t>(row));
    ClickRow(list, row, !byKey);
    if (byKey) {
      QTest::keyClick(&list, Qt::Key_Return);
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(PageName(window), "Periods");
    EXPECT_EQ(SelectedLord(window, "DashaList"), period.Cells[1].Text);
    EXPECT_EQ(SelectedLord(window, "BhuktiList"), period.Cells[2].Text);
    EXPECT_EQ(SelectedLord(window, "AntaraList"), period.Cells[3].Text);
    for (const core::Row& antara : Shown(window, "AntaraList").Rows) {
      if (antara.Selected) {
        EXPECT_EQ(antara.Cells[1].Text, period.Cells[5].Text) << "the end of the period";
      }
    }
  }
}

TEST_F(MatterPageTest, TheStripChoosesTheRowOfThePeriodUnderTheClick) {
  QWidget& window = Open();
  auto& strip = Find<PeriodStrip>(window, "periodStrip");
  auto& list = Find<TableView>(window, "MatterPeriods");
  const QPoint middle(strip.width() / 2, strip.height() / 2);
  const int row = strip.PeriodAt(middle);
  ASSERT_GE(row, 0);
  QTest::mouseClick(&strip, Qt::LeftButton, {}, middle);
  EXPECT_EQ(list.ChosenRow(), row);
  EXPECT_TRUE(list.hasFocus());
  EXPECT_TRUE(list.viewport()->rect().intersects(list.visualRect(list.Model().index(row, 0))));
}

TEST_F(MatterPageTest, PeriodsAreFilteredByYearsDatesAndAges) {
  QWidget& window = Open();
  const auto note = [&] { return Note(window, "MatterPeriods"); };
  const auto type = [&](const char* field, const char* text) {
    Type(window, field, text);
    QTest::keyClick(&Find<QWidget>(window, field), Qt::Key_Return);
    QCoreApplication::processEvents();
  };
  const auto firsts = [&] {
    std::set<std::string> days;
    for (const core::Row& row : Shown(window, "MatterPeriods").Rows) {
      days.insert(row.Tag);
    }
    return days;
  };
  EXPECT_TRUE(note().contains("from 24 Nov 2026 to 24 Nov 2036")) << Typed(note());
  auto& spans = Find<QComboBox>(window, "periodSpan");
  spans.setFocus();
  QTest::keyClick(&spans, Qt::Key_Down);
  EXPECT_EQ(spans.currentText(), "Whole life");
  EXPECT_GT(Shown(window, "MatterPeriods").Rows.size(), 600U);

  type("periodsTo", "1.3.1999");
  type("periodsFrom", "1.1.1998");
  EXPECT_EQ(spans.currentText(), "As typed");
  EXPECT_TRUE(note().contains("from 1 Jan 1998 to 1 Mar 1999")) << Typed(note());
  for (const std::string& day : firsts()) {
    EXPECT_LT(day, "1999-03-01");
    EXPECT_GT(day, "1997-01-01");
  }
  type("periodAges", "25-26");
  EXPECT_TRUE(note().contains("from 5 Jul 2015 to 5 Jul 2017")) << Typed(note());
  const auto ofAges = firsts();

  const struct {
    const char* Field;
    const char* Typed;
    const char* Refused;
  } refusals[] = {{"periodAges", "26-25", "Ages are written as 27 or 25-30."},
                  {"periodsTo", "1.1.1950", "The second date does not lie after the first."}};
  for (const auto& refusal : refusals) {
    type(refusal.Field, refusal.Typed);
    EXPECT_EQ(note(), refusal.Refused);
    EXPECT_EQ(firsts(), ofAges) << "what was shown stays";
  }
}

TEST_F(MatterPageTest, AClientWhosePeriodsAreOverIsShownTheWholeLife) {
  client_ = AddClient("1879-03-14 11:30:00");
  QWidget& window = Open();
  EXPECT_EQ(Find<QComboBox>(window, "periodSpan").currentText(), "Whole life");
  EXPECT_GT(Shown(window, "MatterPeriods").Rows.size(), 600U);
}

TEST_F(MatterPageTest, TheMomentOfJudgementIsNowUntilItIsKept) {
  QWidget& window = Open();
  const auto note = [&] { return Note(window, "MatterPlanets"); };
  const auto comeBack = [&] {
    QTest::keyClick(&window, Qt::Key_PageUp, Qt::ControlModifier);
    QTest::keyClick(&window, Qt::Key_0, Qt::ControlModifier);  // shows the model anew
    QTest::keyClick(&window, Qt::Key_M, Qt::ControlModifier);
  };
  EXPECT_EQ(note(), "24 Nov 2026 10:00 AM, Dubai");
  home_.Clock.Set(test::Moment("2026-11-24 13:20:00"));
  comeBack();
  EXPECT_EQ(note(), "24 Nov 2026 01:20 PM, Dubai");
  Press(window, "keepMoment");
  const judgement::MomentOfJudgement kept = judgement::NowAtUserCity(*session_);
  home_.Clock.Set(test::Moment("2026-11-26 09:00:00"));
  comeBack();
  EXPECT_EQ(note(), "kept: 24 Nov 2026 01:20 PM, Dubai");
  const std::vector<std::string> rulers = Lines(Judged("Marriage", kept).MatterPlanets);
  const auto& planets = Shown(window, "MatterPlanets");
  for (std::size_t row = 0; row < planets.Rows.size(); ++row) {
    EXPECT_TRUE(rulers[row].find("|" + planets.Rows[row].Cells[4].Text + "|") != std::string::npos);
  }
  window.close();
  QCoreApplication::sendPostedEvents(&window, QEvent::DeferredDelete);
  QWidget& again = Open();
  EXPECT_EQ(Note(again, "MatterPlanets"), "kept: 24 Nov 2026 01:20 PM, Dubai");
  Press(again, "judgedAtBirth");
  EXPECT_EQ(Note(again, "MatterPlanets"), "5 Jul 1990 02:30 PM, Mumbai");
  EXPECT_FALSE(Find<QWidget>(again, "keepMoment").isVisible());
  Press(again, "judgedNow");
  Press(again, "keepMoment");
  EXPECT_EQ(Note(again, "MatterPlanets"), "26 Nov 2026 09:00 AM, Dubai");
}

TEST_F(MatterPageTest, AQueryIsJudgedAtTheMomentInWhichItWasPut) {
  QWidget& window = Open(AddClient("2026-11-20 09:15:00", "108"));
  EXPECT_TRUE(Find<QPushButton>(window, "judgedAtBirth").isChecked());
  EXPECT_EQ(Find<QPushButton>(window, "judgedAtBirth").text(), "At query");
  EXPECT_EQ(Note(window, "MatterPlanets"), "20 Nov 2026 09:15 AM, Mumbai");
}

TEST_F(MatterPageTest, TheRankedPeriodsGoIntoACalendarThatItsOwnerAloneReads) {
  QWidget& window = Open();
  files_.Chosen = home_.Place.Folder / "marriage.ics";
  Press(window, "periodsToCalendar");
  const std::string text = test::ReadFile(files_.Chosen);
  std::size_t events = 0;
  for (std::size_t at = text.find("BEGIN:VEVENT"); at != std::string::npos;
       at = text.find("BEGIN:VEVENT", at + 1)) {
    ++events;
  }
  EXPECT_EQ(events, Shown(window, "MatterPeriods").Rows.size());
  EXPECT_EQ(std::filesystem::status(files_.Chosen).permissions(),
            std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
  EXPECT_TRUE(Find<QLabel>(window, "statusText").text().contains("marriage.ics"));

  files_.Chosen = home_.Place.StoreFile();
  const std::string before = test::ReadFile(files_.Chosen);
  std::string refused;
  messages_.AnswerOthers([&](const std::string& message) {
    refused = message;
    return core::MessageAnswer::Ok;
  });
  Press(window, "periodsToCalendar");
  EXPECT_FALSE(refused.empty());
  EXPECT_EQ(test::ReadFile(files_.Chosen), before);
}

TEST_F(MatterPageTest, TheTriggersOfTheChosenPeriodStandBesideTheList) {
  QWidget& window = Open();
  Press(window, "showTriggers");
  auto& list = Find<TableView>(window, "MatterPeriods");
  ClickRow(list, 1);
  const auto& cells = list.Table().Rows.at(1).Cells;
  judgement::TriggerSearch search;
  search.Bodies = {exact::Point::Sun, exact::Point::Moon};
  search.Offset = std::chrono::hours(4);
  search.From = test::Moment(cells[4].SortKey) - search.Offset;
  search.To = test::Moment(cells[5].SortKey) - search.Offset;
  search.Natal = judgement::NatalCusps(horoscope::CreateHoroscope(*session_, client_)->Birth);
  search.Lords = judgement::FruitfulPlanets(
      Judged("Marriage", judgement::NowAtUserCity(*session_)).MatterPlanets);
  const core::Table wanted = judgement::BuildTriggers(*session_, search);
  QTRY_VERIFY(!Find<QWidget>(window, "cancelTriggers").isVisible());
  EXPECT_EQ(Lines(Shown(window, "Triggers")), Lines(wanted));
  EXPECT_TRUE(list.isVisible());

  // A long search is given up by its button, and the window stays alive.
  Find<QComboBox>(window, "periodSpan").setFocus();
  Press(window, "triggerAscendant");
  QTRY_VERIFY(Find<QWidget>(window, "cancelTriggers").isVisible());
  Press(window, "cancelTriggers");
  EXPECT_FALSE(Find<QWidget>(window, "cancelTriggers").isVisible());
  EXPECT_EQ(Note(window, "Triggers"), "given up, not all is listed");
  Press(window, "triggerAscendant");
  QTRY_VERIFY(!Find<QWidget>(window, "cancelTriggers").isVisible());
  EXPECT_EQ(Lines(Shown(window, "Triggers")), Lines(wanted));
}

TEST_F(MatterPageTest, TheHouseGroupsAreChangedFromThePageAndTheChangeIsJudgedAtOnce) {
  QWidget& window = Open();
  WhenOpen("mattersDialog", [](QWidget& dialog) {
    WhenOpen("matterDialog", [](QWidget& form) {
      Type(form, "matterName", "Pilgrimage");
      Type(form, "mainCusp", "9");
      Type(form, "supporting", "12 3");
      Type(form, "denying", "2, 8");
      Press(form, "action");
    });
    Press(dialog, "addMatter");
    EXPECT_EQ(Find<TableView>(dialog, "matterList").Model().rowCount(), 16);
    Press(dialog, "close");
  });
  Press(window, "editGroups");
  EXPECT_EQ(Group(window), "House group 9 | 3 12 | 2 8");
  EXPECT_EQ(Find<QComboBox>(window, "matterName").currentText(), "Pilgrimage");
  EXPECT_EQ(Shown(window, "HouseGrades").Rows.size(), 5U);

  messages_.Await(
      "Are you sure you want to delete the selected Matter?\n\nPilgrimage, 9 | 3 12 | 2 8",
      core::MessageAnswer::Yes);
  WhenOpen("mattersDialog", [](QWidget& dialog) {
    auto& list = Find<TableView>(dialog, "matterList");
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    EXPECT_TRUE(list.hasFocus());
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(list.Model().rowCount(), 15);
    Press(dialog, "close");
  });
  Press(window, "editGroups");
  EXPECT_EQ(Group(window), "House group 7 | 2 11 | 1 6 10");
}

TEST_F(MatterPageTest, RefusalsOfAMatterLeadToTheirFieldAndStoreNothing) {
  const struct {
    const char* Field;
    const char* Typed;
    const char* Message;
  } cases[] = {
      {"matterName", "", "Matter Name is a mandatory field."},
      {"matterName", "marriage", "The Matter 'marriage' already exists in the database."},
      {"mainCusp", "13", "Main Cusp takes one house from 1 to 12."},
      {"supporting", "2 2",
       "Supporting takes houses from 1 to 12, each once, with blanks between them."},
      {"denying", "3", "House 3 stands in two lists of the Matter."},
  };
  for (const auto& refused : cases) {
    messages_.Await(refused.Message);
  }
  QWidget& window = Open();
  WhenOpen("mattersDialog", [&cases](QWidget& dialog) {
    WhenOpen("matterDialog", [&cases](QWidget& form) {
      for (const auto& refused : cases) {
        Type(form, "matterName", "Pilgrimage");
        Type(form, "mainCusp", "9");
        Type(form, "supporting", "3 12");
        Type(form, "denying", "2 8");
        Type(form, refused.Field, refused.Typed);
        if (std::string(refused.Typed).empty()) {
          QTest::keyClick(&Find<QWidget>(form, refused.Field), Qt::Key_Delete);
        }
        Press(form, "action");
        EXPECT_EQ(FocusName(form), refused.Field) << refused.Message;
      }
      Press(form, "cancel");
    });
    Press(dialog, "addMatter");
    EXPECT_EQ(Find<TableView>(dialog, "matterList").Model().rowCount(), 15);
    Press(dialog, "close");
  });
  Press(window, "editGroups");
}

TEST_F(MatterPageTest, ADateOnThePageOfPeriodsChoosesItsPath) {
  HoroscopeWindow& window = Open();
  window.Turn("dasha");
  const struct {
    const char* Typed;
    const char* Path;
  } cases[] = {{"5.9.2031", "2031-09-05"},
               {"5 Sep 1999", "1999-09-05"},
               {"2040-01-02", "2040-01-02"},
               {"31.2.2040", "2040-01-02"},  // no date: nothing changes
               {"1.1.2300", "2040-01-02"}};  // beyond the periods
  const auto opened = horoscope::CreateHoroscope(*session_, client_);
  for (const auto& example : cases) {
    Type(window, "goToDate", example.Typed);
    QTest::keyClick(&Find<QWidget>(window, "goToDate"), Qt::Key_Return);
    QCoreApplication::processEvents();
    const auto lords =
        chart::LordsRunningOn(session_->Reference, opened->Model, test::Moment(example.Path));
    ASSERT_TRUE(lords);
    EXPECT_EQ(SelectedLord(window, "DashaList"), (*lords)[0]) << example.Typed;
    EXPECT_EQ(SelectedLord(window, "BhuktiList"), (*lords)[1]) << example.Typed;
    EXPECT_EQ(SelectedLord(window, "AntaraList"), (*lords)[2]) << example.Typed;
  }
  QTest::keyClick(&window, Qt::Key_J, Qt::ControlModifier);
  QCoreApplication::processEvents();
  const auto today =
      chart::LordsRunningOn(session_->Reference, opened->Model, test::Moment("2026-11-24"));
  EXPECT_EQ(SelectedLord(window, "AntaraList"), (*today)[2]);
}

TEST_F(MatterPageTest, ADigitInTheMenuOfRotationTurnsTheHoroscopeAndThePageWithIt) {
  HoroscopeWindow& window = Open();
  const auto before = Lines(Shown(window, "MatterChain"));
  auto& menu = Find<QMenu>(window, "rotationMenu");
  menu.popup(window.mapToGlobal(QPoint(100, 100)));
  QTest::keyClick(&menu, Qt::Key_3);
  QCoreApplication::processEvents();
  EXPECT_EQ(window.windowTitle(), "Horoscope for Asha Rao (Rotated to 3)");
  EXPECT_NE(Lines(Shown(window, "MatterChain")), before);
  for (const QAction* action : menu.actions()) {
    EXPECT_EQ(action->isChecked(), action->text() == "&3 · younger brothers and sisters")
        << Typed(action->text());
  }
}

}  // namespace
}  // namespace orvex::ui
