#include "ui/horoscope_window_home.h"

namespace orvex::ui {
namespace {

TEST_F(HoroscopeWindowTest, OneWindowAClientIsRegisteredFromItsOpeningToItsClosing) {
  HoroscopeWindow& window = Open();
  EXPECT_EQ(session_->State.OpenHoroscopes, std::vector<std::int32_t>{client_});
  EXPECT_EQ(OpenHoroscope(place_, client_), &window);
  EXPECT_EQ(session_->State.OpenHoroscopes.size(), 1U);
  EXPECT_EQ(window.windowTitle(), "Horoscope for Asha Rao");
  EXPECT_EQ(Find<QLabel>("Date").text(), "5 July 1990 02:30 PM");
  const chart::HoroscopeCaptions captions =
      horoscope::CreateHoroscope(*session_, client_)->Model.Captions;
  EXPECT_EQ(Find<QLabel>("Sunrise").text(), Shown(captions.Sunrise + " / " + captions.Sunset));
  EXPECT_EQ(OpenHoroscope(place_, client_ + 99), nullptr);
  window.close();
  EXPECT_TRUE(session_->State.OpenHoroscopes.empty());
  QCoreApplication::sendPostedEvents(&window, QEvent::DeferredDelete);
  EXPECT_NE(window_ = OpenHoroscope(place_, client_), nullptr);
}

TEST_F(HoroscopeWindowTest, RotationShowsInTitleHeadAndTablesUntilItIsReset) {
  Open();
  const std::string first = Text("CuspTable", 0, 1);
  const std::string seventh = Text("CuspTable", 6, 1);
  MenuEntry("rotationMenu", "&7 · spouse, partner").trigger();
  EXPECT_EQ(window_->windowTitle(), "Horoscope for Asha Rao (Rotated to 7)");
  EXPECT_EQ(Text("CuspTable", 0, 1), seventh);
  EXPECT_EQ(Find<ChartView>("rashiChart").Picture().Fields[0].Sign, "1");
  QTest::keyClick(window_, Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(window_->windowTitle(), "Horoscope for Asha Rao");
  EXPECT_EQ(Text("CuspTable", 0, 1), first);
}

TEST_F(HoroscopeWindowTest, TheStyleButtonGoesRoundTheThreeStylesForThisWindowOnly) {
  Open();
  auto& chart = Find<ChartView>("rashiChart");
  std::string styles;
  for (int press = 0; press < 4; ++press) {
    styles += chart.Picture().Style;
    QTest::keyClick(window_, Qt::Key_T, Qt::ControlModifier);
  }
  EXPECT_EQ(styles, "NESN");
  EXPECT_EQ(session_->State.DefaultChartType, 'N');
}

TEST_F(HoroscopeWindowTest, TheKeysTurnThroughAllPagesAndEveryTableShowsRows) {
  Open();
  auto& pages = Find<QListWidget>("pages");
  // The captions of the groups are passed over.
  QStringList turned;
  for (int page = 0; page < 18; ++page) {
    turned << pages.currentItem()->text();
    EXPECT_TRUE(pages.currentItem()->flags().testFlag(Qt::ItemIsEnabled));
    QTest::keyClick(window_, Qt::Key_PageDown, Qt::ControlModifier);
  }
  EXPECT_EQ(turned.join(' '),
            "Chart Significators Matter Four steps Aspects To the second Periods Timeline Transits "
            "Ashtakavarga "
            "Sequences Birth star Annual chart Lo Shu Vastu Remedies Birth time Chart");
  QTest::keyClick(window_, Qt::Key_PageUp, Qt::ControlModifier);
  QTest::keyClick(window_, Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(pages.currentItem()->text(), "Birth time");
  for (const TableView* view : window_->findChildren<TableView*>()) {
    // Triggers are searched when they are asked for.
    if (view->objectName() != "RemedyTable" && view->objectName() != "lifeEvents" &&
        view->objectName() != "Triggers") {
      EXPECT_FALSE(view->Table().Rows.empty()) << view->objectName().toStdString();
    }
  }
}

TEST_F(HoroscopeWindowTest, APickedPeriodOpensTheListsBelowItAndTheSummaries) {
  Open();
  Turn("Periods");
  ClickCell("DashaList", 0, 1);
  const auto& bhuktis = Find<TableView>("BhuktiList").Table();
  EXPECT_EQ(bhuktis.Rows.front().Cells.front().Text, "Mercury");
  EXPECT_EQ(bhuktis.Rows.back().Cells.at(1).Text, Text("DashaList", 0, 3));
  ClickCell("BhuktiList", 3, 0);
  EXPECT_EQ(Text("AntaraList", 0, 0), Text("BhuktiList", 3, 0));
  EXPECT_EQ(Text("DBAPeriods", 0, 2), Text("BhuktiList", 3, 1));
  // The arrow keys go on from the row picked, not from the first one.
  QTest::keyClick(&Find<TableView>("BhuktiList"), Qt::Key_Down);
  QCoreApplication::processEvents();
  EXPECT_EQ(Text("AntaraList", 0, 0), Text("BhuktiList", 4, 0));
  EXPECT_TRUE(Find<TableView>("BhuktiList").hasFocus());
}

TEST_F(HoroscopeWindowTest, TheFilterOfTheAspectsOutlivesARotation) {
  Open();
  Turn("Aspects");
  auto& filter = Find<QComboBox>("aspectFilter");
  const auto rowsOf = [&](const char* background) {
    std::size_t rows = 0;
    for (const core::Row& row : Find<TableView>("PlanetAspectList").Table().Rows) {
      rows += row.Cells.at(core::Table::Index(chart::AspectColumn::Angle)).Background == background;
    }
    return rows;
  };
  const std::size_t good = rowsOf("CAFACB");
  const std::size_t hard = rowsOf("FACACA");
  ASSERT_GT(good, 0U);
  ASSERT_GT(hard, 0U);
  filter.setFocus();
  QTest::keyClick(&filter, Qt::Key_Down);
  EXPECT_EQ(std::pair(rowsOf("CAFACB"), rowsOf("FACACA")), std::pair(good, std::size_t{0}));
  QTest::keyClick(&filter, Qt::Key_Down);
  MenuEntry("rotationMenu", "&4 · mother").trigger();
  EXPECT_EQ(std::pair(rowsOf("CAFACB"), rowsOf("FACACA")), std::pair(std::size_t{0}, hard));
  EXPECT_EQ(filter.currentText(), "Hard aspects");
}

TEST_F(HoroscopeWindowTest, ATypedYearOfLifeRedrawsTheAnnualChartAndTheHead) {
  Open();
  Turn("Annual chart");
  auto& year = Find<QSpinBox>("yearOfLife");
  EXPECT_EQ(year.value(), 37);
  year.setFocus();
  year.selectAll();
  QTest::keyClicks(&year, "2");
  QTest::keyClick(&year, Qt::Key_Return);
  EXPECT_TRUE(Find<QLabel>("CurrentDBA").text().endsWith("Current BCP House: 2"));
  const auto& chart = Find<ChartView>("annualChart").Picture();
  for (int house = 0; house < 12; ++house) {
    std::string codes;
    for (const std::string& code : chart.Fields.at(static_cast<std::size_t>(house)).Codes) {
      codes += (codes.empty() ? "" : " ") + code;
    }
    EXPECT_EQ(codes, Text("LalKitabYear", house, 1)) << house;
  }
}

TEST_F(HoroscopeWindowTest, ADoubleClickOnAPlanetOpensItsSheet) {
  Open();
  ClickCell("PlanetTable", 2, 0, true);
  auto* sheet = window_->findChild<PlanetSheetDialog*>();
  ASSERT_NE(sheet, nullptr);
  EXPECT_EQ(sheet->windowTitle(), "Sun (Gemini)");
  EXPECT_EQ(Find<TableView>("sheetAspecting").Table().Columns.front().Caption, "Planet/House");
  EXPECT_EQ(Find<TableView>("sheetAspectedBy").Table().Columns.front().Caption, "Planet");
  QTest::keyClick(sheet, Qt::Key_Escape);
  QCoreApplication::sendPostedEvents(sheet, QEvent::DeferredDelete);

  // In the chart too, where the code carries marks.
  auto& chart = Find<ChartView>("rashiChart");
  QPoint found;
  for (int x = 0; x < chart.width() && found.isNull(); x += 4) {
    for (int y = 0; y < chart.height() && found.isNull(); y += 4) {
      found = chart.CodeAt({double(x), double(y)}) == "SA~" ? QPoint(x, y) : QPoint();
    }
  }
  QTest::mouseDClick(&chart, Qt::LeftButton, {}, found);
  sheet = window_->findChild<PlanetSheetDialog*>();
  ASSERT_NE(sheet, nullptr);
  EXPECT_EQ(sheet->windowTitle(), "Saturn (Sagittarius)");
}

TEST_F(HoroscopeWindowTest, AClickOnARowOrAChipChoosesThatPlanetAndASecondOneTakesItOff) {
  Open();
  ClickCell("PlanetTable", 1, 1);  // beside the chips of its row
  EXPECT_EQ(window_->ChosenPlanet(), "VE");
  ClickCell("PlanetTable", 1, 1);
  EXPECT_EQ(window_->ChosenPlanet(), "");
  auto& cusps = Find<TableView>("CuspTable");
  const QRect cell = cusps.visualRect(cusps.Model().index(0, 3));
  const QPoint chip(cell.left() + 18, cell.center().y());  // the star lord of the ascendant
  QTest::mouseClick(cusps.viewport(), Qt::LeftButton, {}, chip);
  EXPECT_EQ(window_->ChosenPlanet(), "RA");
}

TEST_F(HoroscopeWindowTest, ThePlanOfPadsShowsItsSectorsAndTheDeitiesThatAreStruck) {
  Open();
  Turn("Vastu");
  const auto& north = Find<QTableWidget>("vastuNorth");
  const auto& south = Find<QTableWidget>("vastuSouth");
  EXPECT_EQ(north.item(0, 0)->text() + north.item(1, 0)->text(), "NWN1");
  EXPECT_EQ(north.columnSpan(0, 1), 2);
  EXPECT_EQ(south.item(3, 0)->text() + south.item(2, 0)->text(), "SWS8");
  EXPECT_EQ(Find<QTableWidget>("vastuEast").item(0, 2)->text(), "E1");
  EXPECT_EQ(Find<QTableWidget>("vastuWest").item(7, 1)->text(), "W1");
  EXPECT_EQ(north.item(1, 4)->toolTip(), "0 to 11.25 degrees");
  const core::Cell& outer = horoscope::CreateHoroscope(*session_, client_)
                                ->Model.VastuPads.At(0, vedic::PadColumn::Outer);
  EXPECT_EQ(north.item(2, 0)->text(), Shown(outer.Text));
  EXPECT_EQ(north.item(2, 0)->foreground().color() == Theme::Red(), outer.Foreground == "FF0000");
}

TEST_F(HoroscopeWindowTest, RecalculationRefusesWithTheFieldInFocusAndChangesNothingStored) {
  Open();
  Turn("Birth time");
  const std::string ascendant = Text("workCusps", 0, 1);
  const struct {
    const char* Field;
    const char* Typed;
    const char* Message;
  } cases[] = {
      {"offset", "x", "Please enter a numeric value."},
      {"offset", "27.5", "Incorrect Offset Value entered."},
      {"latitude", " ", "Latitude is a mandatory field."},
      {"longitude", "east", "Longitude is a numeric field."},
  };
  for (const auto& refused : cases) {
    auto& field = Find<QLineEdit>(refused.Field);
    const QString before = field.text();
    field.selectAll();
    QTest::keyClicks(&field, refused.Typed);
    QTest::mouseClick(&Find<QPushButton>("recalculate"), Qt::LeftButton);
    EXPECT_EQ(home_.Messages.All().back().Text, refused.Message);
    EXPECT_EQ(window_->focusWidget(), &field) << refused.Message;
    EXPECT_EQ(Text("workCusps", 0, 1), ascendant);
    field.setText(before);
  }
  QTest::mouseClick(&Find<QPushButton>("later"), Qt::LeftButton);
  EXPECT_EQ(Find<QLabel>("movedBirth").text(), "5 July 1990 02:31:00 PM");
  EXPECT_NE(Text("workCusps", 0, 1), ascendant);
  EXPECT_EQ(Find<TableView>("workCusps").Table().Rows[0].Cells[1].Background, "FEFA85");
  auto& unit = Find<QComboBox>("stepUnit");
  unit.setFocus();
  for (const char* moved : {"5 July 1990 03:31:00 PM", "6 July 1990 03:31:00 PM"}) {
    QTest::keyClick(&unit, Qt::Key_Down);
    QTest::mouseClick(&Find<QPushButton>("later"), Qt::LeftButton);
    EXPECT_EQ(Find<QLabel>("movedBirth").text(), moved);
  }
  QTest::mouseClick(&Find<QPushButton>("backToBirth"), Qt::LeftButton);
  EXPECT_EQ(Text("workCusps", 0, 1), ascendant);
  EXPECT_EQ(horoscope::CreateHoroscope(*session_, client_)->Model.CuspDegree1, "194.67");
}

TEST_F(HoroscopeWindowTest, RemediesAreAddedChangedAndDeleted) {
  Open();
  Turn("Remedies");
  EXPECT_FALSE(Find<QPushButton>("editRemedy").isEnabled());
  WhenOpen("remedyDialog", [](QDialog& dialog) {
    QTest::keyClicks(dialog.findChild<QPlainTextEdit*>("problem"), "No \"work\" & 'rest'");
    QTest::keyClicks(dialog.findChild<QPlainTextEdit*>("remedy"), "Yellow");
    QTest::mouseClick(dialog.findChild<QPushButton*>("action"), Qt::LeftButton);
  });
  QTest::mouseClick(&Find<QPushButton>("addRemedy"), Qt::LeftButton);
  EXPECT_EQ(Text("RemedyTable", 0, 0), "No \"work\" & 'rest'");
  WhenOpen("remedyDialog", [](QDialog& dialog) {
    QTest::keyClicks(dialog.findChild<QPlainTextEdit*>("remedy"), "Blue ");
    QTest::mouseClick(dialog.findChild<QPushButton*>("action"), Qt::LeftButton);
  });
  QTest::mouseClick(&Find<QPushButton>("editRemedy"), Qt::LeftButton);
  EXPECT_EQ(Text("RemedyTable", 0, 1), "Blue Yellow");
  QTest::mouseClick(&Find<QPushButton>("deleteRemedy"), Qt::LeftButton);
  EXPECT_EQ(home_.Messages.All().back().Buttons, core::MessageButtons::YesNo);
  EXPECT_EQ(home_.Messages.All().back().Text,
            "Are you sure you want to delete the selected Remedy?\n\nAsha Rao");
  EXPECT_EQ(Find<TableView>("RemedyTable").Table().Rows.size(), 1U) << "the question was denied";
}

TEST_F(HoroscopeWindowTest, ExportWritesTheReportOfWhatIsShown) {
  std::filesystem::copy_file(test::DataFolder() / "HoroscopeTemplate.htm",
                             home_.Place.ReportTemplate());
  Open();
  MenuEntry("rotationMenu", "&7 · spouse, partner").trigger();
  const auto write = [this] {
    const auto& line = Find<QLabel>("jobText");
    MenuEntry("exportMenu", "Report: Dasha, Bhukti and Antara").trigger();
    EXPECT_TRUE(QTest::qWaitFor([&line] { return line.text() == "Report of Asha Rao: written"; }));
    QTest::mouseClick(&Find<QToolButton>("openJob"), Qt::LeftButton);
  };
  write();
  ASSERT_EQ(files_.Opened.size(), 1U);
  EXPECT_NE(test::ReadFile(files_.Opened[0]).find("Asha Rao (Rotated to 7)"), std::string::npos);

  // The charts of the report are drawn as they are shown.
  const auto pictures = [this] {
    std::string bytes;
    for (const auto& file : std::filesystem::directory_iterator(files_.Opened[0].parent_path())) {
      bytes += file.path().extension() == ".bmp" ? test::ReadFile(file.path()) : "";
    }
    return bytes;
  };
  const std::string north = pictures();
  EXPECT_FALSE(north.empty());
  QTest::keyClick(window_, Qt::Key_T, Qt::ControlModifier);
  write();
  EXPECT_NE(pictures(), north);
}

TEST_F(HoroscopeWindowTest, ATableGoesToASpreadsheetThatItsOwnerAloneReads) {
  Open();
  files_.Chosen = home_.Place.Folder / "planets.xlsx";
  TableView& planets = Find<TableView>("PlanetTable");
  QTimer::singleShot(0, [this] {
    auto* open = Find<TableView>("PlanetTable").findChild<QMenu*>("tableMenu");
    QAction* exporting = open->actions().constLast();
    QTest::mouseClick(open, Qt::LeftButton, {}, open->actionGeometry(exporting).center());
  });
  QContextMenuEvent menu(QContextMenuEvent::Keyboard, QPoint(4, 4), QPoint(4, 4));
  QApplication::sendEvent(&planets, &menu);
  EXPECT_EQ(files_.Opened, std::vector{files_.Chosen});
  EXPECT_EQ(test::ReadFile(files_.Chosen).substr(0, 2), "PK");
  EXPECT_EQ(std::filesystem::status(files_.Chosen).permissions(),
            std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST_F(HoroscopeWindowTest, TheRulingPlanetsAreThoseOfBirthUntilThoseOfNowAreAskedFor) {
  Open();
  const auto dayLord = [this] {
    return Text("RulingPlanets", 6, 0) + " " + Text("RulingPlanets", 6, 1);
  };
  EXPECT_EQ(dayLord(), "Day Lord Jupiter") << "born on a Thursday";
  QTest::mouseClick(&Find<QPushButton>("rulingOfNow"), Qt::LeftButton);
  EXPECT_EQ(dayLord(), "Day Lord Mars") << "today is a Tuesday";
  EXPECT_EQ(Find<TableView>("RulingPlanets").Model().rowCount(), 7) << "no Part of Fortune";
  QTest::mouseClick(&Find<QPushButton>("rulingOfBirth"), Qt::LeftButton);
  EXPECT_EQ(dayLord(), "Day Lord Jupiter");
}

TEST_F(HoroscopeWindowTest, TheDivisionsStandBesideTheWindowAndCloseOnEscape) {
  Open();
  QTest::keyClick(window_, Qt::Key_D, Qt::ControlModifier);
  auto& dialog = Find<QDialog>("divisionalCharts");
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_FALSE(dialog.isModal());
  const auto ascendant = [&] {
    return dialog.findChild<ChartView*>("dashamsha")->Picture().Fields[0].Sign;
  };
  const std::string before = ascendant();
  MenuEntry("rotationMenu", "&4 · mother").trigger();
  EXPECT_EQ(ascendant(), before) << "the divisions are those of the birth";
  QTest::keyClick(window_, Qt::Key_T, Qt::ControlModifier);
  EXPECT_EQ(dialog.findChild<ChartView*>("dashamsha")->Picture().Style, 'E');
  QTest::keyClick(&dialog, Qt::Key_Escape);
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(HoroscopeWindowTest, AQueryHidesTheRectificationAndShowsItsQuestion) {
  chart::ClientForm form = *chart::OpenEditClient(*session_, client_);
  form.Horary = true;
  form.HoraryNumber = "100";
  form.HoraryQuestion = "When?";
  ASSERT_FALSE(chart::SaveClientChanges(*session_, form, client_).Refused);
  Open();
  EXPECT_FALSE(Find<QAction>("rectify").isVisible());
  EXPECT_EQ(Find<QLabel>("HoraryQuestion").text(), "When?");
  EXPECT_TRUE(Find<QLabel>("Date").text().endsWith(" # 100"));
}

TEST_F(HoroscopeWindowTest, ThePageIsRememberedAndTablesAreCopied) {
  Open();
  Turn("Lo Shu");
  window_->close();
  QCoreApplication::sendPostedEvents(window_, QEvent::DeferredDelete);
  Open();
  EXPECT_EQ(Find<QListWidget>("pages").currentItem()->text(), "Lo Shu");
  QTest::keyClick(&Find<TableView>("LoShuPlanes"), Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(QApplication::clipboard()->text().startsWith("Seq\tPlane\tDescription\n492\tMental"));
}

}  // namespace
}  // namespace orvex::ui

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  QApplication application(argc, argv);
  orvex::ui::Theme::Apply(application);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
