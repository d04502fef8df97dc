// What the window of a horoscope prints and exports.
#include <QProgressBar>
#include <QToolButton>

#include "support/pdf_text.h"
#include "support/printing.h"
#include "support/shown_rows.h"
#include "ui/base/print_page.h"
#include "ui/base/shown_page.h"
#include "ui/horoscope_window_home.h"

namespace orvex::ui {
namespace {

namespace fs = std::filesystem;
using test::ExpectRows;
using test::RowText;

class HoroscopePrint : public HoroscopeWindowTest {
 protected:
  ~HoroscopePrint() override { Theme::SetMode(ThemeMode::Light); }

  // Presses keys that open the preview, prints from there into a file and closes it with Escape.
  fs::path Printed(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    const fs::path file = home_.Place.Folder / "printed.pdf";
    PrintedInto(window, key, modifiers, file);
    return file;
  }

  void PrintedInto(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers,
                   const fs::path& file) {
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; }));
    const auto seen = test::PrintWhenShown(file);
    QTest::keyClick(&window, key, modifiers);
    EXPECT_EQ(seen->Count, 1) << "no preview was shown";
    landscape_ = seen->Layout.orientation() == QPageLayout::Landscape;
  }

  void ExpectTables(const QString& text) {
    for (const TableView* view : window_->findChildren<TableView*>()) {
      if (view->isVisible() && view->Model().rowCount() > 0) {
        ExpectRows(*view, text);
      } else if (view->isVisible()) {
        EXPECT_TRUE(text.contains(test::Squeezed(view->EmptyText())))
            << view->objectName().toStdString();
      }
    }
  }

  std::size_t FilesInChartFolder() const {
    const fs::path folder = home_.Place.Folder / "Charts";
    return fs::exists(folder) ? static_cast<std::size_t>(std::distance(
                                    fs::directory_iterator(folder), fs::directory_iterator()))
                              : 0;
  }

  void TakeTemplate() const {
    fs::copy_file(test::DataFolder() / "HoroscopeTemplate.htm", home_.Place.ReportTemplate());
  }

  QString JobText() { return Find<QLabel>("jobText").text(); }

  bool landscape_ = false;
};

TEST_F(HoroscopePrint, EveryPageIsPrintedAsItStandsThere) {
  Open();
  auto& pages = Find<QListWidget>("pages");
  const int count = pages.count();
  for (int row = 0; row < count; ++row) {
    pages.setCurrentRow(row);
    if (!pages.item(row)->flags().testFlag(Qt::ItemIsEnabled)) {
      continue;
    }
    const QString title = pages.item(row)->text();
    SCOPED_TRACE(title.toStdString());
    const QString text = test::TextOfPdf(Printed(*window_, Qt::Key_P, Qt::ControlModifier));
    EXPECT_TRUE(text.startsWith(test::Squeezed(QString("Asha Rao 5 July 1990 02:30 PM"))))
        << text.left(80).toStdString();
    EXPECT_TRUE(text.contains(test::Squeezed(title)));
    EXPECT_TRUE(landscape_ || title != "Timeline");
    if (title == "Periods") {
      EXPECT_FALSE(landscape_) << "the strip of the life needs no page across";
      EXPECT_TRUE(text.contains("age0") && text.contains("today")) << text.left(200).toStdString();
    }
    EXPECT_EQ(text.contains("Noremedywasgiventothisclientyet."), title == "Remedies");
    ExpectTables(text);
  }
}

// A table is called once, by its heading or by its own name, whatever stands between the two.
TEST(ShownPage, ATableIsNamedOnce) {
  struct Case {
    QStringList Labels;  // the first one a heading
    QString Name;        // of the table
    QStringList Wanted;
  };
  const std::vector<Case> cases = {
      {{"Significators"}, "Significators", {"Significators"}},
      {{"Significators", "ring: fruitful"}, "Significators", {"Significators"}},
      {{"Significators by house"}, "Significators", {"Significators by house"}},
      {{"Kept"}, "Significators", {"Kept", "Significators"}},
      {{}, "Significators", {"Significators"}},
  };
  for (const Case& one : cases) {
    QWidget page;
    QVBoxLayout layout(&page);
    for (int i = 0; i < one.Labels.size(); ++i) {
      auto* label = new QLabel(one.Labels[i]);
      QFont font = label->font();
      font.setWeight(i == 0 ? QFont::DemiBold : QFont::Normal);
      label->setFont(font);
      layout.addWidget(label);
    }
    auto* view = new TableView;
    view->setAccessibleName(one.Name);
    core::Table table{{{"House"}}, {}};
    table.AddRow();
    view->SetTable(std::move(table));
    layout.addWidget(view);
    page.show();
    QStringList headings;
    for (const PageBlock& block : ShownBlocks(page)) {
      const auto* text = std::get_if<PageText>(&block.Content);
      if (text != nullptr && text->Role == PageRole::Part) {
        headings << text->Text;
      }
    }
    EXPECT_EQ(headings, one.Wanted) << one.Labels.join(", ").toStdString();
  }
}

