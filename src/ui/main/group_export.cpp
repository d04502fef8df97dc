#include "ui/main/group_export.h"

#include <QMenu>

#include "practice/client_list.h"
#include "ui/base/qt_text.h"
#include "ui/horoscope/export_runner.h"
#include "ui/main/client_lists.h"

namespace orvex::ui {

namespace {

// A client is named where its report fails.
StagedReport StageClient(core::Session& session, const std::string& name, std::int32_t id,
                         const ReportChoice& choice) {
  try {
    const auto opened = horoscope::CreateHoroscope(session, id);
    if (!opened) {
      throw std::runtime_error("is gone");
    }
    return StageReport(session, *opened, choice);
  } catch (const std::exception& error) {
    throw std::runtime_error(name + ": " + error.what());
  }
}

}  // namespace

GroupExport::GroupExport(Workplace& place, ClientLists& lists, QWidget& window)
    : QObject(&window),
      place_(place),
      lists_(lists),
      menu_(new QMenu(tr("E&xport Reports"), &window)),
      exports_(new ExportRunner(place, this)) {
  menu_->setObjectName("groupReports");
  FillMenu();
  connect(&lists, &ClientLists::ChoiceChanged, this, &GroupExport::Follow);
  connect(exports_, &ExportRunner::Began, this, &GroupExport::Follow);
  connect(exports_, &ExportRunner::Ended, this, &GroupExport::Follow);
  Follow();
}

JobLine* GroupExport::Line() { return exports_->Line(); }

void GroupExport::FillMenu() {
  for (const bool pdf : {false, true}) {
    for (const DetailName& detail : kReportDetails) {
      const QString text = (pdf ? tr("Report and PDF: %1") : tr("Report: %1"));
      menu_->addAction(text.arg(NameOf(detail)), this, [this, detail, pdf] {
        Export({detail.Detail, pdf, place_.Session.State.DefaultChartType, std::nullopt});
      });
    }
  }
}

void GroupExport::Follow() {
  menu_->setEnabled(lists_.Group() != 0 && !lists_.Clients().Rows.empty() && !exports_->Runs());
}

void GroupExport::Export(const ReportChoice& choice) {
  std::vector<std::pair<std::string, std::int32_t>> clients;
  for (const core::Row& row : practice::LoadClientsOfGroup(place_.Session, lists_.Group()).Rows) {
    clients.emplace_back(row.Cells.front().Text, IdOfTag(row.Tag).value_or(0));
  }
  const std::size_t count = clients.size();
  exports_->Run(tr("Reports of %1").arg(lists_.GroupName()), count,
                [this, choice, clients = std::move(clients)](std::size_t place) {
                  const auto& [name, id] = clients.at(place);
                  return StageClient(place_.Session, name, id, choice);
                });
}

}  // namespace orvex::ui
