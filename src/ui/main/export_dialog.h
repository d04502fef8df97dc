// Clients as a file: which ones, as what, and where to.
#pragma once

#include <filesystem>
#include <vector>

#include "exchange/client_export.h"
#include "ui/base/form_dialog.h"

class QButtonGroup;

namespace orvex::ui {

class WorkProgress;

class ExportDialog final : public FormDialog {
  Q_OBJECT

 public:
  // What may go out, in the order of the choice; the first is chosen. The formats are set by the
  // dialog.
  ExportDialog(Workplace& place, std::vector<exchange::ExportRequest> choices, QWidget* parent);

  // The file that was written; empty where none was.
  const std::filesystem::path& Written() const { return written_; }

  // Escape and the window's close button cancel the work, without any they close the dialog.
  void reject() override;

 private:
  void LayOut();
  void Connect();
  QString NameOf(const exchange::ExportRequest& choice) const;
  void FollowChoice();
  exchange::ExportRequest Request() const;
  void Write(const exchange::ExportRequest& request, const std::filesystem::path& file);
  bool HoldsData() const override { return false; }
  void Save() override;

  std::vector<exchange::ExportRequest> choices_;
  std::filesystem::path written_;
  QButtonGroup* clients_;  // places in choices_
  QButtonGroup* formats_;  // values of ExportFormat
  WorkProgress* progress_;
};

}  // namespace orvex::ui
