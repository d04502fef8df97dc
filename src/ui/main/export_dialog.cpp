#include "ui/main/export_dialog.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>

#include "ui/base/labels.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/main/work_progress.h"

namespace orvex::ui {

namespace {

using exchange::ExportedClients;
using exchange::ExportFormat;

constexpr std::array<const char*, 4> kClientNames = {"exportClient", "exportGroup", "exportAll",
                                                     "exportFound"};

// In the order of ExportFormat.
struct FormatName {
  const char* Name;
  const char* Text;
  const char* Filter;
};
constexpr std::array<FormatName, 3> kFormats = {{
    {"asAaf", QT_TRANSLATE_NOOP("ExportDialog", "AAF, which other programs read"),
     "Astrological Exchange Format (*.aaf)"},
    {"asCsv", QT_TRANSLATE_NOOP("ExportDialog", "CSV, which keeps everything"),
     "Comma-separated (*.csv)"},
    {"asSpreadsheet", QT_TRANSLATE_NOOP("ExportDialog", "Spreadsheet, as the list shows it"),
     "Spreadsheets (*.xlsx)"},
}};

}  // namespace

ExportDialog::ExportDialog(Workplace& place, std::vector<exchange::ExportRequest> choices,
                           QWidget* parent)
    : FormDialog(place, "exportDialog", parent),
      choices_(std::move(choices)),
      clients_(new QButtonGroup(this)),
      formats_(new QButtonGroup(this)),
      progress_(new WorkProgress("exportProgress")) {
  setWindowTitle(tr("Export"));
  LayOut();
  Connect();
  FollowChoice();
}

void ExportDialog::LayOut() {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addWidget(MakeHeading(tr("Clients")));
  for (std::size_t place = 0; place < choices_.size(); ++place) {
    const exchange::ExportRequest& choice = choices_[place];
    auto* button = Named(new QRadioButton(NameOf(choice)),
                         kClientNames.at(static_cast<std::size_t>(choice.Clients)));
    clients_->addButton(button, static_cast<int>(place));
    button->setChecked(place == 0);
    layout->addWidget(button);
  }
  layout->addSpacing(kGrid);
  layout->addWidget(MakeHeading(tr("File")));
  for (std::size_t format = 0; format < kFormats.size(); ++format) {
    auto* button = Named(new QRadioButton(tr(kFormats.at(format).Text)), kFormats.at(format).Name);
    formats_->addButton(button, static_cast<int>(format));
    button->setChecked(format == 0);
    layout->addWidget(button);
  }
  auto* foot = new QHBoxLayout;
  foot->addWidget(progress_);
  foot->addLayout(MakeButtons(tr("&Export…")), 1);
  layout->addLayout(foot);
}

void ExportDialog::Connect() {
  connect(clients_, &QButtonGroup::idToggled, this, &ExportDialog::FollowChoice);
  // While the work runs the button cancels it, as Escape does.
  auto* cancel = findChild<QPushButton*>("cancel");
  cancel->disconnect(this);
  connect(cancel, &QPushButton::clicked, this, &ExportDialog::reject);
}

QString ExportDialog::NameOf(const exchange::ExportRequest& choice) const {
  const QString title = Shown(choice.Title).replace('&', "&&");
  switch (choice.Clients) {
    case ExportedClients::One:
      return tr("The client %1").arg(title);
    case ExportedClients::Group:
      return tr("The group %1").arg(title);
    case ExportedClients::Found:
      return tr("What the search has found (%1)").arg(choice.Found.Rows.size());
    default:
      return tr("All clients");
  }
}

// A format that the chosen clients do not have can't be chosen.
void ExportDialog::FollowChoice() {
  const ExportedClients clients =
      choices_.at(static_cast<std::size_t>(std::max(0, clients_->checkedId()))).Clients;
  for (QAbstractButton* button : formats_->buttons()) {
    const auto format = static_cast<ExportFormat>(formats_->id(button));
    button->setEnabled(exchange::CanExport(clients, format));
  }
  if (!formats_->checkedButton()->isEnabled()) {
    formats_->button(0)->setChecked(true);
  }
}

exchange::ExportRequest ExportDialog::Request() const {
  exchange::ExportRequest request = choices_.at(static_cast<std::size_t>(clients_->checkedId()));
  request.Format = static_cast<ExportFormat>(formats_->checkedId());
  return request;
}

void ExportDialog::Save() {
  if (progress_->IsAtWork()) {
    return;
  }
  const exchange::ExportRequest request = Request();
  const auto file = Place().Files.ChooseFileToWrite(
      this, "Export", exchange::ExportFileName(request.Title, request.Format),
      kFormats.at(static_cast<std::size_t>(request.Format)).Filter);
  if (file) {
    Write(request, *file);
  }
}

void ExportDialog::Write(const exchange::ExportRequest& request,
                         const std::filesystem::path& file) {
  progress_->Begin();
  ActionButton().setEnabled(false);
  const auto refused = exchange::ExportClients(
      Session(), request, file,
      [this](std::size_t done, std::size_t all) { return progress_->GoOn(done, all); });
  ActionButton().setEnabled(true);
  progress_->End();
  if (refused) {
    ShowRefusal(*refused);
  } else if (progress_->IsCanceled()) {
    QDialog::reject();
  } else {
    written_ = file;
    accept();
  }
}

void ExportDialog::reject() {
  if (progress_->IsAtWork()) {
    progress_->Cancel();
    return;
  }
  QDialog::reject();
}

}  // namespace orvex::ui
