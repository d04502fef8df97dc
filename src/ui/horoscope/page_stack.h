// The pages of the horoscope window with the list that turns to them.
#pragma once

#include <QWidget>
#include <vector>

#include "ui/horoscope/horoscope_page.h"

class QListWidget;
class QStackedWidget;

namespace orvex::ui {

class ChartPage;

class PageStack final : public QWidget {
  Q_OBJECT

 public:
  explicit PageStack(HoroscopeDocument& document);

  // Turns to a page by its name; an unknown one changes nothing.
  void Turn(const QString& name);
  HoroscopePage* Current() const;

  // The first page, which reports are made from.
  ChartPage& FirstPage();

  // Shows the model again: the page in sight now, the others when they come into sight.
  void ShowModel();

 signals:
  void PlanetActivated(std::size_t row);

 private:
  void LayOut();
  void Connect();
  void ShowPage(int index);
  void Move(int by);

  struct Slot {
    HoroscopePage* Page = nullptr;
    bool Stale = true;
  };

  HoroscopeDocument& document_;
  QListWidget* list_;
  QStackedWidget* stack_;
  std::vector<Slot> slots_;
};

}  // namespace orvex::ui