TEST_F(HoroscopePrint, OrderFilterColumnsAndRotationAreThoseInSight) {
  Open();
  MenuEntry("rotationMenu", "&7 · spouse, partner").trigger();
  const QString planned = test::TextOfPdf(Printed(*window_, Qt::Key_P, Qt::ControlModifier));
  EXPECT_TRUE(planned.startsWith("AshaRao(Rotatedto7)"));
  EXPECT_FALSE(planned.contains("Gunas"));
  QTest::mouseClick(&Find<QPushButton>("allColumns"), Qt::LeftButton);
  const QString whole = test::TextOfPdf(Printed(*window_, Qt::Key_P, Qt::ControlModifier));
  EXPECT_TRUE(whole.contains("Gunas"));
  EXPECT_TRUE(landscape_) << "all columns need the page across";
  ExpectTables(whole);

  Turn("Aspects");
  auto& filter = Find<QComboBox>("aspectFilter");
  filter.setFocus();
  QTest::keyClick(&filter, Qt::Key_End);
  auto& aspects = Find<TableView>("PlanetAspectList");
  const QHeaderView& header = *aspects.horizontalHeader();
  const QString first = RowText(aspects, 0);
  QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                    QPoint(header.sectionViewportPosition(3) + 8, header.height() / 2));
  ASSERT_NE(RowText(aspects, 0), first) << "the click orders the rows";
  const QString text = test::TextOfPdf(Printed(*window_, Qt::Key_P, Qt::ControlModifier));
  EXPECT_TRUE(text.contains("ShowHardaspects"));
  ExpectTables(text);
}

TEST_F(HoroscopePrint, PaperIsLightAndPrivateAndNeverTheProgramsOwnFile) {
  Open();
  const auto picture = [this] {
    const fs::path file = Printed(*window_, Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0600));
    return test::OutputOf("pdftoppm -r 40 '" + file.string() + "'");
  };
  const std::string light = picture();
  Theme::SetMode(ThemeMode::Dark);
  QCoreApplication::processEvents();
  EXPECT_TRUE(picture() == light) << "paper follows the theme";
  const std::string store = test::ReadFile(home_.Place.StoreFile());
  PrintedInto(*window_, Qt::Key_P, Qt::ControlModifier, home_.Place.StoreFile());
  EXPECT_NE(home_.Messages.All().back().Text.find("belongs to Orvex+ itself"), std::string::npos);
  EXPECT_EQ(test::ReadFile(home_.Place.StoreFile()), store);
}

