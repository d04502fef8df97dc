// The page Today: the whole sky of now, and whose birthday is today.
#pragma once

#include <QWidget>

#include "panchang/sky_view.h"
#include "ui/base/workplace.h"

namespace orvex::ui {

class BirthdayList;
class SkyBoard;

class TodayPage final : public QWidget {
  Q_OBJECT

 public:
  explicit TodayPage(Workplace& place);

  // Another sky; it is shown when the page is in sight. `view` lives as long as the page.
  void ShowSky(const panchang::SkyView& view);

  BirthdayList& Birthdays() { return *birthdays_; }

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  const panchang::SkyView* view_ = nullptr;
  SkyBoard* board_;
  BirthdayList* birthdays_;
};

}  // namespace orvex::ui
