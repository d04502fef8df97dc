// The content of a report in its order, section by section, for a form that sets its pages itself.
// The order is that of the page that the program ships.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "report/chart_picture.h"
#include "report/report_tables.h"

namespace orvex::report {

struct ReportFact {
  std::string Caption;
  std::string Text;
};

// A table, what is shown where it has no rows, and whether its captions are.
struct ReportTable {
  core::Table Table;
  std::string WhenEmpty;
  bool Captions = true;
};

using ReportFacts = std::vector<ReportFact>;
using ReportCharts = std::array<ChartPicture, 2>;  // Rashi, KP
using ReportLoShu = std::array<std::string, 9>;    // row by row, lines parted by "\n"
using ReportPeriods = std::array<core::Table, 3>;  // see PeriodsOfReport
using ReportBody =
    std::variant<ReportFacts, ReportCharts, ReportTable, ReportLoShu, ReportPeriods, std::string>;

struct ReportPart {
  std::string Caption;  // "" for the part that stands directly under the section's caption
  ReportBody Body;
};

struct ReportSection {
  std::string Caption;
  std::vector<ReportPart> Parts;
};

struct ReportContent {
  std::string Name;   // with the rotation
  std::string Birth;  // moment and place
  std::string Question;
  std::string Astrologer;
  std::string Organization;
  std::string Contact;
  std::string Date;  // of today
  std::vector<ReportSection> Sections;
};

// Everything that the report of an open horoscope shows, with charts in that style. The matter that
// it carries, where it does, is its last section.
ReportContent ContentOf(const core::Session& session, const chart::HoroscopeModel& model,
                        ReportDetail detail, char style,
                        const std::optional<ReportSection>& matter = std::nullopt);

}  // namespace orvex::report
