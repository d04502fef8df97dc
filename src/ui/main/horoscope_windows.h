// The open horoscopes: one window a client, registered in the session while it is open.
#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <map>

#include "ui/base/workplace.h"

class QWidget;

namespace orvex::ui {

class HoroscopeWindows;

// Makes the window of a client, not yet shown; null where there is no such client.
using HoroscopeMaker =
    std::function<QWidget*(Workplace& place, std::int32_t clientId, HoroscopeWindows& windows)>;

class HoroscopeWindows final : public QObject {
  Q_OBJECT

 public:
  HoroscopeWindows(Workplace& place, HoroscopeMaker maker, QObject* parent = nullptr);
  HoroscopeWindows(const HoroscopeWindows&) = delete;
  HoroscopeWindows& operator=(const HoroscopeWindows&) = delete;
  ~HoroscopeWindows() override;

  // Whether horoscopes can be shown at all.
  bool CanOpen() const { return static_cast<bool>(maker_); }

  // Opens the client's horoscope, or brings the open one to the front.
  void Open(std::int32_t clientId);

  // The open window of a client; null where none is open.
  QWidget* WindowOf(std::int32_t clientId) const;

  void CloseAll();

 signals:
  // A horoscope window changed the remedies of its client.
  void RemediesChanged(std::int32_t clientId);

 private:
  void Register(std::int32_t clientId, QWidget& window);
  void Forget(std::int32_t clientId);

  Workplace& place_;
  HoroscopeMaker maker_;
  std::map<std::int32_t, QPointer<QWidget>> windows_;
};

}  // namespace orvex::ui
