// The matter that is judged in a window goes with its papers: report, PDF and sheet.
#include "judgement/judge_matter.h"
#include "judgement/period_windows.h"
#include "support/pdf_text.h"
#include "ui/horoscope_window_home.h"

namespace orvex::ui {
namespace {

namespace fs = std::filesystem;

class MatterOnPaper : public HoroscopeWindowTest {
 protected:
  MatterOnPaper() {
    fs::copy_file(test::DataFolder() / "HoroscopeTemplate.htm", home_.Place.ReportTemplate());
  }

  // The page and the PDF that the menu of exports writes.
  void Export() {
    MenuEntry("exportMenu", "PDF: Dasha and Bhukti").trigger();
    ASSERT_TRUE(QTest::qWaitFor(
        [this] { return Find<QLabel>("jobText").text() == "Report of Asha Rao: written"; }));
    QTest::mouseClick(&Find<QToolButton>("endJob"), Qt::LeftButton);
    const fs::path charts = home_.Place.Folder / "Charts";
    pdf_ = test::TextOfPdf(charts / "1.pdf");
    page_ = QString::fromStdString(test::ReadFile(charts / "1.htm"));
  }

  QString Sheet() {
    files_.Chosen = home_.Place.Folder / "sheet.pdf";
    MenuEntry("exportMenu", "PDF: KP sheet…").trigger();
    return test::TextOfPdf(files_.Chosen);
  }

  void TypeMatter(const char* letters) {
    QTest::keyClick(window_, Qt::Key_M, Qt::ControlModifier);
    auto& field = *Find<QComboBox>("matterName").lineEdit();
    field.selectAll();
    QTest::keyClicks(&field, letters);
    QTest::keyClick(&field, Qt::Key_Return);
  }

  static QString Line(const core::Row& row) {
    QString line;
    for (const core::Cell& cell : row.Cells) {
      line += test::Squeezed(cell.Text);
    }
    return line;
  }

  QString pdf_;
  QString page_;
};

TEST_F(MatterOnPaper, ReportAndSheetCarryTheMatterOnceItWasJudgedAndTheOneInSight) {
  Open();
  Export();
  EXPECT_FALSE(pdf_.contains("Rulingplanetsatthejudgement"));
  EXPECT_FALSE(page_.contains("[MATTER]")) << "the place of a matter stays empty";
  EXPECT_FALSE(Sheet().contains("Maincusp"));
  for (const char* matter : {"Marriage", "Service"}) {
    SCOPED_TRACE(matter);
    TypeMatter(matter);
    const judgement::Matter judged = *judgement::FindMatter(*session_, matter);
    const judgement::Judgement expected = judgement::JudgeMatter(
        *session_, horoscope::CreateHoroscope(*session_, client_)->Model, judged,
        judgement::NowAtUserCity(*session_), judgement::YearsFrom(home_.Clock.Now(), 10));
    const QString caption = test::Squeezed(judged.Name + ": " + judgement::HousesText(judged));
    Export();
    const QString sheet = Sheet();
    EXPECT_EQ(page_.count(QString::fromStdString(judged.Name + ": ")), 1);
    for (const QString& paper : {pdf_, sheet}) {
      const qsizetype at = paper.lastIndexOf(caption);
      ASSERT_GT(at, 0);
      EXPECT_EQ(paper.indexOf("Maincusp", at), at + caption.size());
      qsizetype from = at;
      for (const core::Table* table : {&expected.MatterChain, &expected.MatterPlanets}) {
        for (const core::Row& row : table->Rows) {
          const qsizetype found = paper.indexOf(Line(row), from);
          EXPECT_GE(found, from) << Line(row).toStdString();
          from = std::max(from, found);
        }
      }
      EXPECT_GT(paper.indexOf(Line(expected.MatterPeriods.Rows.front()), at), at);
    }
    EXPECT_TRUE(pdf_.contains(Line(expected.MatterPeriods.Rows.back())));
    EXPECT_EQ(
        test::OutputOf("pdfinfo '" + files_.Chosen.string() + "'").find("Pages:           1\n") !=
            std::string::npos,
        true);
  }
}

}  // namespace
}  // namespace orvex::ui
