// Which periods are ranked: years ahead, a whole life, between two dates, at ages of the client.
#pragma once

#include <QWidget>

#include "judgement/period_windows.h"

class QComboBox;
class QLineEdit;

namespace orvex::ui {

class DateEdit;

class PeriodFilter final : public QWidget {
  Q_OBJECT

 public:
  PeriodFilter();

  // Offers the spans of a horoscope from now on; the span that is chosen stays after the first
  // call.
  void SetHoroscope(const core::ReferenceData& reference, const chart::HoroscopeModel& model,
                    core::DateTime now);

  const judgement::PeriodWindow& Window() const { return window_; }

 signals:
  // Another span is chosen.
  void Changed();
  // What was typed is no span; why not.
  void Refused(const QString& words);

 private:
  void Take(const judgement::PeriodWindow& window);
  void TakeChoice();
  void TakeDates();
  void TakeAges();
  void ShowDates();

  QComboBox* spans_;
  DateEdit* from_;
  DateEdit* to_;
  QLineEdit* ages_;
  core::DateTime birth_{};
  core::DateTime now_{};
  std::optional<judgement::PeriodWindow> life_;
  judgement::PeriodWindow window_;
};

}  // namespace orvex::ui
