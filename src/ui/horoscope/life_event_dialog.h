// Notes an event of a client's life or changes one.
#pragma once

#include "judgement/life_events.h"
#include "ui/base/form_dialog.h"

class QComboBox;

namespace orvex::ui {

class DateEdit;

class LifeEventDialog final : public FormDialog {
  Q_OBJECT

 public:
  // A new event of a client, today.
  static LifeEventDialog* ForNew(Workplace& place, std::int32_t clientId,
                                 QWidget* parent = nullptr);

  // A stored one; null where it is gone, after the program's message.
  static LifeEventDialog* ForEdit(Workplace& place, std::int32_t eventId,
                                  QWidget* parent = nullptr);

 private:
  LifeEventDialog(Workplace& place, const judgement::EventForm& form, QWidget* parent);
  void Build(const QString& title, const QString& action);
  void FillMatters(std::int32_t matterId);
  void Save() override;

  std::int32_t clientId_ = 0;  // of a new event
  std::int32_t eventId_ = 0;   // of a stored one
  DateEdit* date_;
  QComboBox* matter_;
  QLineEdit* remark_;
};

}  // namespace orvex::ui
