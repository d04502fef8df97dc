#include "report/html_report.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>

#include "chart/client_saving.h"
#include "core/text.h"
#include "horoscope/catalogue.h"
#include "practice/remedies.h"
#include "report/html_fragments.h"
#include "support/test_home.h"

namespace orvex::report {
namespace {

namespace fs = std::filesystem;

constexpr const char* kGood = "color='#008000'";
constexpr const char* kHard = "color='#FF0000'";

std::size_t CountOf(const std::string& text, const std::string& what) {
  std::size_t count = 0;
  for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += what.size()) {
    ++count;
  }
  return count;
}

class HtmlReport : public testing::Test {
 protected:
  HtmlReport() {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    form.FullName = kHostile;
    form.Comments = "Says \"[DBA1]\" & <script>";
    form.Birth = test::Moment("1985-09-05 11:58");
    form.Latitude = "40.71427";
    form.Longitude = "-74.00597";
    form.Offset = "-5";
    id_ = chart::SaveNewClient(*session_, form, 1).Id;
  }

  horoscope::OpenedHoroscope Open() { return horoscope::CreateHoroscope(*session_, id_).value(); }

  // A template filled for the client.
  std::string Filled(const std::string& text, ReportDetail detail = ReportDetail::DB) {
    return FillTemplate(*session_, Open().Model, detail, {"R", "K"}, text);
  }

  void WriteTemplate(const std::string& text) {
    std::ofstream(home_.Place.ReportTemplate(), std::ios::binary) << text;
  }

  fs::path Generate(char style) {
    return GenerateHoroscopeView(*session_, Open(),
                                 {ReportDetail::DB, style, [this](const auto& picture) {
                                    return picture_ + picture.Title;
                                  }});
  }

