// One export at a time with its job line, for the windows that offer it.
#pragma once

#include "report/kp_sheet.h"
#include "ui/base/job_line.h"
#include "ui/horoscope/report_export.h"

namespace orvex::ui {

class ExportRunner final : public QObject {
  Q_OBJECT

 public:
  ExportRunner(Workplace& place, QObject* parent);

  // Stands in the status line of the window, whose it becomes.
  JobLine* Line() { return line_; }

  bool Runs() const { return export_ != nullptr; }

  // Begins an export unless one runs. `what` names it in the line, such as "Report of Asha Rao";
  // the rest as for ReportExport.
  void Run(const QString& what, std::size_t count, std::function<StagedReport(std::size_t)> stage);

  // Asks for a file and writes the one sheet of a client into it, on the paper of the locale.
  void WriteSheet(QWidget& window, const report::KpSheet& sheet);

 signals:
  void Began();
  void Ended();

 private:
  void End(const ExportResult& result);
  QString SayingOf(const ExportResult& result) const;

  Workplace& place_;
  JobLine* line_;
  QString what_;
  std::size_t count_ = 0;
  std::unique_ptr<ReportExport> export_;
};

}  // namespace orvex::ui
