// Reports written beside the windows: pages are filled in slices between events, PDFs are set in a
// thread of their own. Each client's files appear together or not at all.
#pragma once

#include <QObject>
#include <array>
#include <atomic>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/staged_files.h"
#include "horoscope/create_horoscope.h"
#include "report/report_content.h"

class QThread;

namespace orvex::ui {

struct ReportChoice {
  report::ReportDetail Detail = report::ReportDetail::DB;
  bool Pdf = false;
  char Style = 'N';
  std::optional<report::ReportSection> Matter;  // carried as the last section
};

// The depths of the tables of periods in the order of menus.
struct DetailName {
  report::ReportDetail Detail;
  const char* Name;
};
extern const std::array<DetailName, 3> kReportDetails;
QString NameOf(const DetailName& detail);

// A client's report before its files are in their places.
struct StagedReport {
  std::unique_ptr<core::StagedFiles> Files;
  std::filesystem::path Page;                    // empty: refused with a message
  std::optional<report::ReportContent> Content;  // of the PDF, where one is wanted
};

// std::runtime_error where the files can't be written.
StagedReport StageReport(core::Session& session, const horoscope::OpenedHoroscope& opened,
                         const ReportChoice& choice);

struct ExportResult {
  std::vector<std::filesystem::path> Written;  // the PDF, else the page, of each client
  std::vector<std::string> Failures;
  bool Canceled = false;
};

class ReportExport final : public QObject {
  Q_OBJECT

 public:
  // `stage` gives the report of a place from 0 to `count` - 1; what it throws is a failure of that
  // one. It is called between events.
  ReportExport(std::size_t count, std::function<StagedReport(std::size_t)> stage, QObject* parent);
  ReportExport(const ReportExport&) = delete;
  ReportExport& operator=(const ReportExport&) = delete;
  // Cancels what has not ended, and says nothing of it.
  ~ReportExport() override;

  void Start();

  // The report in work leaves nothing; those before it stay. Ended comes when the work has stopped.
  void Cancel() { canceled_ = true; }

 signals:
  // How much is done, of a thousand.
  void Progressed(int thousandths);
  void Ended(const ExportResult& result);

 private:
  void StageNext();
  void SetPages();
  void TakePages();
  void CommitStaged();
  void Fail(const std::string& why);
  void GoOn();
  void End();
  void TellPage(std::size_t page, std::size_t pages);

  // What the thread gives back.
  struct Pages {
    std::optional<std::string> Bytes;
    std::string Failure;
  };

  std::size_t count_;
  std::function<StagedReport(std::size_t)> stage_;
  std::size_t at_ = 0;
  StagedReport staged_;
  ExportResult result_;
  std::atomic<bool> canceled_ = false;
  Pages pages_;
  std::unique_ptr<QThread> thread_;
};

}  // namespace orvex::ui
