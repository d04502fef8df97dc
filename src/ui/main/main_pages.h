// The pages of the main window, of which one is in sight, and the action that turns to each.
#pragma once

#include <QAction>
#include <QStackedWidget>
#include <array>

namespace orvex::ui {

enum class MainPage { Clients, Search, Transits, Horas, Today };

inline constexpr std::size_t kMainPages = 5;

class MainPages final : public QStackedWidget {
  Q_OBJECT

 public:
  MainPages();

  // To be called once a page, in their order. A page that is larger than the window gets bars and
  // never makes the window larger.
  void Add(MainPage page, QWidget* widget);

  MainPage Current() const { return static_cast<MainPage>(currentIndex()); }
  void Turn(MainPage page) { ActionOf(page)->trigger(); }

  // Turns to a page; the one in sight is checked.
  QAction* ActionOf(MainPage page) const { return actions_.at(static_cast<std::size_t>(page)); }

 signals:
  // A page was asked for, though it may have been in sight already.
  void Turned();

 private:
  std::array<QAction*, kMainPages> actions_{};
};

}  // namespace orvex::ui
