// What all dialogs with fields share: the action and the cancel button, and what a refusal does.
#pragma once

#include <QDialog>
#include <QVariant>
#include <optional>
#include <vector>

#include "core/save_result.h"
#include "ui/base/workplace.h"

class QHBoxLayout;
class QPushButton;
class QLabel;
class QShowEvent;

namespace orvex::ui {

class MomentEdit;

class FormDialog : public QDialog {
  Q_OBJECT

 public:
  // The id that was saved; 0 while nothing was.
  std::int32_t SavedId() const { return savedId_; }

  // Escape and the window's close button: asks first where typed data would be lost.
  void reject() override;

 protected:
  FormDialog(Workplace& place, const QString& objectName, QWidget* parent);

  // The row of buttons at the foot: the action, which the Enter key presses, and "Cancel".
  QHBoxLayout* MakeButtons(const QString& action);
  QPushButton& ActionButton() { return *action_; }

  // Reads the fields and hands them to the save routine.
  virtual void Save() = 0;

  // Whether what is typed here is data that closing loses. Filters and choices for a look are none.
  virtual bool HoldsData() const { return true; }

  // Notes what the fields hold now as nothing that was typed.
  void NoteFields();

  // Takes the fields as they stand when the dialog is first shown for what was there before.
  void showEvent(QShowEvent* event) override;

  // Brings the field of that object name into sight and gives it the focus.
  virtual void FocusField(const QString& name);

  // Whether the field's text was understood; where it was not, that is refused with its words.
  bool IsRead(const MomentEdit& field);

  // Closes the dialog over what was saved, or shows why it was not and goes to the field.
  void Finish(const core::SaveResult& result);
  virtual void ShowRefusal(const core::Refusal& refusal);

  core::Session& Session() { return place_.Session; }
  Workplace& Place() { return place_; }

 private:
  Workplace& place_;
  QPushButton* action_ = nullptr;
  bool marksTexts_ = false;  // the fields stand
  std::int32_t savedId_ = 0;
  std::optional<std::vector<QVariant>> fields_;  // as they were before anything was typed
};

}  // namespace orvex::ui
