// What all dialogs with fields share: the action and the cancel button, and what a refusal does.
#pragma once

#include <QDialog>
#include <optional>

#include "core/save_result.h"
#include "ui/base/workplace.h"

class QHBoxLayout;
class QPushButton;
class QLabel;

namespace orvex::ui {

class FormDialog : public QDialog {
  Q_OBJECT

 public:
  // The id that was saved; 0 while nothing was.
  std::int32_t SavedId() const { return savedId_; }

 protected:
  FormDialog(Workplace& place, const QString& objectName, QWidget* parent);

  // The row of buttons at the foot: the action, which the Enter key presses, and "Cancel".
  QHBoxLayout* MakeButtons(const QString& action);
  QPushButton& ActionButton() { return *action_; }

  // Reads the fields and hands them to the save routine.
  virtual void Save() = 0;

  // Brings the field of that object name into sight and gives it the focus.
  virtual void FocusField(const QString& name);

  // Closes the dialog over what was saved, or shows why it was not and goes to the field.
  void Finish(const core::SaveResult& result);
  void ShowRefusal(const core::Refusal& refusal);

  core::Session& Session() { return place_.Session; }
  Workplace& Place() { return place_; }

  void showEvent(QShowEvent* event) override;

 private:
  Workplace& place_;
  QPushButton* action_ = nullptr;
  bool marksTexts_ = false;  // the fields stand
  std::int32_t savedId_ = 0;
};

}  // namespace orvex::ui
