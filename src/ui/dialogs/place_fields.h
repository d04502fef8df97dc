// Latitude, longitude and offset of a client: the city's numbers to begin with, in red where they
// were changed; below them what the clocks of the city showed at the moment of birth, and the
// moment in UT for which the chart will be cast.
#pragma once

#include <QWidget>
#include <array>
#include <optional>

#include "chart/client_saving.h"
#include "ui/base/workplace.h"

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace orvex::ui {

class PlaceFields final : public QWidget {
  Q_OBJECT

 public:
  PlaceFields(Workplace& place, QWidget* parent = nullptr);

  // Fills the fields from a city; they turn black.
  void TakeCity(std::int32_t cityId);
  // Other numbers for the same city, compared with the city's.
  void ShowStored(const chart::ClientForm& form);
  // No city: latitude and longitude are empty, the offset is "0" and out of reach.
  void Forget();
  void TakeOffset(const QString& offset);

  void CopyInto(chart::ClientForm& form) const;

  // Asks the zone's clocks again, for another moment.
  void ShowClocks(core::DateTime local);

  // The sentence that tells the moment in UT.
  void ShowCast(const QString& sentence);

  QLineEdit* Latitude() const { return latitude_; }

 signals:
  void Changed();

 private:
  void Build();
  void Fill(const chart::CityPlace& place);
  void Compare();
  void OfferClocks();
  void ShowSentences();
  void Offer(QPushButton& button, double hours);
  void HideOffers();

  Workplace& place_;
  QLineEdit* latitude_;
  QLineEdit* longitude_;
  QLineEdit* offset_;
  QLabel* clocks_;
  QString showed_;  // the sentences about the clocks and the moment in UT
  QString cast_;
  QLabel* warning_;
  QPushButton* takeFirst_;
  QPushButton* takeSecond_;
  std::optional<chart::CityPlace> city_;
  std::string zone_;
  core::DateTime local_{};
};

}  // namespace orvex::ui
