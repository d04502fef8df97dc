#include <benchmark/benchmark.h>

#include "bench_home.h"
#include "core/home.h"
#include "horoscope/create_horoscope.h"
#include "report/html_report.h"
#include "report/kp_sheet.h"
#include "ui/painting/offscreen.h"
#include "ui/painting/pdf_file.h"
#include "ui/painting/picture_files.h"
#include "ui/painting/report_document.h"
#include "ui/painting/sheet_document.h"

namespace orvex::bench {
namespace {

using report::ReportDetail;

report::ReportRequest RequestOf(ReportDetail detail, char style) {
  constexpr int kSide = 720;
  return {detail, style,
          [](const report::ChartPicture& picture) {
            return ui::ChartPictureBytes(picture, ui::PictureFormat::Bmp, kSide);
          },
          std::nullopt};
}

// A home with clients and what painting needs.
class ReportHome {
 public:
  explicit ReportHome(int clients = 1) {
    for (int client = 0; client < clients; ++client) {
      Ids.push_back(chart::SaveNewClient(*Session, BenchHome::Form(*Session), 1).Id);
      home_.Tick();
    }
  }

  horoscope::OpenedHoroscope Open(std::int32_t id) const {
    return horoscope::CreateHoroscope(*Session, id).value();
  }

 private:
  ui::OffscreenPainting painting_;
  BenchHome home_;

 public:
  std::unique_ptr<core::Session> Session = home_.Start(core::StartMode::Writer);
  std::vector<std::int32_t> Ids;
};

// A report with its two pictures, from an open horoscope to the files.
void WriteAReport(benchmark::State& state, ReportDetail detail, char style) {
  const ReportHome home;
  const horoscope::OpenedHoroscope opened = home.Open(home.Ids.front());
  const report::ReportRequest request = RequestOf(detail, style);
  report::GenerateHoroscopeView(*home.Session, opened, request);  // reads the fonts
  for (auto _ : state) {
    benchmark::DoNotOptimize(report::GenerateHoroscopeView(*home.Session, opened, request));
  }
}
BENCHMARK_CAPTURE(WriteAReport, DB, ReportDetail::DB, 'N')->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WriteAReport, DBA, ReportDetail::DBA, 'E')->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WriteAReport, DBAS, ReportDetail::DBAS, 'N')->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WriteAReport, DBAS_South, ReportDetail::DBAS, 'S')->Unit(benchmark::kMillisecond);

// The bytes of a PDF, from an open horoscope.
void SetAPdf(benchmark::State& state, ReportDetail detail) {
  const ReportHome home;
  const horoscope::OpenedHoroscope opened = home.Open(home.Ids.front());
  const auto set = [&] {
    const report::ReportContent content =
        report::ContentOf(*home.Session, opened.Model, detail, 'N');
    return ui::PdfBytes(ui::Compose(ui::ReportDocument(content), {}));
  };
  benchmark::DoNotOptimize(set());
  for (auto _ : state) {
    benchmark::DoNotOptimize(set());
  }
}
BENCHMARK_CAPTURE(SetAPdf, DB, ReportDetail::DB)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SetAPdf, DBA, ReportDetail::DBA)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SetAPdf, DBAS, ReportDetail::DBAS)->Unit(benchmark::kMillisecond);

void SetTheSheet(benchmark::State& state) {
  const ReportHome home;
  const horoscope::OpenedHoroscope opened = home.Open(home.Ids.front());
  for (auto _ : state) {
    const ui::PageDocument sheet = ui::SheetDocument(report::SheetOf(*home.Session, opened, 'N'));
    benchmark::DoNotOptimize(ui::PdfBytes(ui::ComposeOnOnePage(sheet, {})));
  }
}
BENCHMARK(SetTheSheet)->Unit(benchmark::kMillisecond);

// Page and PDF of each client of a group of 100, from the store to the files.
void WriteAGroup(benchmark::State& state) {
  constexpr int kClients = 100;
  const ReportHome home(kClients);
  const report::ReportRequest request = RequestOf(ReportDetail::DB, 'N');
  for (auto _ : state) {
    for (const std::int32_t id : home.Ids) {
      const horoscope::OpenedHoroscope opened = home.Open(id);
      std::filesystem::path file = report::GenerateHoroscopeView(*home.Session, opened, request);
      ui::WriteReportPdf(report::ContentOf(*home.Session, opened.Model, ReportDetail::DB, 'N'),
                         file.replace_extension(".pdf"));
    }
  }
}
BENCHMARK(WriteAGroup)->Unit(benchmark::kSecond)->Iterations(1);

}  // namespace
}  // namespace orvex::bench
