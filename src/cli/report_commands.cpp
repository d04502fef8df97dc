#include <iostream>

#include "cli/chart_style.h"
#include "cli/context.h"
#include "cli/output.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "practice/client_list.h"
#include "report/html_report.h"
#include "ui/painting/offscreen.h"
#include "ui/painting/picture_files.h"
#include "ui/painting/report_document.h"

namespace orvex::cli {

namespace {

constexpr int kPictureSide = 720;

struct ReportOptions {
  std::string Id;
  std::string Ids;
  std::string Group;
  std::string Style;
  std::string Detail = "DB";
  bool Pdf = false;
};

report::ReportDetail DetailOf(const std::string& detail) {
  if (detail == "DBAS") {
    return report::ReportDetail::DBAS;
  }
  return detail == "DBA" ? report::ReportDetail::DBA : report::ReportDetail::DB;
}

report::ReportRequest RequestOf(Context& context, const ReportOptions& options) {
  report::ReportRequest request;
  request.Detail = DetailOf(options.Detail);
  request.Style = StyleOf(context, {options.Id, options.Style});
  request.Paint = [](const report::ChartPicture& picture) {
    return ui::ChartPictureBytes(picture, ui::PictureFormat::Bmp, kPictureSide);
  };
  return request;
}

// The files of one client: the report and, where it is asked for, the PDF beside it.
std::vector<std::string> WriteReport(Context& context, const ReportOptions& options,
                                     const std::string& id) {
  const horoscope::OpenedHoroscope opened = OpenHoroscope(context, id);
  const report::ReportRequest request = RequestOf(context, options);
  const std::filesystem::path file =
      report::GenerateHoroscopeView(context.Reading(), opened, request);
  if (file.empty()) {
    throw CommandFailed("");
  }
  std::vector<std::string> files = {file.string()};
  if (options.Pdf) {
    std::filesystem::path pdf = file;
    pdf.replace_extension(".pdf");
    ui::WriteReportPdf(
        report::ContentOf(context.Reading(), opened.Model, request.Detail, request.Style), pdf);
    files.push_back(pdf.string());
  }
  return files;
}

std::vector<std::string> AskedIds(Context& context, const ReportOptions& options) {
  std::vector<std::string> ids;
  if (!options.Group.empty()) {
    for (const core::Row& client :
         practice::LoadClientsOfGroup(context.Reading(), WholeOption("--group", options.Group))
             .Rows) {
      ids.push_back(client.Tag);
    }
    return ids;
  }
  for (const std::string& id : core::Split(options.Ids, ',')) {
    ids.push_back(core::Trim(id));
    WholeOption("--ids", ids.back());
  }
  return ids;
}

// Goes on past a client that fails and names it at the end.
void RunBatch(Context& context, const ReportOptions& options) {
  const std::vector<std::string> ids = AskedIds(context, options);
  Json written = Json::array();
  std::vector<std::string> failed;
  for (std::size_t i = 0; i < ids.size(); ++i) {
    std::cerr << "Report " << i + 1 << " of " << ids.size() << "\n";
    try {
      for (const std::string& file : WriteReport(context, options, ids[i])) {
        written.push_back(file);
        if (!context.Json) {
          std::cout << file << "\n";
        }
      }
    } catch (const std::exception& error) {
      failed.push_back("client " + ids[i] + ": " + error.what());
    }
  }
  if (context.Json) {
    PrintJson({{"reports", written}, {"failed", failed}});
  }
  if (!failed.empty()) {
    throw CommandFailed("No report was written for:\n" + core::Join(failed, "\n"));
  }
}

void RunReport(Context& context, const ReportOptions& options) {
  const int ways = !options.Id.empty() + !options.Ids.empty() + !options.Group.empty();
  if (ways != 1) {
    RefuseWords("report", "needs one of ID, --ids and --group");
  }
  const ui::OffscreenPainting painting;
  if (options.Id.empty()) {
    RunBatch(context, options);
    return;
  }
  const std::vector<std::string> files = WriteReport(context, options, options.Id);
  if (context.Json) {
    PrintJson({{"report", files.front()}});
    return;
  }
  for (const std::string& file : files) {
    std::cout << file << "\n";
  }
}

}  // namespace

void AddReportCommands(Command app, Context& context) {
  auto options = std::make_shared<ReportOptions>();
  Command command = AddCommand(app, "report", "write the HTML report of a client or of many",
                               [&context, options] { RunReport(context, *options); });
  command.add_option("ID", options->Id, "id of the client");
  command.add_option("--ids", options->Ids, "ids of several clients, with commas between them");
  command.add_option("--group", options->Group, "id of a group: all its clients");
  command.add_option("--detail", options->Detail, "DB, DBA or DBAS: how deep the periods go")
      .one_of({"DB", "DBA", "DBAS"});
  command.add_option("--style", options->Style, "N north, E east, S south Indian")
      .one_of({"N", "E", "S"});
  command.add_flag("--pdf", options->Pdf, "also a PDF beside it");
}

}  // namespace orvex::cli
