// The almanac of now over the user city, refreshed once a minute.
#pragma once

#include <QTimer>
#include <QWidget>

#include "panchang/sky_view.h"
#include "ui/base/workplace.h"

class QLabel;
class QSplitter;

namespace orvex::ui {

class ChartView;
class TableView;

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
  void Build();
  QWidget* BuildHeader();
  QWidget* BuildChart();
  void Show();
  void ShowHeader();

  Workplace& place_;
  panchang::SkyView view_;
  QTimer minute_;
  QWidget* header_;
  QLabel* title_;
  QLabel* day_;
  QLabel* city_;
  QLabel* moon_;
  ChartView* chart_;
  TableView* ruling_;
  TableView* panchang_;
  TableView* planets_;
};

}  // namespace orvex::ui
