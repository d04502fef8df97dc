// A temporary home with a session and one client, for benchmarks.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <stdexcept>
#include <string>

#include "astro/ephemeris_gateway.h"
#include "chart/client_saving.h"
#include "core/startup.h"

namespace orvex::bench {

class BenchHome {
 public:
  BenchHome() : clock_(core::ParseDateTime("2026-11-24 10:00").value()) {
    std::string pattern = (std::filesystem::temp_directory_path() / "orvex-bench-XXXXXX").string();
    folder_ = ::mkdtemp(pattern.data());
  }
  BenchHome(const BenchHome&) = delete;
  BenchHome& operator=(const BenchHome&) = delete;
  ~BenchHome() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }

  core::StartupPlan Plan(core::StartMode mode) const {
    return {core::Home{folder_ / "home"}, ORVEX_DATA_FOLDER, folder_ / "machine.json", mode};
  }

  std::unique_ptr<core::Session> Start(core::StartMode mode) {
    auto session = core::RunStartup(Plan(mode), clock_, messages_, ephemeris_);
    if (!session) {
      throw std::runtime_error("the home could not be opened");
    }
    return session;
  }

  static chart::ClientForm Form(const core::Session& session) {
    chart::ClientForm form = chart::OpenAddClient(session);
    form.FullName = "Client";
    form.Birth = core::ParseDateTime("1990-07-05 14:30").value();
    chart::SelectCity(session, 1, form);
    return form;
  }

  void Tick() { clock_.Set(clock_.Now() + std::chrono::seconds(1)); }

 private:
  std::filesystem::path folder_;
  core::FixedClock clock_;
  core::RecordedMessages messages_;
  astro::EphemerisGateway ephemeris_;
};

}  // namespace orvex::bench
