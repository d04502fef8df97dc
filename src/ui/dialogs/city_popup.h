// What drops down below the city field: the cities that fit, with place and clocks.
#pragma once

#include <QFrame>

#include "core/date_text.h"
#include "practice/city_search.h"

class QLabel;
class QListWidget;

namespace orvex::ui {

class CityPopup final : public QFrame {
  Q_OBJECT

 public:
  // Lies over the contents of a window and never has the focus.
  explicit CityPopup(QWidget* window);

  // The cities found for a text; the first one is marked. Beside each the clocks at `local`.
  void ShowCities(const practice::CitySearch::Result& found, const QString& typed,
                  core::DateTime local);
  // Below the field, as wide, within the window; above it where more room is there.
  void DropBelow(const QWidget& field);

  std::int32_t Marked() const;
  void MoveMark(int rows);

 signals:
  void Clicked();
  void AddWanted();
  void AllWanted();

 private:
  QListWidget* list_;
  QLabel* count_;
};

}  // namespace orvex::ui
