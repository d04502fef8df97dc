// The pages of the horoscope window with the list that turns to them.
#pragma once

#include <QWidget>
#include <vector>

#include "ui/horoscope/horoscope_page.h"

class QComboBox;
class QStackedWidget;

namespace orvex::ui {

class PageList;

class PageStack final : public QWidget {
  Q_OBJECT

 public:
  explicit PageStack(HoroscopeDocument& document);

  // Turns to a page by its name; an unknown one changes nothing.
  void Turn(const QString& name);
  HoroscopePage* Current() const;

  // The pages as a box, for windows in which the list has no room.
  QComboBox* Box() { return box_; }
  void SetNarrow(bool narrow);

  QString CurrentName() const;
  QString CurrentTitle() const;

  // Shows the model again: the page in sight now, the others when they come into sight.
  void ShowModel();

 signals:
  void PlanetActivated(std::size_t row);
  // What the status line says for a while.
  void Told(const QString& words);
  // Another page came into sight.
  void Turned();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void LayOut();
  void Connect();
  void AddGroup(int group);
  void AddPage(std::size_t place);
  HoroscopePage* MakePage(std::size_t place);
  void TurnToRow(int row);
  void ShowPage(std::size_t place);
  void Move(int by);
  void ShowCountOfRemedies();

  struct Slot {
    HoroscopePage* Page = nullptr;
    bool Stale = true;
  };

  HoroscopeDocument& document_;
  PageList* list_;
  QComboBox* box_;
  QStackedWidget* stack_;
  std::vector<Slot> slots_;  // in the order of the pages
  std::size_t current_ = 0;
};

}  // namespace orvex::ui
