#include "ui/horoscope/report_export.h"

#include <QThread>
#include <QTimer>

#include "report/html_report.h"
#include "ui/painting/page_composer.h"
#include "ui/painting/pdf_file.h"
#include "ui/painting/picture_files.h"
#include "ui/painting/report_document.h"

namespace orvex::ui {

namespace {

constexpr int kPictureSide = 720;
constexpr int kAll = 1000;

}  // namespace

const std::array<DetailName, 3> kReportDetails = {{
    {report::ReportDetail::DB, QT_TRANSLATE_NOOP("ReportExport", "Dasha and Bhukti")},
    {report::ReportDetail::DBA, QT_TRANSLATE_NOOP("ReportExport", "Dasha, Bhukti and Antara")},
    {report::ReportDetail::DBAS,
     QT_TRANSLATE_NOOP("ReportExport", "Dasha, Bhukti, Antara and Sookshma")},
}};

QString NameOf(const DetailName& detail) { return ReportExport::tr(detail.Name); }

StagedReport StageReport(core::Session& session, const horoscope::OpenedHoroscope& opened,
                         const ReportChoice& choice) {
  report::ReportRequest request;
  request.Detail = choice.Detail;
  request.Style = choice.Style;
  request.Matter = choice.Matter;
  request.Paint = [](const report::ChartPicture& picture) {
    return ChartPictureBytes(picture, PictureFormat::Bmp, kPictureSide);
  };
  StagedReport staged;
  staged.Files = std::make_unique<core::StagedFiles>();
  staged.Page = report::StageHoroscopeView(session, opened, request, *staged.Files);
  if (choice.Pdf) {
    staged.Content =
        report::ContentOf(session, opened.Model, choice.Detail, choice.Style, choice.Matter);
  }
  return staged;
}

ReportExport::ReportExport(std::size_t count, std::function<StagedReport(std::size_t)> stage,
                           QObject* parent)
    : QObject(parent), count_(count), stage_(std::move(stage)) {}

ReportExport::~ReportExport() {
  canceled_ = true;
  if (thread_ != nullptr) {
    thread_->wait();
  }
}

void ReportExport::Start() { QTimer::singleShot(0, this, &ReportExport::StageNext); }

void ReportExport::StageNext() {
  if (canceled_ || at_ == count_) {
    End();
    return;
  }
  try {
    staged_ = stage_(at_);
  } catch (const std::exception& error) {
    Fail(error.what());
    return;
  }
  if (staged_.Page.empty()) {
    End();
    return;
  }
  if (staged_.Content) {
    SetPages();
  } else {
    CommitStaged();
  }
}

// The thread has the content to itself until it ends; the store and the sky stay here.
void ReportExport::SetPages() {
  pages_ = {};
  thread_.reset(QThread::create([this] {
    try {
      const PageDocument document = ReportDocument(*staged_.Content);
      pages_.Bytes = PdfBytes(Compose(document, {}), [this](std::size_t page, std::size_t pages) {
        TellPage(page, pages);
        return !canceled_;
      });
    } catch (const std::exception& error) {
      pages_.Failure = error.what();
    }
  }));
  connect(thread_.get(), &QThread::finished, this, &ReportExport::TakePages);
  thread_->start();
}

// Called in the thread; the signal comes to the windows in theirs.
void ReportExport::TellPage(std::size_t page, std::size_t pages) {
  const std::size_t done = kAll * at_ + kAll * page / pages;
  emit Progressed(static_cast<int>(done / count_));
}

void ReportExport::TakePages() {
  thread_->wait();
  if (canceled_) {
    End();
    return;
  }
  if (!pages_.Bytes) {
    Fail(pages_.Failure);
    return;
  }
  try {
    std::filesystem::path pdf = staged_.Page;
    pdf.replace_extension(".pdf");
    staged_.Files->Add(pdf, *pages_.Bytes);
    staged_.Page = pdf;
  } catch (const std::exception& error) {
    Fail(error.what());
    return;
  }
  CommitStaged();
}

void ReportExport::CommitStaged() {
  try {
    staged_.Files->Commit();
    result_.Written.push_back(staged_.Page);
  } catch (const std::exception& error) {
    Fail(error.what());
    return;
  }
  GoOn();
}

void ReportExport::Fail(const std::string& why) {
  result_.Failures.push_back(why);
  GoOn();
}

void ReportExport::GoOn() {
  staged_ = {};
  ++at_;
  emit Progressed(static_cast<int>(kAll * at_ / count_));
  Start();
}

void ReportExport::End() {
  result_.Canceled = canceled_ && at_ < count_;
  staged_ = {};
  emit Ended(result_);
}

}  // namespace orvex::ui