TEST_F(HoroscopePrint, TheSheetIsOnePageForTheClient) {
  Open();
  Turn("Periods");
  const fs::path file = Printed(*window_, Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_NE(test::OutputOf("pdfinfo '" + file.string() + "'").find("Pages:           1\n"),
            std::string::npos);
  const QString text = test::TextOfPdf(file);
  for (const char* piece : {"AshaRao", "Runningperiods", "Rulingplanets", "Significators",
                            "14\u00b040'", "5July199002:30PM"}) {
    EXPECT_TRUE(text.contains(QString::fromUtf8(piece))) << piece;
  }
  // The same as a file, named by the user and opened from the status line.
  files_.Chosen = home_.Place.Folder / "sheet.pdf";
  MenuEntry("exportMenu", "PDF: KP sheet…").trigger();
  EXPECT_EQ(test::TextOfPdf(files_.Chosen), text);
  QTest::mouseClick(&Find<QToolButton>("openJob"), Qt::LeftButton);
  EXPECT_EQ(files_.Opened, std::vector{files_.Chosen});
  files_.Chosen = home_.Place.StoreFile();
  MenuEntry("exportMenu", "PDF: KP sheet…").trigger();
  EXPECT_NE(home_.Messages.All().back().Text.find("belongs to Orvex+ itself"), std::string::npos);
}

TEST_F(HoroscopePrint, ThePaperIsThatOfTheLocale) {
  EXPECT_EQ(PaperOfLocale().id(), QPageSize::A4);
  ::setenv("LC_PAPER", "en_US.UTF-8", 1);
  EXPECT_EQ(PaperOfLocale().id(), QPageSize::Letter);
  ::unsetenv("LC_PAPER");
}

TEST_F(HoroscopePrint, AnExportLeavesTheWindowAloneAndOffersWhatItWrote) {
  TakeTemplate();
  Open();
  Turn("Vastu");
  MenuEntry("rotationMenu", "&7 · spouse, partner").trigger();
  const QString status = Find<QLabel>("statusText").text();
  MenuEntry("exportMenu", "PDF: Dasha and Bhukti").trigger();
  EXPECT_EQ(Find<QLabel>("statusText").text(), "Exporting Horoscope...Please Wait");
  EXPECT_TRUE(Find<QProgressBar>("jobBar").isVisible());
  EXPECT_FALSE(Find<QMenu>("exportMenu").isEnabled());
  QTest::keyClick(window_, Qt::Key_PageDown, Qt::ControlModifier);
  ASSERT_TRUE(QTest::qWaitFor([this] { return JobText() == "Report of Asha Rao: written"; }));
  EXPECT_EQ(Find<QListWidget>("pages").currentItem()->text(), "Remedies");
  EXPECT_EQ(Find<QLabel>("statusText").text(), status);
  EXPECT_TRUE(files_.Opened.empty()) << "nothing opens by itself";
  QTest::mouseClick(&Find<QToolButton>("openJob"), Qt::LeftButton);
  QTest::mouseClick(&Find<QToolButton>("openJobFolder"), Qt::LeftButton);
  ASSERT_EQ(files_.Opened.size(), 2U);
  EXPECT_EQ(files_.Opened[0].extension(), ".pdf");
  EXPECT_EQ(files_.Opened[1], files_.Opened[0].parent_path());
  EXPECT_TRUE(test::TextOfPdf(files_.Opened[0]).contains("AshaRao(Rotatedto7)"));
  EXPECT_EQ(FilesInChartFolder(), 4U) << "page, two pictures, PDF";
  QTest::mouseClick(&Find<QToolButton>("endJob"), Qt::LeftButton);
  EXPECT_FALSE(Find<QWidget>("job").isVisible());
}

TEST_F(HoroscopePrint, WorkThatIsCanceledOrWhoseWindowIsClosedLeavesNothing) {
  TakeTemplate();
  Open();
  const auto begin = [this] {
    MenuEntry("exportMenu", "PDF: Dasha, Bhukti, Antara and Sookshma").trigger();
    auto& bar = Find<QProgressBar>("jobBar");
    EXPECT_TRUE(QTest::qWaitFor([&bar] { return bar.value() > 0; }));
    EXPECT_GT(FilesInChartFolder(), 0U) << "the page lies beside its place";
    EXPECT_LT(bar.value(), 1000);
  };
  begin();
  QTest::mouseClick(&Find<QToolButton>("cancelJob"), Qt::LeftButton);
  ASSERT_TRUE(QTest::qWaitFor([this] { return JobText() == "Report of Asha Rao: canceled"; }));
  EXPECT_EQ(FilesInChartFolder(), 0U);
  EXPECT_FALSE(Find<QToolButton>("openJob").isVisible());
  begin();
  window_->close();
  QCoreApplication::sendPostedEvents(window_, QEvent::DeferredDelete);
  window_ = nullptr;
  EXPECT_EQ(FilesInChartFolder(), 0U);
}

TEST_F(HoroscopePrint, WhatCannotBeWrittenIsToldOnceAndLeavesTheWindowReady) {
  Open();
  for (const char* entry : {"PDF: Dasha and Bhukti", "Report: Dasha and Bhukti"}) {
    MenuEntry("exportMenu", entry).trigger();
    ASSERT_TRUE(QTest::qWaitFor([this] { return JobText() == "Report of Asha Rao: not written"; }));
    EXPECT_EQ(home_.Messages.All().back().Text,
              "The HTML template file was not found or cannot be accessed.");
    EXPECT_TRUE(Find<QMenu>("exportMenu").isEnabled());
  }
  TakeTemplate();
  std::ofstream(home_.Place.Folder / "file") << "kept";
  session_->State.ChartPath = (home_.Place.Folder / "file").string();
  MenuEntry("exportMenu", "PDF: Dasha and Bhukti").trigger();
  const std::size_t before = home_.Messages.All().size();
  ASSERT_TRUE(QTest::qWaitFor([&] { return home_.Messages.All().size() > before; }));
  EXPECT_NE(home_.Messages.All().back().Text.find("The chart folder"), std::string::npos);
}

TEST_F(HoroscopePrint, TheDialogsOfTheHoroscopeArePrintedToo) {
  Open();
  ClickCell("PlanetTable", 2, 0, true);
  auto& sheet = Find<QDialog>("planetSheet");
  QString text = test::TextOfPdf(Printed(sheet, Qt::Key_P, Qt::ControlModifier));
  EXPECT_TRUE(text.startsWith("Sun(Gemini)"));
  for (const TableView* view : sheet.findChildren<TableView*>()) {
    ExpectRows(*view, text);
  }
  QTest::keyClick(&sheet, Qt::Key_Escape);
  window_->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window_));
  QTest::keyClick(window_, Qt::Key_D, Qt::ControlModifier);
  text =
      test::TextOfPdf(Printed(Find<QDialog>("divisionalCharts"), Qt::Key_P, Qt::ControlModifier));
  EXPECT_TRUE(text.startsWith("DivisionalchartsofAshaRaoNavamsha(D9)Dashamsha(D10)"))
      << text.toStdString();
}

}  // namespace
}  // namespace orvex::ui
