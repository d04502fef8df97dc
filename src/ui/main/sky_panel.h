// The almanac of now over the user city, refreshed once a minute.
#pragma once

#include <QTimer>
#include <QWidget>

#include "panchang/sky_view.h"
#include "ui/base/workplace.h"

namespace orvex::ui {

class SkyBoard;

class SkyPanel final : public QWidget {
  Q_OBJECT

 public:
  explicit SkyPanel(Workplace& place, QWidget* parent = nullptr);

  // Computes the sky of now and shows it.
  void Refresh();
  // From here on once a minute.
  void StartTimer();

  const panchang::SkyView& View() const { return view_; }

 signals:
  void Refreshed();

 private:
  Workplace& place_;
  panchang::SkyView view_;
  QTimer minute_;
  SkyBoard* board_;
};

}  // namespace orvex::ui
