// One planet on one date, hour by hour or by five minutes, beside the sky of a picked instant.
#pragma once

#include <QDialog>

#include "transit/transit_details.h"
#include "ui/transit/sky_board.h"

class QHBoxLayout;
class QLabel;
class QPushButton;
class QStackedWidget;

namespace orvex::ui {

class LinkButton;
class TimeEdit;

class TransitDetailsDialog final : public QDialog {
  Q_OBJECT

 public:
  // `date` is one of the user city's clock; the sky is that of the present time of day.
  TransitDetailsDialog(Workplace& place, transit::Planet planet, core::DateTime date,
                       QWidget* parent = nullptr);

 protected:
  void hideEvent(QHideEvent* event) override;

 private:
  void LayOut();
  QWidget* BuildPlanet();
  QWidget* BuildSky();
  void Connect();
  void ShowDay(transit::Planet planet, core::DateTime date);
  void ShowHours();
  void ShowMinutes(const QString& hourTag);
  void ShowSky();
  void Move(int days);
  transit::DetailsSubject Subject() const;

  Workplace& place_;
  panchang::SkyView view_;
  std::string tag_;
  QLabel* title_;
  QPushButton* previous_;
  QPushButton* next_;
  LinkButton* today_;
  LinkButton* backToHours_;
  QLabel* hour_;
  QStackedWidget* tables_;
  TableView* hours_;
  TableView* minutes_;
  TableView* changes_;
  TimeEdit* picker_;
  QPushButton* go_;
  SkyBoard* sky_;
};

}  // namespace orvex::ui
