#include "report/report_content.h"

#include "core/text.h"
#include "vedic/lo_shu_tables.h"

namespace orvex::report {

namespace {

// The captions of the facts of a birth and the names of their texts.
struct FactPlan {
  const char* Caption;
  const char* Name;
};

constexpr FactPlan kFacts[] = {{"Sunrise", "SUNRISE"},
                               {"Sunset", "SUNSET"},
                               {"Nakshatra", "NAKSHATRA"},
                               {"Moon sign", "RASHI"},
                               {"Paksha", "PAKSHA"},
                               {"Tithi", "TITHI"},
                               {"Yoga", "YOGA"},
                               {"Karan", "KARAN"},
                               {"Varna", "VARNA"},
                               {"Gana", "GANA"},
                               {"Nadi", "NADI"},
                               {"Yoni", "YONI"},
                               {"Vasya", "VASYA"},
                               {"Rajju", "RAJJU"},
                               {"Badhak house", "BADHAKHOUSE"},
                               {"Part of Fortune", "FORTUNAPOINT"},
                               {"Bhrigu Bindu", "BHRIGUBINDU"},
                               {"Numerology", "NUMEROLOGY"},
                               {"Dasha balance", "DASHABALANCE"}};

ReportFacts FactsOf(const std::vector<ReportScalar>& scalars) {
  ReportFacts facts = {
      {"Date and time", TextOf(scalars, "BIRTHDATE")},
      {"Place", TextOf(scalars, "BIRTHPLACE")},
      {"Latitude, longitude", TextOf(scalars, "LATITUDE") + ", " + TextOf(scalars, "LONGITUDE")}};
  for (const FactPlan& fact : kFacts) {
    facts.push_back({fact.Caption, TextOf(scalars, fact.Name)});
  }
  return facts;
}

ReportCharts ChartsOf(const chart::HoroscopeModel& model, char style) {
  const ChartCells cells = BuildChartCells(model);
  return {RashiPicture(cells, style), ChalitPicture(cells, style)};
}

ReportLoShu LoShuOf(const chart::HoroscopeModel& model) {
  ReportLoShu cells;
  for (std::size_t place = 0; place < cells.size(); ++place) {
    const auto number = static_cast<std::size_t>(vedic::kLoShuCells.at(place).Number);
    cells.at(place) = core::ReplaceAll(model.LoShuCellText.at(number), "*", "\n");
  }
  return cells;
}

ReportPart Part(const core::Table& table, const char* caption = "") {
  return {caption, ReportTable{table, "", true}};
}

ReportSection Section(const char* caption, const core::Table& table) {
  return {caption, {Part(table)}};
}

// A table that stands without captions, row by row.
ReportPart Bare(const core::Table& table) { return {"", ReportTable{table, "", false}}; }

}  // namespace

ReportContent ContentOf(const core::Session& session, const chart::HoroscopeModel& model,
                        ReportDetail detail, char style,
                        const std::optional<ReportSection>& matter) {
  const std::vector<ReportScalar> scalars = ScalarsOf(model);
  const core::ApplicationState& state = session.State;
  ReportContent content;
  content.Name = TextOf(scalars, "FULLNAME");
  content.Birth = TextOf(scalars, "BIRTHDATE") + ", " + TextOf(scalars, "BIRTHPLACE");
  content.Question = TextOf(scalars, "HORARYQUESTION");
  content.Astrologer = state.AstrologerName;
  content.Organization = state.AstrologerOrganization;
  content.Contact = state.AstrologerContactDetails;
  content.Date = core::LongDateText(session.Time.Today(), false);
  content.Sections = {
      {"Birth", {{"", FactsOf(scalars)}}},
      {"Charts", {{"", ChartsOf(model, style)}}},
      Section("Planets", PlanetsOfReport(model)),
      Section("Cusps", model.CuspTable),
      {"Ruling planets", {Bare(model.RulingPlanets)}},
      {"Significators",
       {Part(model.NadiTable, "Nadi significators"), Part(model.PlanetLevels, "Planets by level")}},
      Section("Four-step check", model.FourStepRows),
      {"Aspects",
       {Part(model.AspectGrid, "Planets to houses"),
        Part(PlanetAspectsOfReport(state, model), "Planets to planets")}},
      Section("Ashtakavarga", model.AshtakavargaTable),
      Section("Jaimini karakas", model.KarakaTable),
      Section("Bhrigu Nandi Nadi", model.BnnTable),
      {"Lo Shu grid of " + model.Captions.LoShuDate,
       {{"", LoShuOf(model)},
        Part(LoShuPlanesOfReport(model), "Planes"),
        Part(LoShuNumbersOfReport(model), "Numbers")}},
      Section("Vastu", model.ImpactTable),
      {"Remedies and notes",
       {{"", ReportTable{model.RemedyTable, kNoRemedies, true}},
        {"Notes", TextOf(scalars, "COMMENTS")}}},
      {"Vimshottari periods", {{"", PeriodsOfReport(session.Reference, model, detail)}}}};
  if (matter) {
    content.Sections.push_back(*matter);
  }
  return content;
}

}  // namespace orvex::report
