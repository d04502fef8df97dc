// The date and the time of a birth or query, each with what was understood beside it.
#pragma once

#include <QObject>
#include <optional>

#include "core/clock.h"

namespace orvex::ui {

class DateEdit;
class FormRows;
class LinkButton;
class MomentEdit;
class TimeEdit;

class MomentFields final : public QObject {
  Q_OBJECT

 public:
  // The clock tells what "now" is.
  MomentFields(const core::Clock& clock, QObject* owner);

  void AddTo(FormRows& rows);

  // Nothing while one of the two is not understood.
  std::optional<core::DateTime> Moment() const;
  void ShowMoment(core::DateTime moment);
  void ShowNow();

  // The field that is not understood; null where both are.
  const MomentEdit* Unread() const;

 signals:
  void Changed();

 private:
  const core::Clock& clock_;
  DateEdit* date_;
  TimeEdit* time_;
  LinkButton* now_;
};

}  // namespace orvex::ui
