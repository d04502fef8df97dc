#include "report/report_tables.h"

#include <algorithm>

#include "chart/aspects.h"
#include "chart/dasha_tree.h"
#include "chart/rotation.h"
#include "chart/zodiac_lookups.h"
#include "core/cell_colors.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "vedic/lo_shu.h"

namespace orvex::report {

namespace {

// The pieces of a text around its "-", trimmed; missing ones are empty.
std::array<std::string, 2> Halves(const std::string& text) {
  const std::vector<std::string> pieces = core::Split(text, '-');
  return {core::Trim(pieces.at(0)), pieces.size() > 1 ? core::Trim(pieces[1]) : ""};
}

void AddHalves(std::vector<ReportScalar>& scalars, const char* first, const char* second,
               const std::string& text) {
  const auto [left, right] = Halves(text);
  scalars.push_back({first, left});
  scalars.push_back({second, right});
}

std::string RashiOfTag(const std::string& nakshatraTag) {
  const std::vector<std::string> fields = core::Split(nakshatraTag, '*');
  return fields.size() > 1 ? fields[1] : "";
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

// Some columns of a table. A row that is marked as missing is red in the first two, which name it.
template <typename ColumnName>
core::Table WithMissing(const core::Table& table, const std::vector<ColumnName>& columns) {
  constexpr std::size_t kNames = 2;
  core::Table chosen = ColumnsOf(table, columns);
  for (std::size_t row = 0; row < table.Rows.size(); ++row) {
    const bool missing = table.Rows[row].Cells.at(0).Foreground == core::kRed;
    for (std::size_t i = 0; i < columns.size(); ++i) {
      chosen.Rows[row].Cells[i].Foreground = missing && i < kNames ? core::kRed : "";
    }
  }
  return chosen;
}

}  // namespace

std::vector<ReportScalar> ScalarsOf(const chart::HoroscopeModel& model) {
  const chart::HoroscopeCaptions& captions = model.Captions;
  const std::string name = model.Name + chart::RotationMark(model.RotatedTo);
  std::vector<ReportScalar> scalars = {
      {"FULLNAME", name, true},
      {"CLIENTNAME", name, true},
      {"HORARYQUESTION", model.Horary ? model.HoraryQuestion : "", true},
      {"BIRTHDATE", captions.Date},
      {"SUNRISE", captions.Sunrise},
      {"SUNSET", captions.Sunset},
      {"NAKSHATRA", captions.Nakshatra},
      {"RASHI", RashiOfTag(captions.NakshatraTag)},
      {"BIRTHPLACE", captions.City, true}};
  AddHalves(scalars, "PAKSHA", "TITHI", captions.Tithi);
  AddHalves(scalars, "YOGA", "KARAN", captions.YogaKaran);
  AddHalves(scalars, "NADI", "YONI", captions.NadiYoni);
  AddHalves(scalars, "VASYA", "RAJJU", captions.VasyaRajju);
  scalars.push_back({"BADHAKHOUSE", captions.BadhakHouse});
  scalars.push_back({"LATITUDE", captions.Latitude, true});
  scalars.push_back({"LONGITUDE", captions.Longitude, true});
  scalars.push_back({"FORTUNAPOINT", captions.PartOfFortune});
  scalars.push_back({"FORTUNA", captions.PartOfFortune});
  scalars.push_back({"NUMEROLOGY", captions.Numerology});
  scalars.push_back({"DASHABALANCE", captions.DashaBalance});
  scalars.push_back({"BHRIGUBINDU", captions.BhriguBindu});
  AddHalves(scalars, "VARNA", "GANA", captions.VarnaGana);
  const bool comments = !core::Trim(model.Comments).empty();
  scalars.push_back({"COMMENTS", comments ? model.Comments : "None", comments});
  return scalars;
}

std::vector<ReportScalar> ProfileOf(const core::ApplicationState& state) {
  return {{"ASTROLOGERNAME", state.AstrologerName, true},
          {"ASTROLOGERORGANIZATION", state.AstrologerOrganization, true},
          {"ASTROLOGERCONTACTDETAILS", state.AstrologerContactDetails, true}};
}

std::string TextOf(const std::vector<ReportScalar>& scalars, const std::string& name) {
  const auto found = std::find_if(scalars.begin(), scalars.end(),
                                  [&](const ReportScalar& scalar) { return scalar.Name == name; });
  return found == scalars.end() ? "" : found->Text;
}

core::Table PlanetsOfReport(const chart::HoroscopeModel& model) {
  core::Table planets = model.PlanetTable;
  for (std::size_t row = 0; row < planets.Rows.size(); ++row) {
    std::string& degree = planets.At(row, chart::PlanetColumn::Degree).Text;
    if (const std::optional<double> longitude = core::ParseNumber(degree)) {
      const double within = *longitude - (chart::RashiOfDegree(*longitude) - 1) * 30.0;
      degree += " (" + core::TwoDecimals(within) + ")";
    }
  }
  return planets;
}

core::Table PlanetAspectsOfReport(const core::ApplicationState& state,
                                  const chart::HoroscopeModel& model) {
  chart::HoroscopeModel filtered = model;
  core::Table aspects{model.PlanetAspectList.Columns, {}};
  for (const char* filter : {"+", "-"}) {
    chart::LoadPlanetAspects(filtered, state.AspectBands, filter);
    for (core::Row row : filtered.PlanetAspectList.Rows) {
      for (core::Cell& cell : row.Cells) {
        cell.Foreground = *filter == '+' ? kGoodInk : kHardInk;
      }
      aspects.Rows.push_back(std::move(row));
    }
  }
  return aspects;
}

core::Table LoShuPlanesOfReport(const chart::HoroscopeModel& model) {
  using vedic::LoShuPlaneColumn;
  return WithMissing<LoShuPlaneColumn>(model.LoShuPlanes,
                                       {LoShuPlaneColumn::Plane, LoShuPlaneColumn::Description});
}

core::Table LoShuNumbersOfReport(const chart::HoroscopeModel& model) {
  using vedic::LoShuAnalysisColumn;
  return WithMissing<LoShuAnalysisColumn>(
      model.LoShuAnalysis,
      {LoShuAnalysisColumn::Element, LoShuAnalysisColumn::Direction, LoShuAnalysisColumn::Meaning});
}

std::array<core::Table, 3> PeriodsOfReport(const core::ReferenceData& reference,
                                           const chart::HoroscopeModel& model,
                                           ReportDetail detail) {
  const chart::TreeDepth depth = DepthOf(detail);
  const auto levels = static_cast<std::size_t>(depth);
  std::vector<core::Column> columns = {{"Dasha"}, {"Bhukti"}, {"Antara"}, {"Sookshma"}};
  columns.resize(levels);
  columns.push_back({"End Date"});
  std::array<core::Table, 3> tables;
  tables.fill({columns, {}});
  const std::vector<chart::TreeRow> tree = chart::FullDashaTree(reference, model, depth);
  for (std::size_t i = 0; i < tree.size(); ++i) {
    core::Row& row = tables.at(i * tables.size() / tree.size()).AddRow();
    for (std::size_t level = 0; level < levels; ++level) {
      row.Cells[level].Text = tree[i].Planets.at(level);
    }
    row.Cells[levels].Text = core::LongDateText(tree[i].End, true);
  }
  return tables;
}

std::vector<std::size_t> ShownColumns(const core::Table& table) {
  std::vector<std::size_t> shown;
  for (std::size_t i = 0; i < table.Columns.size(); ++i) {
    if (table.Columns[i].Width != 0) {
      shown.push_back(i);
    }
  }
  return shown;
}

}  // namespace orvex::report
