#include <iostream>

#include "cli/chart_style.h"
#include "cli/context.h"
#include "cli/output.h"
#include "core/own_files.h"
#include "ui/painting/offscreen.h"
#include "ui/painting/sheet_document.h"

namespace orvex::cli {

namespace {

struct SheetOptions {
  ChartStyleOptions Chart;
  std::string Paper = "A4";
  std::string File;
};

void RunSheet(Context& context, const SheetOptions& options) {
  core::Session& session = context.Reading();
  core::CheckFileToWrite(session, options.File);
  const ui::OffscreenPainting painting;
  const horoscope::OpenedHoroscope opened = OpenHoroscope(context, options.Chart.Id);
  const char style = StyleOf(context, options.Chart);
  const QPageSize paper(options.Paper == "A5" ? QPageSize::A5 : QPageSize::A4);
  ui::WriteSheetPdf(report::SheetOf(session, opened, style), paper, options.File);
  if (context.Json) {
    PrintJson({{"sheet", options.File}});
    return;
  }
  std::cout << options.File << "\n";
}

}  // namespace

void AddSheetCommand(Command app, Context& context) {
  auto options = std::make_shared<SheetOptions>();
  Command command = AddCommand(app, "sheet", "the one-page sheet of a client as PDF",
                               [&context, options] { RunSheet(context, *options); });
  AddStyleOptions(command, options->Chart);
  command.add_option("--paper", options->Paper, "A4 or A5").one_of({"A4", "A5"});
  command.add_option("--file", options->File, "the .pdf file to write").required();
}

}  // namespace orvex::cli