  static constexpr const char* kHostile = "[COMMENTS] <b>O'Neil</b> & \"co\"";

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
  std::int32_t id_ = 0;
  std::string picture_ = "picture ";
};

TEST_F(HtmlReport, TypedTextsAreShownAsTypedAndAreNoPlaceholders) {
  const std::string name = "&#91;COMMENTS] &lt;b&gt;O'Neil&lt;/b&gt; &amp; \"co\"";
  EXPECT_EQ(Filled("[FULLNAME]|[CLIENTNAME]"), name + "|" + name);
  EXPECT_EQ(Filled("[COMMENTS]"), "Says \"&#91;DBA1]\" &amp; &lt;script&gt;");
  session_->State.AstrologerName = "[CURRENTDATE]<i>";
  EXPECT_EQ(Filled("[ASTROLOGERNAME] [CURRENTDATE] [NOTHING] [fullname]"),
            "&#91;CURRENTDATE]&lt;i&gt; 24 November 2026 [NOTHING] [fullname]");
}

TEST_F(HtmlReport, ScalarsAreThoseOfTheWindow) {
  horoscope::OpenedHoroscope opened = Open();
  chart::HoroscopeModel& model = opened.Model;
  model.Captions.Tithi = "Sukla - Panchimi";
  model.Captions.YogaKaran = "Siva - Bava";
  model.Captions.NakshatraTag = "Rohini*Taurus*2";
  model.HoraryQuestion = "Will <it>?";
  const auto filled = [&](const char* text) {
    return FillTemplate(*session_, model, ReportDetail::DB, {}, text);
  };
  EXPECT_EQ(filled("[PAKSHA]/[TITHI]/[YOGA]/[KARAN]/[RASHI]"), "Sukla/Panchimi/Siva/Bava/Taurus");
  EXPECT_EQ(filled("[HORARYQUESTION]"), "");
  model.Horary = true;
  EXPECT_EQ(filled("[HORARYQUESTION]"), "Will &lt;it&gt;?");
  for (const char* nothing : {"", "  \n "}) {
    model.Comments = nothing;
    EXPECT_EQ(filled("[COMMENTS]"), "None");
  }
  horoscope::RotateNow(*session_, opened, 5);
  model.Name = "Asha";
  EXPECT_EQ(filled("[FULLNAME],[CLIENTNAME]"), "Asha (Rotated to 5),Asha (Rotated to 5)");
}

// What is filled in is text for the placeholders that come later, and for no earlier ones.
TEST_F(HtmlReport, PlaceholdersAreReplacedInTheirOrder) {
  horoscope::OpenedHoroscope opened = Open();
  opened.Model.Captions.BadhakHouse = "[LATITUDE][BIRTHDATE]";
  opened.Model.Captions.Latitude = "9";
  EXPECT_EQ(FillTemplate(*session_, opened.Model, ReportDetail::DB, {"[KPCHART]", "[SUNSET]"},
                         "[BADHAKHOUSE]"),
            "9[BIRTHDATE]");
  opened.Model.Captions.Sunset = "6 PM";
  EXPECT_EQ(FillTemplate(*session_, opened.Model, ReportDetail::DB, {"[KPCHART]", "[SUNSET]"},
                         "[RASHICHART]"),
            "6 PM");
}

TEST_F(HtmlReport, AMatterIsTheLastSectionAndWithoutOneNothingIsLeft) {
  const std::string shipped = test::ReadFile(test::DataFolder() / "HoroscopeTemplate.htm");
  const std::string plain = Filled(shipped);
  ASSERT_EQ(CountOf(shipped, "[MATTER]"), 1U);
  EXPECT_EQ(plain, Filled(core::ReplaceAll(shipped, "[MATTER]", "")));
  core::Table planets{{{"Planet"}, {"Hidden", 0}, {"Grade"}}, {}};
  planets.AddRow().Cells = {{"Sun"}, {"never"}, {"A"}};
  const ReportSection matter{
      "Post <b> [DBA1]: 10 | 2",
      {{"Planets", ReportTable{planets, "", true}},
       {"Periods", ReportTable{core::Table{{{"Dasha"}}, {}}, "No period", true}}}};
  std::string text =
      FillTemplate(*session_, Open().Model, ReportDetail::DB, {"R", "K"}, shipped, matter);
  const std::size_t at =
      text.find("\n\n<section class=\"page\">\n  <h2>Post &lt;b&gt; &#91;DBA1]: 10");
  ASSERT_NE(at, std::string::npos);
  EXPECT_GT(at, text.find("<h2>Vimshottari periods"));
  const std::string end = "</section>";
  const std::size_t length = text.find(end, at) + end.size() - at;
  const std::string section = text.substr(at, length);
  EXPECT_LT(section.find("<h3>Planets</h3>"), section.find(">Sun</font>"));
  EXPECT_EQ(CountOf(section, "never"), 0U);
  EXPECT_EQ(CountOf(section, "<p>No period</p>"), 1U);
  EXPECT_EQ(text.erase(at, length), plain) << "all else stays as it was";
}

TEST_F(HtmlReport, PeriodsStandInThreeTablesOfThreeDashas) {
  const std::pair<ReportDetail, std::size_t> depths[] = {
      {ReportDetail::DB, 27}, {ReportDetail::DBA, 243}, {ReportDetail::DBAS, 2187}};
  std::size_t columns = 3;
  for (const auto& [detail, rows] : depths) {
    std::vector<std::string> firsts;
    for (const char* placeholder : {"[DBA1]", "[DBA2]", "[DBA3]"}) {
      const std::string table = Filled(placeholder, detail);
      EXPECT_EQ(CountOf(table, "<tr>"), rows);
      EXPECT_EQ(CountOf(table, "<td>"), (rows + 1) * columns);
      EXPECT_TRUE(
          table.starts_with("<table bgcolor='#F4F7FC' border='0' width='100%' "
                            "cellspacing='0' cellpadding='3'>"));
      EXPECT_NE(table.find("<b>End Date</b>"), std::string::npos);
    }
    ++columns;
  }
}

TEST_F(HtmlReport, TheDegreeWithinTheSignStandsBehindTheDegree) {
  horoscope::OpenedHoroscope opened = Open();
  opened.Model.PlanetTable.At(0, chart::PlanetColumn::Degree).Text = "200.5";
  const std::string table =
      FillTemplate(*session_, opened.Model, ReportDetail::DB, {}, "[PLANETS]");
  EXPECT_NE(table.find("<td valign='top'><font face='Verdana' size='2'>200.5 (20.50)</font></td>"),
            std::string::npos);
}

TEST_F(HtmlReport, AspectsAreGreenThenRedAndTheModelStaysAsItWas) {
  const horoscope::OpenedHoroscope opened = Open();
  const std::size_t shown = opened.Model.PlanetAspectList.Rows.size();
  const std::string list =
      FillTemplate(*session_, opened.Model, ReportDetail::DB, {}, "[PLANET2PLANETASPECTS]");
  ASSERT_GT(CountOf(list, kGood), 0U);
  ASSERT_GT(CountOf(list, kHard), 0U);
  EXPECT_LT(list.rfind(kGood), list.find(kHard));
  EXPECT_EQ(CountOf(list, "<tr bgcolor='#6D6D6D'>"), 1U);
  EXPECT_EQ(opened.Model.PlanetAspectList.Rows.size(), shown);
  const std::string grid = Filled("[PLANET2HOUSEASPECTS]");
  std::size_t good = 0;
  for (const core::Row& row : opened.Model.AspectGrid.Rows) {
    for (const core::Cell& cell : row.Cells) {
      good += cell.Background == "CAFACB" ? 1U : 0U;
    }
  }
  EXPECT_EQ(CountOf(grid, std::string("<td><font ") + kGood), good);
}

TEST_F(HtmlReport, RemediesAreEscapedAndTheirLackIsTold) {
  EXPECT_NE(Filled("[REMEDYGIVEN]")
                .find("<tr><td colspan='4' align='center'><font face='Verdana' size='2'>No records "
                      "found</font></td></tr>"),
            std::string::npos);
  practice::RemedyForm form = practice::OpenAddRemedy(*session_);
  form.Problem = "<b>[DBA1]";
  form.Remedy = "Rest & water";
  practice::SaveNewRemedy(*session_, form, id_);
  const std::string table = Filled("[REMEDYGIVEN]");
  for (const char* text : {">&lt;b&gt;&#91;DBA1]<", ">Rest &amp; water<", ">24 November 2026<"}) {
    EXPECT_NE(table.find(text), std::string::npos) << text;
  }
  EXPECT_EQ(table.find("No records"), std::string::npos);
}

TEST_F(HtmlReport, TheNumbersOfTheGridAreToldByElementDirectionAndMeaning) {
  const std::string html = Filled("[LOSHUANALYSIS]");
  const std::size_t element = html.find("<b>Element</b>");
  const std::size_t direction = html.find("<b>Direction</b>");
  ASSERT_NE(direction, std::string::npos);
  EXPECT_LT(element, direction);
  EXPECT_LT(direction, html.find("<b>Meaning</b>"));
  EXPECT_EQ(CountOf(html, "<b>"), 3U);
  // The birth has a 5, red is what it lacks: element and direction, never the meaning.
  EXPECT_NE(html.find("<font color='' face='Verdana' size='2'>Brahmasthan"), std::string::npos);
  EXPECT_NE(html.find("<font color='#FF0000' face='Verdana' size='2'>South East"),
            std::string::npos);
  EXPECT_NE(html.find("<td><font face='Verdana' size='2'>Career and Planning"), std::string::npos);
}

TEST_F(HtmlReport, HiddenColumnsNeverReachATable) {
  core::Table table{{{"Shown", 10}, {"Hidden", 0}, {"Free"}}, {}};
  table.Rows.push_back({{{"a"}, {"secret"}, {"c"}}});
  const std::string html = RenderTable(table);
  EXPECT_EQ(CountOf(html, "</td>"), 4U);
  EXPECT_EQ(html.find("secret"), std::string::npos);
  EXPECT_EQ(html.find("Hidden"), std::string::npos);
}

TEST_F(HtmlReport, SouthGridsStandInPlaceOfPicturesWithTheAscendantTinted) {
  WriteTemplate("[RASHICHART]");
  const std::string grid = test::ReadFile(Generate('S'));
  EXPECT_EQ(CountOf(grid, "bgcolor='#FFFBB3'"), 1U);
  EXPECT_EQ(CountOf(grid, "bgcolor='#FFFFFF'"), 11U);
  EXPECT_EQ(CountOf(grid, "width='25%'"), 4U);
  EXPECT_EQ(CountOf(grid, "colspan='2' rowspan='2'"), 1U);
  EXPECT_EQ(CountOf(grid, "<tr>"), 4U);
  EXPECT_FALSE(fs::exists(home_.Place.ChartFolder() / "Rashi-1.bmp"));
}

TEST_F(HtmlReport, TheReportAndItsPicturesReplaceTheEarlierOnes) {
  WriteTemplate("[RASHICHART][KPCHART]");
  const fs::path charts = home_.Place.ChartFolder();
  EXPECT_EQ(Generate('N'), charts / "1.htm");
  EXPECT_EQ(test::ReadFile(charts / "1.htm"), "<img src='" + (charts / "Rashi-1.bmp").string() +
                                                  "'><img src='" +
                                                  (charts / "Chalit-1.bmp").string() + "'>");
  EXPECT_EQ(fs::status(charts).permissions(), fs::perms(0700));
  EXPECT_EQ(fs::status(charts / "1.htm").permissions(), fs::perms(0600));
  WriteTemplate("[BADHAKHOUSE]");
  Generate('E');
  EXPECT_EQ(test::ReadFile(charts / "1.htm"), Open().Model.Captions.BadhakHouse);
}

TEST_F(HtmlReport, WithoutATemplateTheMessageIsShownAndNothingIsWritten) {
  fs::remove(home_.Place.ReportTemplate());
  for (const bool folderInstead : {false, true}) {
    if (folderInstead) {
      fs::create_directory(home_.Place.ReportTemplate());
    }
    EXPECT_EQ(Generate('N'), fs::path());
    ASSERT_EQ(home_.Messages.All().size(), folderInstead ? 2U : 1U);
    EXPECT_EQ(home_.Messages.All().back().Text,
              "The HTML template file was not found or cannot be accessed.");
    EXPECT_FALSE(fs::exists(home_.Place.ChartFolder()));
  }
}

TEST_F(HtmlReport, AFolderThatCannotBeWrittenLeavesTheOldReport) {
  WriteTemplate("new");
  const fs::path charts = home_.Place.ChartFolder();
  const fs::path inTheWay = charts / "1.htm" / "old";
  fs::create_directories(inTheWay.parent_path());
  std::ofstream(inTheWay) << "old";
  EXPECT_THROW(Generate('S'), std::runtime_error);
  EXPECT_EQ(test::ReadFile(inTheWay), "old");
  EXPECT_EQ(std::distance(fs::directory_iterator(charts), {}), 1) << "something was left behind";

  session_->State.ChartPath = inTheWay.string();
  EXPECT_THROW(Generate('S'), std::runtime_error);
  EXPECT_EQ(test::ReadFile(inTheWay), "old");
}

// The last of the three files fails: the pictures of the old report must not be those of a new one.
TEST_F(HtmlReport, AReportThatFailsLeavesTheOldOneWithItsOwnPictures) {
  WriteTemplate("old");
  Generate('N');
  WriteTemplate(std::string(3000, 'x'));
  picture_ = "other ";
  constexpr rlim_t kTooSmall = 1000;
  rlimit before{};
  ::getrlimit(RLIMIT_FSIZE, &before);
  const rlimit limit{kTooSmall, before.rlim_max};
  const auto handler = ::signal(SIGXFSZ, SIG_IGN);
  ::setrlimit(RLIMIT_FSIZE, &limit);
  EXPECT_THROW(Generate('N'), std::runtime_error);
  ::setrlimit(RLIMIT_FSIZE, &before);
  ::signal(SIGXFSZ, handler);
  const fs::path charts = home_.Place.ChartFolder();
  EXPECT_EQ(test::ReadFile(charts / "1.htm"), "old");
  EXPECT_EQ(test::ReadFile(charts / "Rashi-1.bmp"), "picture Rashi");
  EXPECT_EQ(test::ReadFile(charts / "Chalit-1.bmp"), "picture KP");
  EXPECT_EQ(std::distance(fs::directory_iterator(charts), {}), 3) << "something was left behind";
}

TEST_F(HtmlReport, TheShippedTemplateKeepsNoPlaceholder) {
  const std::string report = Filled(test::ReadFile(test::DataFolder() / "HoroscopeTemplate.htm"));
  for (std::size_t at = 0; (at = report.find('[', at)) != std::string::npos; ++at) {
    const std::string inside = report.substr(at + 1, report.find(']', at) - at - 1);
    EXPECT_FALSE(core::UpperCase(inside) == inside) << inside;
  }
}

}  // namespace
}  // namespace orvex::report
