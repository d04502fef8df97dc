// The PDF of a report, read back by another program: every text of it, its pages and properties.
#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QString>

#include "chart/client_saving.h"
#include "horoscope/create_horoscope.h"
#include "practice/remedies.h"
#include "report/kp_sheet.h"
#include "report/report_content.h"
#include "support/pdf_text.h"
#include "support/test_home.h"
#include "ui/painting/offscreen.h"
#include "ui/painting/pdf_file.h"
#include "ui/painting/report_document.h"
#include "ui/painting/sheet_document.h"

namespace orvex::ui {
namespace {

using report::ReportDetail;
using test::OutputOf;
using test::Squeezed;

// The text of the pages in the order in which it was set, without the running heads and feet and
// without blanks; it is read piece by piece.
class PageText {
 public:
  explicit PageText(const std::filesystem::path& pdf)
      : text_(Squeezed(
            OutputOf("pdftotext -raw -x 0 -y 50 -W 595 -H 742 '" + pdf.string() + "' -"))) {}

  // The next text must be this; captions may come again before it.
  void Expect(const std::string& text, const QString& head = {}) {
    const QString piece = Squeezed(text);
    if (!head.isEmpty() && !text_.mid(at_).startsWith(piece) && text_.mid(at_).startsWith(head)) {
      at_ += head.size();
    }
    if (text_.mid(at_).startsWith(piece)) {
      at_ += piece.size();
    } else if (failures_++ < 3) {
      ADD_FAILURE() << "expected \"" << piece.toStdString() << "\", read \""
                    << text_.mid(at_, 80).toStdString() << "\"";
    }
  }

  // Passes over pictures.
  void GoTo(const std::string& text) {
    const qsizetype found = text_.indexOf(Squeezed(text), at_);
    EXPECT_GE(found, 0) << text;
    at_ = std::max(at_, found);
  }

  bool AtEnd() const { return at_ == text_.size(); }

 private:
  QString text_;
  qsizetype at_ = 0;
  int failures_ = 0;
};

void ExpectRows(const core::Table& table, bool captions, PageText& text) {
  QString head;
  for (const std::size_t column : report::ShownColumns(table)) {
    head += captions ? Squeezed(table.Columns[column].Caption) : "";
  }
  text.Expect(head.toStdString());
  for (const core::Row& row : table.Rows) {
    for (const std::size_t column : report::ShownColumns(table)) {
      text.Expect(row.Cells.at(column).Text, head);
    }
  }
}

struct PartReader {
  PageText& Text;

  void operator()(const report::ReportFacts& facts) const {
    for (const report::ReportFact& fact : facts) {
      Text.Expect(fact.Caption);
      Text.Expect(fact.Text);
    }
  }
  void operator()(const report::ReportCharts& charts) const {
    for (const report::ChartPicture& picture : charts) {
      Text.Expect(picture.Title);
    }
    Text.GoTo("Planets");
  }
  void operator()(const report::ReportTable& table) const {
    ExpectRows(table.Table, table.Captions, Text);
    Text.Expect(table.Table.Rows.empty() ? table.WhenEmpty : "");
  }
  void operator()(const report::ReportLoShu& cells) const {
    for (const std::string& cell : cells) {
      Text.Expect(cell);
    }
  }
  void operator()(const report::ReportPeriods& periods) const {
    for (const core::Table& table : periods) {
      ExpectRows(table, true, Text);
    }
  }
  void operator()(const std::string& text) const { Text.Expect(text); }
};

class ReportPdf : public testing::Test {
 protected:
  std::int32_t Save(const std::string& name, const std::string& comments) {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    form.FullName = name;
    form.Comments = comments;
    form.Birth = test::Moment("1985-09-05 11:58");
    return chart::SaveNewClient(*session_, form, 1).Id;
  }

  void AddRemedy(std::int32_t client, const std::string& problem, const std::string& remedy) {
    practice::RemedyForm form = practice::OpenAddRemedy(*session_);
    form.Problem = problem;
    form.Remedy = remedy;
    practice::SaveNewRemedy(*session_, form, client);
  }

  report::ReportContent Content(std::int32_t client, ReportDetail detail, char style = 'N') {
    const horoscope::OpenedHoroscope opened = horoscope::CreateHoroscope(*session_, client).value();
    return report::ContentOf(*session_, opened.Model, detail, style);
  }

  std::filesystem::path Written(const report::ReportContent& content) {
    const std::filesystem::path file = home_.Place.Folder / "a 'report'.pdf";
    EXPECT_TRUE(WriteReportPdf(content, file));
    std::filesystem::rename(file, home_.Place.Folder / "report.pdf");
    return home_.Place.Folder / "report.pdf";
  }

