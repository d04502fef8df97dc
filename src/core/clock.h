// The one source of "now" and "today".
#pragma once

#include "core/date_text.h"

namespace orvex::core {

class Clock {
 public:
  Clock() = default;
  Clock(const Clock&) = delete;
  Clock& operator=(const Clock&) = delete;
  virtual ~Clock() = default;

  // The local wall clock, to the second.
  virtual DateTime Now() const = 0;

  // Midnight of today.
  DateTime Today() const { return DateOnly(Now()); }
};

// The machine's clock in its own time zone.
class SystemClock final : public Clock {
 public:
  DateTime Now() const override;
};

// A clock that stands still, for tests and for runs at a given moment.
class FixedClock final : public Clock {
 public:
  explicit FixedClock(DateTime now) : now_(now) {}
  DateTime Now() const override { return now_; }
  void Set(DateTime now) { now_ = now; }

 private:
  DateTime now_;
};

}  // namespace orvex::core
