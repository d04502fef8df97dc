#include <benchmark/benchmark.h>

#include "bench_home.h"
#include "core/home.h"
#include "horoscope/create_horoscope.h"
#include "report/html_report.h"
#include "ui/painting/offscreen.h"
#include "ui/painting/picture_files.h"

namespace orvex::bench {
namespace {

// A report with its two pictures, from an open horoscope to the files.
void WriteAReport(benchmark::State& state, report::ReportDetail detail, char style) {
  const ui::OffscreenPainting painting;
  BenchHome home;
  const std::unique_ptr<core::Session> session = home.Start(core::StartMode::Writer);
  const std::int32_t id = chart::SaveNewClient(*session, BenchHome::Form(*session), 1).Id;
  const horoscope::OpenedHoroscope opened = horoscope::CreateHoroscope(*session, id).value();
  constexpr int kSide = 720;
  const report::ReportRequest request{detail, style, [](const report::ChartPicture& picture) {
                                        return ui::ChartPictureBytes(picture,
                                                                     ui::PictureFormat::Bmp, kSide);
                                      }};
  report::GenerateHoroscopeView(*session, opened, request);  // reads the fonts
  for (auto _ : state) {
    benchmark::DoNotOptimize(report::GenerateHoroscopeView(*session, opened, request));
  }
}
BENCHMARK_CAPTURE(WriteAReport, DB, report::ReportDetail::DB, 'N')->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WriteAReport, DBA, report::ReportDetail::DBA, 'E')->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WriteAReport, DBAS, report::ReportDetail::DBAS, 'N')
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WriteAReport, DBAS_South, report::ReportDetail::DBAS, 'S')
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orvex::bench
