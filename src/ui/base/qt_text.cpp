#include "ui/base/qt_text.h"

#include <limits>

#include "core/exact_numbers.h"

namespace orvex::ui {

QDateTime ToField(core::DateTime moment) {
  return QDateTime::fromSecsSinceEpoch(moment.time_since_epoch().count(), Qt::UTC);
}

core::DateTime FromField(const QDateTime& field) {
  return core::DateTime(std::chrono::seconds(field.toSecsSinceEpoch()));
}

QString WholeText(std::int64_t number) { return Shown(core::WholeText(number)); }

std::optional<std::int32_t> IdOfTag(const std::string& tag) {
  using Limits = std::numeric_limits<std::int32_t>;
  const std::optional<std::int64_t> id = core::ParseWhole(tag);
  if (!id || *id < Limits::min() || *id > Limits::max()) {
    return std::nullopt;
  }
  return static_cast<std::int32_t>(*id);
}

}  // namespace orvex::ui
