#include "chart/dasha_tree.h"

#include <algorithm>

#include "chart/dasha.h"
#include "chart/dasha_periods.h"

namespace orvex::chart {

namespace {

struct TreeBuilder {
  const DashaCycle& Cycle;
  std::size_t Depth;
  std::vector<TreeRow>& Rows;

  // Adds all rows below the last period of the path, or that period itself at the full depth.
  void Add(std::vector<Period>& path) const {
    if (path.size() == Depth) {
      TreeRow row{{}, path.back().Start, path.back().End};
      for (std::size_t level = 0; level < path.size(); ++level) {
        row.Planets.at(level) = path[level].Planet.Name;
      }
      Rows.push_back(std::move(row));
      return;
    }
    for (const Period& part : PartsOf(path)) {
      path.push_back(part);
      Add(path);
      path.pop_back();
    }
  }

  std::vector<Period> PartsOf(const std::vector<Period>& path) const {
    if (path.size() == 1) {
      return BhuktiPeriods(Cycle, path[0]);
    }
    return path.size() == 2 ? AntaraPeriods(Cycle, path[0], path[1])
                            : SookshmaPeriods(Cycle, path[2]);
  }
};

// The last of the periods that holds a date, both ends counted in; nothing where none does.
std::optional<Period> LastHolding(const std::vector<Period>& periods, core::DateTime date) {
  const auto found = std::find_if(periods.rbegin(), periods.rend(), [date](const Period& period) {
    return period.Start <= date && date <= period.End;
  });
  return found == periods.rend() ? std::nullopt : std::optional(*found);
}

}  // namespace

std::optional<std::array<std::string, 3>> LordsRunningOn(const core::ReferenceData& reference,
                                                         const HoroscopeModel& model,
                                                         core::DateTime date) {
  const DashaCycle cycle = DashaCycleOf(reference);
  const core::DateTime day = core::DateOnly(date);
  const std::optional<Period> dasha = LastHolding(ListedDashas(cycle, model), day);
  if (!dasha) {
    return std::nullopt;
  }
  const std::optional<Period> bhukti = LastHolding(BhuktiPeriods(cycle, *dasha), day);
  if (!bhukti) {
    return std::nullopt;
  }
  const std::optional<Period> antara = LastHolding(AntaraPeriods(cycle, *dasha, *bhukti), day);
  return antara ? std::optional(
                      std::array{dasha->Planet.Name, bhukti->Planet.Name, antara->Planet.Name})
                : std::nullopt;
}

std::vector<TreeRow> FullDashaTree(const core::ReferenceData& reference,
                                   const HoroscopeModel& model, TreeDepth depth) {
  const DashaCycle cycle = DashaCycleOf(reference);
  std::vector<TreeRow> rows;
  const TreeBuilder builder{cycle, static_cast<std::size_t>(depth), rows};
  for (const Period& dasha : ListedDashas(cycle, model)) {
    std::vector<Period> path = {dasha};
    builder.Add(path);
  }
  return rows;
}

}  // namespace orvex::chart
