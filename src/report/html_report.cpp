#include "report/html_report.h"

#include "core/attempt.h"
#include "core/cell_colors.h"
#include "core/exact_numbers.h"
#include "core/staged_files.h"
#include "core/text.h"
#include "report/html_fragments.h"

namespace orvex::report {

namespace {

constexpr const char* kGoodFont = "<font color='#008000' face='Verdana' size='2'>";
constexpr const char* kHardFont = "<font color='#FF0000' face='Verdana' size='2'>";
constexpr const char* kPlainFont = "<font face='Verdana' size='2'>";

// A template that is filled placeholder by placeholder, in the order of the calls. What was filled
// in is text like any other for the next one.
class Page {
 public:
  explicit Page(std::string text) : text_(std::move(text)) {}

  void Replace(const char* placeholder, const std::string& with) {
    text_ = core::ReplaceAll(text_, std::string("[") + placeholder + "]", with);
  }

  const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

// What users typed comes in as text, whatever it holds.
void ReplaceScalars(const std::vector<ReportScalar>& scalars, Page& page) {
  for (const ReportScalar& scalar : scalars) {
    page.Replace(scalar.Name, scalar.Typed ? EscapeHtml(scalar.Text) : scalar.Text);
  }
}

std::string RulingPlanetsHtml(const core::Table& table) {
  std::string html = "<table border='1' width='100%' cellspacing='0' cellpadding='10'>\n";
  for (const core::Row& row : table.Rows) {
    html += "<tr>";
    for (const core::Cell& cell : row.Cells) {
      html += std::string("<td valign='top' width='50%'>") + kPlainFont + cell.Text + kFontEnd;
    }
    html += "</tr>\n";
  }
  return html + "</table>\n";
}

const char* AspectFont(const std::string& background) {
  if (background == core::kGoodColor) {
    return kGoodFont;
  }
  return background == core::kHardColor ? kHardFont : kPlainFont;
}

std::string AspectGridHtml(const core::Table& grid) {
  std::string html = StdTableOpening() + HeaderRow(grid);
  for (const core::Row& row : grid.Rows) {
    html += "<tr>";
    for (const std::size_t column : ShownColumns(grid)) {
      const core::Cell& cell = row.Cells.at(column);
      html += std::string("<td>") + AspectFont(cell.Background) + cell.Text + kFontEnd;
    }
    html += "</tr>\n";
  }
  return html + "</table>\n";
}

std::string PlanetAspectsHtml(const core::Table& aspects) {
  std::string html = StdTableOpening() + HeaderRow(aspects);
  for (const core::Row& row : aspects.Rows) {
    html += "<tr>";
    for (const std::size_t column : ShownColumns(aspects)) {
      const core::Cell& cell = row.Cells.at(column);
      html += std::string("<td valign='top'>") +
              (cell.Foreground == kGoodInk ? kGoodFont : kHardFont) + cell.Text + kFontEnd;
    }
    html += "</tr>\n";
  }
  return html + "</table>\n";
}

std::string RemediesHtml(core::Table remedies) {
  if (remedies.Rows.empty()) {
    return StdTableOpening() + HeaderRow(remedies) +
           "<tr><td colspan='4' align='center'><font face='Verdana' size='2'>" + kNoRemedies +
           "</font></td></tr>\n</table>\n";
  }
  for (core::Row& row : remedies.Rows) {
    for (core::Cell& cell : row.Cells) {
      cell.Text = EscapeHtml(cell.Text);
    }
  }
  return RenderTable(remedies);
}

void ReplaceTables(const core::ApplicationState& state, const chart::HoroscopeModel& model,
                   Page& page) {
  page.Replace("RULINGPLANETS", RulingPlanetsHtml(model.RulingPlanets));
  page.Replace("PLANETS", RenderTable(PlanetsOfReport(model)));
  page.Replace("PLANET2HOUSEASPECTS", AspectGridHtml(model.AspectGrid));
  page.Replace("PLANET2PLANETASPECTS", PlanetAspectsHtml(PlanetAspectsOfReport(state, model)));
  page.Replace("HOUSES", RenderTable(model.CuspTable));
  page.Replace("NADISIGNIFICATORS", RenderTable(model.NadiTable));
  page.Replace("PLANETSIGNIFICATORS", RenderTable(model.PlanetLevels));
  page.Replace("4STEPSIGNIFICATORS", RenderTable(model.FourStepRows));
  page.Replace("JAIMINISIGNIFICATORS", RenderTable(model.KarakaTable));
  page.Replace("ASHTAKAVARGA", RenderTable(model.AshtakavargaTable));
  page.Replace("REMEDYGIVEN", RemediesHtml(model.RemedyTable));
}

// A cell in its ink, which the fragment names even where there is none.
std::string InkedCell(const core::Cell& cell) {
  return std::string("<td><font color='") + (cell.Foreground == core::kRed ? "#FF0000" : "") +
         "' face='Verdana' size='2'>" + cell.Text + kFontEnd;
}

std::string LoShuPlanesHtml(const core::Table& planes) {
  std::string html = StdTableOpening() + HeaderRow(planes);
  for (const core::Row& row : planes.Rows) {
    html += "<tr>" + InkedCell(row.Cells.at(0)) + InkedCell(row.Cells.at(1)) + "</tr>\n";
  }
  return html + "</table>\n";
}

std::string LoShuNumbersHtml(const core::Table& numbers) {
  std::string html =
      "<table align='center' border='1' width='80%' cellspacing='0' cellpadding='5'>\n" +
      HeaderRow(numbers);
  for (const core::Row& row : numbers.Rows) {
    html += "<tr>" + InkedCell(row.Cells.at(0)) + InkedCell(row.Cells.at(1)) + "<td>" + kPlainFont +
            row.Cells.at(2).Text + kFontEnd + "</tr>\n";
  }
  return html + "</table>\n";
}

// A section as the shipped template has its own. Its tables are the program's; captions may name
// what a user typed.
std::string SectionHtml(const ReportSection& section) {
  std::string html =
      "\n\n<section class=\"page\">\n  <h2>" + EscapeHtml(section.Caption) + "</h2>\n";
  for (const ReportPart& part : section.Parts) {
    const auto& table = std::get<ReportTable>(part.Body);
    html += "  <h3>" + EscapeHtml(part.Caption) + "</h3>\n  <div class=\"wide\">" +
            RenderTable(table.Table) + "</div>\n";
    html += table.Table.Rows.empty() ? "  <p>" + table.WhenEmpty + "</p>\n" : "";
  }
  return html + "</section>";
}

void ReplaceLast(const core::Session& session, const chart::HoroscopeModel& model, Page& page) {
  ReplaceScalars(ProfileOf(session.State), page);
  page.Replace("LOSHUGRID", LoShuGridHtml(model.LoShuCellText));
  page.Replace("LOSHUGRIDDOB", model.Captions.LoShuDate);
  page.Replace("LOSHUPLANES", LoShuPlanesHtml(LoShuPlanesOfReport(model)));
  page.Replace("LOSHUANALYSIS", LoShuNumbersHtml(LoShuNumbersOfReport(model)));
  page.Replace("BNNTABLE", RenderTable(model.BnnTable));
  page.Replace("VASTUIMPACTANALYSIS", RenderTable(model.ImpactTable));
  page.Replace("CURRENTDATE", core::LongDateText(session.Time.Today(), false));
}

// A path as the source of a picture; "%", "#" and "?" would end or change it there.
std::string PathInUrl(const std::filesystem::path& file) {
  std::string url = core::ReplaceAll(file.string(), "%", "%25");
  url = core::ReplaceAll(url, "#", "%23");
  return core::ReplaceAll(url, "?", "%3F");
}

// Paints a chart into a file of the chart folder and gives the tag that shows it.
std::string PictureTag(const ReportRequest& request, const ChartPicture& picture,
                       const std::filesystem::path& file, core::StagedFiles& files) {
  files.Add(file, request.Paint(picture));
  return "<img src='" + EscapeAttribute(PathInUrl(file)) + "'>";
}

}  // namespace

std::string FillTemplate(const core::Session& session, const chart::HoroscopeModel& model,
                         ReportDetail detail, const ChartFragments& charts,
                         const std::string& templateText,
                         const std::optional<ReportSection>& matter) {
  Page page(templateText);
  page.Replace("RASHICHART", charts.Rashi);
  page.Replace("KPCHART", charts.Chalit);
  ReplaceScalars(ScalarsOf(model), page);
  ReplaceTables(session.State, model, page);
  const auto periods = PeriodsOfReport(session.Reference, model, detail);
  page.Replace("DBA1", DashaTableHtml(periods[0]));
  page.Replace("DBA2", DashaTableHtml(periods[1]));
  page.Replace("DBA3", DashaTableHtml(periods[2]));
  ReplaceLast(session, model, page);
  page.Replace("MATTER", matter ? SectionHtml(*matter) : "");
  return page.Text();
}

std::filesystem::path GenerateHoroscopeView(core::Session& session,
                                            const horoscope::OpenedHoroscope& opened,
                                            const ReportRequest& request) {
  core::StagedFiles files;
  std::filesystem::path file = StageHoroscopeView(session, opened, request, files);
  files.Commit();
  return file;
}

std::filesystem::path StageHoroscopeView(core::Session& session,
                                         const horoscope::OpenedHoroscope& opened,
                                         const ReportRequest& request, core::StagedFiles& files) {
  std::string templateText;
  const bool readable =
      core::Attempt([&] { templateText = core::ReadTextFile(session.Place.ReportTemplate()); });
  if (!readable) {
    session.Shown.ShowMessage("The HTML template file was not found or cannot be accessed.",
                              core::MessageButtons::Ok, core::MessageIcon::Stop);
    return {};
  }
  const std::filesystem::path folder = std::filesystem::absolute(session.State.ChartPath);
  if (!core::MakePrivateFolders(folder)) {
    throw std::runtime_error("The chart folder " + folder.string() + " could not be made.");
  }
  const ChartCells cells = BuildChartCells(opened.Model);
  const std::string clientId = core::WholeText(opened.Model.ClientId);
  ChartFragments charts;
  if (request.Style == 'S') {
    charts = {SouthGridHtml(cells.SouthRashi), SouthGridHtml(cells.SouthKP)};
  } else {
    charts = {PictureTag(request, RashiPicture(cells, request.Style),
                         folder / ("Rashi-" + clientId + ".bmp"), files),
              PictureTag(request, ChalitPicture(cells, request.Style),
                         folder / ("Chalit-" + clientId + ".bmp"), files)};
  }
  std::filesystem::path file = folder / (clientId + ".htm");
  files.Add(file, FillTemplate(session, opened.Model, request.Detail, charts, templateText,
                               request.Matter));
  return file;
}

}  // namespace orvex::report
