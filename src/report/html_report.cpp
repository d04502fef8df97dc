#include "report/html_report.h"

#include "chart/aspects.h"
#include "chart/dasha_tree.h"
#include "chart/rotation.h"
#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/cell_colors.h"
#include "core/exact_numbers.h"
#include "core/staged_files.h"
#include "core/text.h"
#include "report/html_fragments.h"
#include "vedic/lo_shu.h"

namespace orvex::report {

namespace {

constexpr const char* kGoodFont = "<font color='#008000' face='Verdana' size='2'>";
constexpr const char* kHardFont = "<font color='#FF0000' face='Verdana' size='2'>";
constexpr const char* kPlainFont = "<font face='Verdana' size='2'>";
constexpr const char* kFontEnd = "</font></td>";

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

// The pieces of a text around its "-", trimmed; missing ones are empty.
std::array<std::string, 2> Halves(const std::string& text) {
  const std::vector<std::string> pieces = core::Split(text, '-');
  return {core::Trim(pieces.at(0)), pieces.size() > 1 ? core::Trim(pieces[1]) : ""};
}

std::string ShownName(const chart::HoroscopeModel& model) {
  return EscapeHtml(model.Name) + chart::RotationMark(model.RotatedTo);
}

std::string RashiOfTag(const std::string& nakshatraTag) {
  const std::vector<std::string> fields = core::Split(nakshatraTag, '*');
  return fields.size() > 1 ? fields[1] : "";
}

void ReplaceHalves(Page& page, const char* first, const char* second, const std::string& text) {
  const auto [left, right] = Halves(text);
  page.Replace(first, left);
  page.Replace(second, right);
}

void ReplaceScalars(const chart::HoroscopeModel& model, Page& page) {
  const chart::HoroscopeCaptions& captions = model.Captions;
  page.Replace("FULLNAME", ShownName(model));
  page.Replace("CLIENTNAME", ShownName(model));
  page.Replace("HORARYQUESTION", model.Horary ? EscapeHtml(model.HoraryQuestion) : "");
  page.Replace("BIRTHDATE", captions.Date);
  page.Replace("SUNRISE", captions.Sunrise);
  page.Replace("SUNSET", captions.Sunset);
  page.Replace("NAKSHATRA", captions.Nakshatra);
  page.Replace("RASHI", RashiOfTag(captions.NakshatraTag));
  page.Replace("BIRTHPLACE", EscapeHtml(captions.City));
  ReplaceHalves(page, "PAKSHA", "TITHI", captions.Tithi);
  ReplaceHalves(page, "YOGA", "KARAN", captions.YogaKaran);
  ReplaceHalves(page, "NADI", "YONI", captions.NadiYoni);
  ReplaceHalves(page, "VASYA", "RAJJU", captions.VasyaRajju);
  page.Replace("BADHAKHOUSE", captions.BadhakHouse);
  page.Replace("LATITUDE", EscapeHtml(captions.Latitude));
  page.Replace("LONGITUDE", EscapeHtml(captions.Longitude));
  page.Replace("FORTUNAPOINT", captions.PartOfFortune);
  page.Replace("FORTUNA", captions.PartOfFortune);
  page.Replace("NUMEROLOGY", captions.Numerology);
  page.Replace("DASHABALANCE", captions.DashaBalance);
  page.Replace("BHRIGUBINDU", captions.BhriguBindu);
  ReplaceHalves(page, "VARNA", "GANA", captions.VarnaGana);
  const bool comments = !core::Trim(model.Comments).empty();
  page.Replace("COMMENTS", comments ? EscapeHtml(model.Comments) : "None");
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

// The planets with the degree within the sign behind the degree.
std::string PlanetsHtml(core::Table planets) {
  for (std::size_t row = 0; row < planets.Rows.size(); ++row) {
    std::string& degree = planets.At(row, chart::PlanetColumn::Degree).Text;
    if (const std::optional<double> longitude = core::ParseNumber(degree)) {
      const double within = *longitude - (chart::RashiOfDegree(*longitude) - 1) * 30.0;
      degree += " (" + core::TwoDecimals(within) + ")";
    }
  }
  return RenderTable(planets);
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

// Good aspects first, then hard ones, under one header.
std::string PlanetAspectsHtml(const core::ApplicationState& state,
                              const chart::HoroscopeModel& model) {
  chart::HoroscopeModel filtered = model;
  std::string html = StdTableOpening() + HeaderRow(model.PlanetAspectList);
  for (const char* filter : {"+", "-"}) {
    chart::LoadPlanetAspects(filtered, state.AspectBands, filter);
    const core::Table& list = filtered.PlanetAspectList;
    for (const core::Row& row : list.Rows) {
      html += "<tr>";
      for (const std::size_t column : ShownColumns(list)) {
        html += std::string("<td valign='top'>") + (*filter == '+' ? kGoodFont : kHardFont) +
                row.Cells.at(column).Text + kFontEnd;
      }
      html += "</tr>\n";
    }
  }
  return html + "</table>\n";
}

std::string RemediesHtml(core::Table remedies) {
  if (remedies.Rows.empty()) {
    return StdTableOpening() + HeaderRow(remedies) +
           "<tr><td colspan='4' align='center'><font face='Verdana' size='2'>No records "
           "found</font></td></tr>\n</table>\n";
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
  page.Replace("PLANETS", PlanetsHtml(model.PlanetTable));
  page.Replace("PLANET2HOUSEASPECTS", AspectGridHtml(model.AspectGrid));
  page.Replace("PLANET2PLANETASPECTS", PlanetAspectsHtml(state, model));
  page.Replace("HOUSES", RenderTable(model.CuspTable));
  page.Replace("NADISIGNIFICATORS", RenderTable(model.NadiTable));
  page.Replace("PLANETSIGNIFICATORS", RenderTable(model.PlanetLevels));
  page.Replace("4STEPSIGNIFICATORS", RenderTable(model.FourStepRows));
  page.Replace("JAIMINISIGNIFICATORS", RenderTable(model.KarakaTable));
  page.Replace("ASHTAKAVARGA", RenderTable(model.AshtakavargaTable));
  page.Replace("REMEDYGIVEN", RemediesHtml(model.RemedyTable));
}

chart::TreeDepth DepthOf(ReportDetail detail) {
  switch (detail) {
    case ReportDetail::DB:
      return chart::TreeDepth::Bhukti;
    case ReportDetail::DBA:
      return chart::TreeDepth::Antara;
    case ReportDetail::DBAS:
      return chart::TreeDepth::Sookshma;
  }
  return chart::TreeDepth::Bhukti;
}

// Three tables, each of three of the nine Dashas.
void ReplaceDashas(const core::ReferenceData& reference, const chart::HoroscopeModel& model,
                   ReportDetail detail, Page& page) {
  const chart::TreeDepth depth = DepthOf(detail);
  const auto levels = static_cast<std::size_t>(depth);
  std::vector<std::string> captions = {"Dasha", "Bhukti", "Antara", "Sookshma"};
  captions.resize(levels);
  captions.emplace_back("End Date");
  std::array<std::vector<std::vector<std::string>>, 3> tables;
  const std::vector<chart::TreeRow> tree = chart::FullDashaTree(reference, model, depth);
  for (std::size_t i = 0; i < tree.size(); ++i) {
    std::vector<std::string> row(tree[i].Planets.begin(),
                                 tree[i].Planets.begin() + static_cast<std::ptrdiff_t>(levels));
    row.push_back(core::LongDateText(tree[i].End, true));
    tables.at(i * tables.size() / tree.size()).push_back(std::move(row));
  }
  page.Replace("DBA1", DashaTableHtml(captions, tables[0]));
  page.Replace("DBA2", DashaTableHtml(captions, tables[1]));
  page.Replace("DBA3", DashaTableHtml(captions, tables[2]));
}

// Red for what is missing in the Lo Shu grid.
std::string MissingCell(const core::Row& row, std::size_t column) {
  const bool missing = row.Cells.at(0).Foreground == core::kRed;
  return std::string("<td><font color='") + (missing ? "#FF0000" : "") +
         "' face='Verdana' size='2'>" + row.Cells.at(column).Text + kFontEnd;
}

std::string LoShuPlanesHtml(const core::Table& planes) {
  constexpr auto kPlane = core::Table::Index(vedic::LoShuPlaneColumn::Plane);
  constexpr auto kDescription = core::Table::Index(vedic::LoShuPlaneColumn::Description);
  std::string html = StdTableOpening() + "<tr bgcolor='#6D6D6D'>" +
                     HeaderCell(planes.Columns.at(kPlane).Caption) +
                     HeaderCell(planes.Columns.at(kDescription).Caption) + "</tr>\n";
  for (const core::Row& row : planes.Rows) {
    html += "<tr>" + MissingCell(row, kPlane) + MissingCell(row, kDescription) + "</tr>\n";
  }
  return html + "</table>\n";
}

std::string LoShuAnalysisHtml(const core::Table& analysis) {
  constexpr auto kElement = core::Table::Index(vedic::LoShuAnalysisColumn::Element);
  constexpr auto kDirection = core::Table::Index(vedic::LoShuAnalysisColumn::Direction);
  constexpr auto kMeaning = core::Table::Index(vedic::LoShuAnalysisColumn::Meaning);
  std::string html =
      "<table align='center' border='1' width='80%' cellspacing='0' cellpadding='5'>\n"
      "<tr bgcolor='#6D6D6D'>";
  for (const std::size_t column : {kElement, kDirection, kMeaning}) {
    html += HeaderCell(analysis.Columns.at(column).Caption);
  }
  html += "</tr>\n";
  for (const core::Row& row : analysis.Rows) {
    html += "<tr>" + MissingCell(row, kElement) + MissingCell(row, kDirection) + "<td>" +
            kPlainFont + row.Cells.at(kMeaning).Text + kFontEnd + "</tr>\n";
  }
  return html + "</table>\n";
}

void ReplaceLast(const core::Session& session, const chart::HoroscopeModel& model, Page& page) {
  const core::ApplicationState& state = session.State;
  page.Replace("ASTROLOGERNAME", EscapeHtml(state.AstrologerName));
  page.Replace("ASTROLOGERORGANIZATION", EscapeHtml(state.AstrologerOrganization));
  page.Replace("ASTROLOGERCONTACTDETAILS", EscapeHtml(state.AstrologerContactDetails));
  page.Replace("LOSHUGRID", LoShuGridHtml(model.LoShuCellText));
  page.Replace("LOSHUGRIDDOB", model.Captions.LoShuDate);
  page.Replace("LOSHUPLANES", LoShuPlanesHtml(model.LoShuPlanes));
  page.Replace("LOSHUANALYSIS", LoShuAnalysisHtml(model.LoShuAnalysis));
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
                         const std::string& templateText) {
  Page page(templateText);
  page.Replace("RASHICHART", charts.Rashi);
  page.Replace("KPCHART", charts.Chalit);
  ReplaceScalars(model, page);
  ReplaceTables(session.State, model, page);
  ReplaceDashas(session.Reference, model, detail, page);
  ReplaceLast(session, model, page);
  return page.Text();
}

std::filesystem::path GenerateHoroscopeView(core::Session& session,
                                            const horoscope::OpenedHoroscope& opened,
                                            const ReportRequest& request) {
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
  core::StagedFiles files;
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
  files.Add(file, FillTemplate(session, opened.Model, request.Detail, charts, templateText));
  files.Commit();
  return file;
}

}  // namespace orvex::report
