// Births of files into the store: the files, what of them would be saved, and the saving.
#pragma once

#include <filesystem>
#include <vector>

#include "exchange/exchange_import.h"
#include "ui/base/form_dialog.h"

class QCheckBox;
class QComboBox;
class QLabel;

namespace orvex::ui {

class ElidedLabel;
class TablePlan;
class TableView;
class WorkProgress;

class ImportDialog final : public FormDialog {
  Q_OBJECT

 public:
  // New clients go to the group unless another one is chosen.
  ImportDialog(Workplace& place, std::int32_t groupId, QWidget* parent);

  // Reads files and folders once the dialog stands open.
  void ReadLater(std::vector<std::filesystem::path> paths);

  // The group that is chosen.
  std::int32_t GroupId() const;

  // What an accepted dialog has done: "12 imported, 3 already stored, 1 refused".
  QString Result() const;

  // Escape and the window's close button cancel the work, without any they close the dialog.
  void reject() override;

 signals:
  // The store is written from now on, in one batch; no other batch may be begun until it ends.
  void WritingChanged(bool writing);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void LayOut();
  QLayout* LayOutSource();
  QLayout* LayOutFoot();
  void Connect();
  void ChooseFiles();
  void ChooseFolder();
  void Read();
  void ShowPlan();
  void FollowPlan();
  void SetAtWork(bool atWork);
  bool HoldsData() const override { return false; }
  void Save() override;

  std::vector<std::filesystem::path> paths_;
  exchange::ImportPlan plan_;
  bool closeAfter_ = false;  // the work that runs is the last one
  QPushButton* files_;
  QPushButton* folder_;
  ElidedLabel* source_;
  QComboBox* group_;
  TableView* births_;
  TablePlan* birthsPlan_;
  QLabel* refusedTitle_;
  TableView* refused_;
  QCheckBox* leaveOut_;
  QLabel* status_;
  WorkProgress* progress_;
};

}  // namespace orvex::ui
