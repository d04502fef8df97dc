#include "ui/horoscope/export_runner.h"

#include "core/own_files.h"
#include "core/text.h"
#include "ui/base/message_boxes.h"
#include "ui/base/print_page.h"
#include "ui/base/qt_text.h"
#include "ui/painting/graph_files.h"
#include "ui/painting/sheet_document.h"

namespace orvex::ui {

ExportRunner::ExportRunner(Workplace& place, QObject* parent)
    : QObject(parent), place_(place), line_(new JobLine(place)) {
  connect(line_, &JobLine::CancelWanted, this, [this] {
    if (export_ != nullptr) {
      export_->Cancel();
    }
  });
}

void ExportRunner::Run(const QString& what, std::size_t count,
                       std::function<StagedReport(std::size_t)> stage) {
  if (Runs() || count == 0) {
    return;
  }
  what_ = what;
  count_ = count;
  export_ = std::make_unique<ReportExport>(count, std::move(stage), nullptr);
  connect(export_.get(), &ReportExport::Progressed, line_, &JobLine::ShowProgress);
  connect(export_.get(), &ReportExport::Ended, this, &ExportRunner::End);
  line_->Begin(what);
  emit Began();
  export_->Start();
}

QString ExportRunner::SayingOf(const ExportResult& result) const {
  if (count_ == 1) {
    return result.Canceled          ? tr("%1: canceled").arg(what_)
           : result.Written.empty() ? tr("%1: not written").arg(what_)
                                    : tr("%1: written").arg(what_);
  }
  const QString counts = tr("%1 of %2 written").arg(result.Written.size()).arg(count_);
  return result.Canceled ? tr("%1: canceled, %2").arg(what_, counts)
                         : tr("%1: %2").arg(what_, counts);
}

void ExportRunner::End(const ExportResult& result) {
  const std::filesystem::path last =
      result.Written.empty() ? std::filesystem::path() : result.Written.back();
  line_->End(SayingOf(result), count_ == 1 ? last : std::filesystem::path(), last.parent_path());
  // It told of its end itself.
  export_.release()->deleteLater();
  emit Ended();
  if (!result.Failures.empty()) {
    const std::string failures = core::Join(result.Failures, "\n");
    Complain(place_.Session.Shown,
             count_ == 1 ? failures : "No report was written for:\n" + failures);
  }
}

void ExportRunner::WriteSheet(QWidget& window, const report::KpSheet& sheet) {
  const std::string name = sheet.Name + " - KP sheet";
  const auto file = place_.Files.ChooseFileToWrite(
      &window, "KP sheet as PDF", FileNameOf(name) + ".pdf", "PDF documents (*.pdf)");
  if (!file) {
    return;
  }
  try {
    core::CheckFileToWrite(place_.Session, *file);
    WriteSheetPdf(sheet, PaperOfLocale(), *file);
  } catch (const std::exception& error) {
    Complain(place_.Session.Shown, error.what());
    return;
  }
  line_->End(tr("KP sheet of %1: written").arg(Shown(sheet.Name)), *file, {});
  line_->show();
}

}  // namespace orvex::ui
