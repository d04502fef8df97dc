#include "ui/horoscope/neighbour_client.h"

#include <algorithm>

#include "practice/client_list.h"
#include "ui/base/qt_text.h"

namespace orvex::ui {

std::optional<std::int32_t> NeighbourClient(const core::Session& session,
                                            const chart::HoroscopeModel& model, int by) {
  const auto group = std::find_if(model.Client.begin(), model.Client.end(),
                                  [](const auto& column) { return column.first == "groupid"; });
  const auto groupId = group == model.Client.end() ? std::nullopt : IdOfTag(group->second);
  if (!groupId) {
    return std::nullopt;
  }
  const core::Table list = practice::LoadClientsOfGroup(session, *groupId);
  const std::string tag = Typed(WholeText(model.ClientId));
  const auto found = std::find_if(list.Rows.begin(), list.Rows.end(),
                                  [&](const core::Row& row) { return row.Tag == tag; });
  if (found == list.Rows.end()) {
    return std::nullopt;
  }
  const auto wanted = found - list.Rows.begin() + by;
  const bool inside = wanted >= 0 && wanted < static_cast<std::ptrdiff_t>(list.Rows.size());
  return inside ? IdOfTag(list.Rows.at(static_cast<std::size_t>(wanted)).Tag) : std::nullopt;
}

}  // namespace orvex::ui