  // All of it in its order, and nothing else.
  void ExpectAll(const report::ReportContent& content) {
    PageText text(Written(content));
    for (const std::string& piece : {content.Astrologer, content.Organization, content.Contact,
                                     content.Name, content.Birth, content.Question}) {
      text.Expect(piece);
    }
    for (const report::ReportSection& section : content.Sections) {
      text.Expect(section.Caption);
    }
    text.GoTo(content.Sections.front().Caption + "Date and time");
    for (const report::ReportSection& section : content.Sections) {
      text.Expect(section.Caption);
      for (const report::ReportPart& part : section.Parts) {
        text.Expect(part.Caption);
        std::visit(PartReader{text}, part.Body);
      }
    }
    EXPECT_TRUE(text.AtEnd());
  }

  // No page but the last is less than half full; gives the number of pages.
  static std::size_t FullPages(const report::ReportContent& content) {
    const ComposedDocument composed = Compose(ReportDocument(content), {});
    const QRectF body = composed.Setup.Body();
    for (std::size_t page = 0; page + 1 < composed.Pages.size(); ++page) {
      EXPECT_GT(composed.Pages[page].Bottom - body.top(), body.height() / 2) << page + 1;
    }
    for (const ComposedPage& page : composed.Pages) {
      EXPECT_LE(page.Bottom, body.bottom() + 1);
    }
    return composed.Pages.size();
  }

