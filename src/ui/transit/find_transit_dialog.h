// Finds the next hour in which a planet passes a degree, a star's quarter or a sign.
#pragma once

#include <QElapsedTimer>

#include "transit/find_transit_tool.h"
#include "ui/base/form_dialog.h"

class QComboBox;
class QGridLayout;
class QHBoxLayout;
class QLineEdit;
class QProgressBar;
class QRadioButton;

namespace orvex::ui {

class DateEdit;
class TableView;

// Accepted where the grid is to show what was found.
class FindTransitDialog final : public FormDialog {
  Q_OBJECT

 public:
  explicit FindTransitDialog(Workplace& place, QWidget* parent = nullptr);

  // Where the transit found last lies in the grid.
  const transit::GridMark& Mark() const { return mark_; }

  // The first call while it searches ends the search and leaves the dialog open.
  void reject() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void LayOut();
  QGridLayout* BuildTarget();
  QHBoxLayout* BuildActions();
  void FillLists();
  void Connect();
  void FollowKind();
  transit::FindForm ReadForm();
  void Save() override;
  bool HoldsData() const override { return false; }
  void Begin();
  bool GoOn(core::DateTime date);
  void End(const transit::FindResult& result);
  void CancelFind();
  void SyncToGrid();

  bool searching_ = false;
  bool searchCanceled_ = false;
  bool closeAfter_ = false;
  QElapsedTimer sinceEvents_;
  transit::GridMark mark_;
  std::string tag_;
  QComboBox* planet_;
  DateEdit* from_;
  QRadioButton* byDegree_;
  QRadioButton* byNakshatra_;
  QRadioButton* byRashi_;
  QLineEdit* degree_;
  QComboBox* nakshatra_;
  QComboBox* pada_;
  QComboBox* rashi_;
  QPushButton* find_;
  QPushButton* cancel_;
  QPushButton* sync_;
  QLabel* result_;
  QLabel* status_;
  QLabel* searched_;
  QProgressBar* progress_;
  TableView* hours_;
};

}  // namespace orvex::ui
