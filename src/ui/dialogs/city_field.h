// A field for a city: it is typed, and the cities that fit drop down below it. The marked one is
// taken by Enter, Tab or a click.
#pragma once

#include <QLineEdit>
#include <memory>

#include "practice/city_search.h"
#include "ui/base/workplace.h"

namespace orvex::ui {

class CityPopup;

class CityField final : public QLineEdit {
  Q_OBJECT

 public:
  explicit CityField(Workplace& place, QWidget* parent = nullptr);

  // The city taken; 0 while another one is being typed.
  std::int32_t CityId() const { return cityId_; }

  // Shows a city as taken, without a word to anybody.
  void ShowCity(std::int32_t cityId);

  // Shows a city and says so.
  void TakeCity(std::int32_t cityId);

  // Reads the cities again, one was added or changed, and searches for a name.
  void SearchAnew(const QString& name);

  // The moment whose clocks stand beside the cities.
  void SetMoment(core::DateTime local) { moment_ = local; }

 signals:
  void CityTaken(std::int32_t cityId);
  // The text names no city yet.
  void CityForgotten();
  void AddWanted();
  void AllWanted();

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  const practice::CitySearch& Search();
  void FollowText();
  void DropDown(const practice::CitySearch::Result& found);
  // Takes the marked city; where none fits, one is to be added.
  void TakeMarked();
  bool IsOpen() const;
  CityPopup& Popup();

  Workplace& place_;
  std::unique_ptr<practice::CitySearch> search_;
  CityPopup* popup_ = nullptr;  // of the window
  core::DateTime moment_{};
  std::int32_t cityId_ = 0;
};

}  // namespace orvex::ui
