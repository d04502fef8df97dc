// The HTML report of an open horoscope: a template whose placeholders are replaced one after the
// other.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "core/session.h"
#include "core/staged_files.h"
#include "horoscope/create_horoscope.h"
#include "report/chart_picture.h"
#include "report/report_content.h"

namespace orvex::report {

// Paints a chart and gives the bytes of a bitmap file.
using ChartPainter = std::function<std::string(const ChartPicture& picture)>;

struct ReportRequest {
  ReportDetail Detail = ReportDetail::DB;
  char Style = 'N';
  ChartPainter Paint;  // not used for style 'S'
  std::optional<ReportSection> Matter;
};

// Writes <clientid>.htm into the chart folder, beside it the two pictures for styles 'N' and 'E',
// and gives its path. All of them are written before one takes its place, so that a failure leaves
// the old report with its own pictures. Where the template is missing the program's message is
// shown, nothing is written and the path is empty. std::runtime_error where the chart folder can't
// be written.
std::filesystem::path GenerateHoroscopeView(core::Session& session,
                                            const horoscope::OpenedHoroscope& opened,
                                            const ReportRequest& request);

// The same into files that get their places when the caller commits them.
std::filesystem::path StageHoroscopeView(core::Session& session,
                                         const horoscope::OpenedHoroscope& opened,
                                         const ReportRequest& request, core::StagedFiles& files);

// The report's text for a template. Charts are as in `charts`: two fragments of HTML. The matter
// that the report carries, tables under their captions, stands for [MATTER]; without one nothing
// does.
struct ChartFragments {
  std::string Rashi;
  std::string Chalit;
};
std::string FillTemplate(const core::Session& session, const chart::HoroscopeModel& model,
                         ReportDetail detail, const ChartFragments& charts,
                         const std::string& templateText,
                         const std::optional<ReportSection>& matter = std::nullopt);

}  // namespace orvex::report
