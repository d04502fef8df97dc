#include "chart/dasha_tree.h"

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

}  // namespace

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
