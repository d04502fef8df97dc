// A page of the horoscope window.
#pragma once

#include <QWidget>

#include "ui/horoscope/horoscope_document.h"

namespace orvex::ui {

// A page is made when it is first turned to. It is told to show the model again when that has
// changed, at the latest before it comes into sight.
class HoroscopePage : public QWidget {
  Q_OBJECT

 public:
  explicit HoroscopePage(HoroscopeDocument& document) : document_(document) {}

  virtual void ShowModel() = 0;

 signals:
  // A planet was picked; its row in the planet table.
  void PlanetActivated(std::size_t row);
  // Another page is to come into sight, by its name.
  void PageWanted(const QString& page);
  // What the status line says for a while.
  void Told(const QString& words);

 protected:
  HoroscopeDocument& Document() { return document_; }
  const chart::HoroscopeModel& Model() const { return document_.Model(); }

 private:
  HoroscopeDocument& document_;
};

}  // namespace orvex::ui