  OffscreenPainting painting_;
  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

TEST_F(ReportPdf, EveryCellOfEverySectionIsReadBackInItsOrder) {
  session_->State.AstrologerName = "K. Murti <&>";
  session_->State.AstrologerOrganization = "House of 'KP'";
  session_->State.AstrologerContactDetails = "12 Lake Road\nChennai";
  const std::int32_t client =
      Save("[COMMENTS] <b>O'Neil</b> & \"co\" \\(x) %PDF-1.4", "First [DBA1]\nsecond <i>line</i>");
  ExpectAll(Content(client, ReportDetail::DB, 'E'));
  AddRemedy(client, "Health & <wealth>", std::string(600, 'w') + " of " + std::string(200, 'x'));
  for (const auto& [detail, style] :
       {std::pair{ReportDetail::DB, 'N'}, {ReportDetail::DBA, 'S'}, {ReportDetail::DBAS, 'E'}}) {
    ExpectAll(Content(client, detail, style));
  }
}

TEST_F(ReportPdf, AMatterIsTheLastSectionOfReportAndSheet) {
  const std::int32_t client = Save("Asha Rao", "");
  const horoscope::OpenedHoroscope opened = horoscope::CreateHoroscope(*session_, client).value();
  const report::ReportSection matter{
      "Post <b>: 10 | 2",
      {{"Planets", report::ReportTable{opened.Model.PlanetLevels, "", true}},
       {"Periods", report::ReportTable{{{{"Dasha"}}, {}}, "No period", true}}}};
  ExpectAll(report::ContentOf(*session_, opened.Model, ReportDetail::DB, 'N', matter));
  report::KpSheet sheet = report::SheetOf(*session_, opened, 'N');
  const std::filesystem::path file = home_.Place.Folder / "sheet.pdf";
  // As long as a matter gets: three rows of its chain, nine planets, five periods.
  core::Table chain = opened.Model.PlanetLevels;
  chain.Rows.resize(3);
  core::Table periods{{{"Dasha"}, {"Bhukti"}, {"Antara"}, {"From"}, {"Until"}, {"Houses"}}, {}};
  for (int row = 0; row < 5; ++row) {
    periods.Rows.push_back(
        {{{"Mercury"}, {"Jupiter"}, {"Saturn"}, {"25 Nov 2030"}, {"11 Dec 2030"}, {"2 7 10 11"}}});
  }
  report::ReportSection longest = matter;
  longest.Parts.front().Caption = "Planets";
  longest.Parts.insert(longest.Parts.begin(), {"Main cusp", report::ReportTable{chain, "", true}});
  std::get<report::ReportTable>(longest.Parts.back().Body).Table = periods;
  for (const auto paper : {QPageSize::A4, QPageSize::A5}) {
    for (const report::ReportSection& section : {matter, longest}) {
      sheet.Matter = section;
      WriteSheetPdf(sheet, QPageSize(paper), file);
      const QString text = Squeezed(OutputOf("pdftotext -raw '" + file.string() + "' -"));
      const qsizetype at = text.lastIndexOf("Post<b>:10|2");
      for (const report::ReportPart& part : section.Parts) {
        const auto& body = std::get<report::ReportTable>(part.Body);
        qsizetype from = text.indexOf(Squeezed(part.Caption), at);
        ASSERT_GT(from, at) << part.Caption;
        for (const core::Row& row : body.Table.Rows) {
          from = text.indexOf(Squeezed(row.Cells.front().Text), from + 1);
          EXPECT_GT(from, at) << part.Caption;
        }
        EXPECT_TRUE(!body.Table.Rows.empty() || text.contains("DashaNoperiod"));
      }
      const std::string info = OutputOf("pdfinfo '" + file.string() + "'");
      EXPECT_NE(info.find("Pages:           1\n"), std::string::npos) << info;
    }
  }
}

TEST_F(ReportPdf, PagesAreFullAndNoMoreThanTheyWere) {
  const std::int32_t client = Save("A name of fifty letters, as long as a name may be.", "None");
  const std::pair<ReportDetail, std::size_t> most[] = {
      {ReportDetail::DB, 9}, {ReportDetail::DBA, 16}, {ReportDetail::DBAS, 61}};
  for (const auto& [detail, pages] : most) {
    for (const char style : {'N', 'E', 'S'}) {
      EXPECT_LE(FullPages(Content(client, detail, style)), pages) << style;
    }
  }
  // Remedies and notes of any length, one above the other.
  for (int round = 1; round <= 12; ++round) {
    AddRemedy(client, "Problem", QString("word %1 ").arg(round).repeated(40 * round).toStdString());
    report::ReportContent content = Content(client, ReportDetail::DB);
    content.Contact = QString("line\n").repeated(round * 2).toStdString();
    content.Sections[13].Parts[1].Body = QString("A note. ").repeated(round * 300).toStdString();
    FullPages(content);
  }
}

TEST_F(ReportPdf, ADocumentSaysWhatItIsAndWhereItsSectionsAre) {
  session_->State.AstrologerName = "K. Murti \u0905";
  report::ReportContent content = Content(Save("Asha \"A\" Rao", ""), ReportDetail::DB);
  content.Name += " (Rotated to 5)";
  const std::filesystem::path pdf = Written(content);
  const std::string said = OutputOf("pdfinfo -enc UTF-8 '" + pdf.string() + "'");
  for (const char* line :
       {"Title:           Horoscope of Asha \"A\" Rao (Rotated to 5)\n",
        "Author:          K. Murti \u0905\n", "Creator:         Orvex+\n", "(A4)"}) {
    EXPECT_NE(said.find(line), std::string::npos) << line << said;
  }
  // The bookmarks, the numbers of the contents and its links lead to where a section stands.
  const QString shown =
      QString::fromStdString(OutputOf("pdftohtml -s -i -xml -stdout '" + pdf.string() + "'"));
  const QString squeezed = Squeezed(OutputOf("pdftotext -raw -l 1 '" + pdf.string() + "' -"));
  QString captions;
  QString numbers;
  for (const report::ReportSection& section : content.Sections) {
    const QString caption = QString::fromStdString(section.Caption);
    const auto item =
        QRegularExpression("<item page=\"(\\d+)\">" + caption + "</item>").match(shown);
    const auto link =
        QRegularExpression("<a href=\"[^\"]*#(\\d+)\">" + caption + "</a>").match(shown);
    ASSERT_TRUE(item.hasMatch() && link.hasMatch()) << section.Caption;
    const std::string number = item.captured(1).toStdString();
    EXPECT_EQ(link.captured(1).toStdString(), number) << section.Caption;
    const std::string page =
        OutputOf("pdftotext -raw -f " + number + " -l " + number + " '" + pdf.string() + "' -");
    EXPECT_NE(page.find(section.Caption + "\n"), std::string::npos) << section.Caption;
    captions += Squeezed(section.Caption);
    numbers += item.captured(1);
  }
  EXPECT_TRUE(squeezed.contains(captions + numbers)) << numbers.toStdString();
  EXPECT_TRUE(shown.contains(QRegularExpression("<outline>\\s*<item page=\"\\d+\">Planes</item>")));
}

TEST_F(ReportPdf, IndianScriptsAreSetInFontsThatHaveThem) {
  const std::int32_t client = Save("\u0906\u0936\u093e \u0930\u093e\u0935", "\u0ba4\u0bae\u0bb4");
  const std::filesystem::path pdf = Written(Content(client, ReportDetail::DB));
  const QString text = Squeezed(OutputOf("pdftotext -raw '" + pdf.string() + "' -"));
  EXPECT_TRUE(text.contains(Squeezed("\u0906\u0936\u093e \u0930\u093e\u0935")));
  EXPECT_TRUE(text.contains("\u0ba4\u0bae\u0bb4"));
  const std::string fonts = OutputOf("pdffonts '" + pdf.string() + "'");
  EXPECT_NE(fonts.find("Devanagari"), std::string::npos) << fonts;
  EXPECT_NE(fonts.find("Tamil"), std::string::npos) << fonts;
}

TEST_F(ReportPdf, WorkThatIsEndedOrFailsLeavesTheOldFile) {
  const report::ReportContent content = Content(Save("A", ""), ReportDetail::DB);
  const std::filesystem::path file = home_.Place.Folder / "old.pdf";
  std::ofstream(file) << "old";
  std::size_t pages = 0;
  EXPECT_FALSE(WriteReportPdf(content, file, [&](std::size_t done, std::size_t all) {
    pages = all;
    return done < 2;
  }));
  EXPECT_GT(pages, 2U);
  EXPECT_EQ(test::ReadFile(file), "old");
  EXPECT_TRUE(WriteReportPdf(content, file));
  EXPECT_TRUE(test::ReadFile(file).starts_with("%PDF-"));
  EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms(0600));
  EXPECT_THROW(WriteReportPdf(content, home_.Place.Folder / "none" / "a.pdf"), std::runtime_error);
}

}  // namespace
}  // namespace orvex::ui
