#include "cli/chart_style.h"

namespace orvex::cli {

void AddStyleOptions(Command command, ChartStyleOptions& options) {
  command.add_option("ID", options.Id, "id of the client").required();
  command.add_option("--style", options.Style, "N north, E east, S south Indian")
      .one_of({"N", "E", "S"});
}

char StyleOf(Context& context, const ChartStyleOptions& options) {
  return options.Style.empty() ? context.Reading().State.DefaultChartType : options.Style.front();
}

horoscope::OpenedHoroscope OpenHoroscope(Context& context, const std::string& id) {
  std::optional<horoscope::OpenedHoroscope> opened =
      horoscope::CreateHoroscope(context.Reading(), WholeOption("ID", id));
  if (!opened) {
    throw CommandFailed(core::kNoClientWithId);
  }
  return std::move(*opened);
}

}  // namespace orvex::cli
