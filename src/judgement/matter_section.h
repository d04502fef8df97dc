// A judged matter as a section that papers for the client carry: the report, the sheet.
#pragma once

#include "judgement/judge_matter.h"
#include "report/report_content.h"

namespace orvex::judgement {

// "Marriage: 7 | 2 11 | 1 6 10" with all tables of the matter.
report::ReportSection SectionOfReport(const Matter& matter, const Judgement& judged);

// The same with what fits on the sheet: the chain, the planets and the best of the periods.
report::ReportSection SectionOfSheet(const Matter& matter, const Judgement& judged);

}  // namespace orvex::judgement
