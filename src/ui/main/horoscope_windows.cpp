#include "ui/main/horoscope_windows.h"

#include <QWidget>
#include <utility>

namespace orvex::ui {

HoroscopeWindows::HoroscopeWindows(Workplace& place, HoroscopeMaker maker, QObject* parent)
    : QObject(parent), place_(place), maker_(std::move(maker)) {}

HoroscopeWindows::~HoroscopeWindows() { CloseAll(); }

void HoroscopeWindows::Open(std::int32_t clientId) {
  QWidget* window = WindowOf(clientId);
  if (window == nullptr && CanOpen()) {
    window = maker_(place_, clientId, *this);
    if (window != nullptr) {
      Register(clientId, *window);
    }
  }
  if (window != nullptr) {
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->raise();
    window->activateWindow();
  }
}

QWidget* HoroscopeWindows::WindowOf(std::int32_t clientId) const {
  const auto found = windows_.find(clientId);
  return found == windows_.end() ? nullptr : found->second.data();
}

void HoroscopeWindows::CloseAll() {
  // Each window takes itself out of the list as it goes.
  const auto open = std::exchange(windows_, {});
  for (const auto& [clientId, window] : open) {
    delete window.data();
    Forget(clientId);
  }
}

void HoroscopeWindows::Register(std::int32_t clientId, QWidget& window) {
  window.setAttribute(Qt::WA_DeleteOnClose);
  windows_[clientId] = &window;
  place_.Session.State.OpenHoroscopes.push_back(clientId);
  connect(&window, &QObject::destroyed, this, [this, clientId] { Forget(clientId); });
}

void HoroscopeWindows::Forget(std::int32_t clientId) {
  windows_.erase(clientId);
  std::erase(place_.Session.State.OpenHoroscopes, clientId);
}

}  // namespace orvex::ui
