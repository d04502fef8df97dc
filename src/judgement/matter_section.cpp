#include "judgement/matter_section.h"

#include <algorithm>

namespace orvex::judgement {

namespace {

constexpr std::size_t kPeriodsOfSheet = 5;

report::ReportPart Part(const char* caption, const core::Table& table, const char* whenEmpty = "") {
  return {caption, report::ReportTable{table, whenEmpty, true}};
}

report::ReportPart Periods(core::Table periods, std::size_t most) {
  periods.Rows.resize(std::min(periods.Rows.size(), most));
  return Part("Periods", periods, "No period lies within these years");
}

std::string CaptionOf(const Matter& matter) { return matter.Name + ": " + HousesText(matter); }

}  // namespace

report::ReportSection SectionOfReport(const Matter& matter, const Judgement& judged) {
  report::ReportSection section{CaptionOf(matter), {Part("Main cusp", judged.MatterChain)}};
  if (!judged.MatterCusps.Rows.empty()) {
    section.Parts.push_back(Part("Supporting cusps", judged.MatterCusps));
  }
  section.Parts.push_back(Part("Grades of the houses", judged.HouseGrades));
  section.Parts.push_back(Part("Planets", judged.MatterPlanets));
  section.Parts.push_back(Part("Ruling planets at the judgement", judged.Rulers));
  section.Parts.push_back(Periods(judged.MatterPeriods, judged.MatterPeriods.Rows.size()));
  return section;
}

report::ReportSection SectionOfSheet(const Matter& matter, const Judgement& judged) {
  return {CaptionOf(matter),
          {Part("Main cusp", judged.MatterChain), Part("Planets", judged.MatterPlanets),
           Periods(judged.MatterPeriods, kPeriodsOfSheet)}};
}

}  // namespace orvex::judgement
