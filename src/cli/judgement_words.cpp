#include "cli/judgement_words.h"

#include "core/text.h"

namespace orvex::cli {

judgement::Matter MatterFor(const core::Session& session, const std::string& text) {
  constexpr std::size_t kShown = 50;
  std::optional<judgement::Matter> matter = judgement::FindMatter(session, text);
  if (!matter) {
    throw CommandFailed("There is no matter \"" + core::FirstCharacters(text, kShown) +
                        "\"; \"matters\" lists them.");
  }
  return std::move(*matter);
}

judgement::MomentOfJudgement JudgementAt(const core::Session& session, const std::string& option) {
  return option.empty() ? judgement::NowAtUserCity(session)
                        : judgement::AtUserCity(session, MomentOption("--at", option));
}

void RotateTo(const core::Session& session, horoscope::OpenedHoroscope& opened,
              const std::string& option) {
  if (option.empty()) {
    return;
  }
  const std::int32_t house = WholeOption("--rotate", option);
  if (house < 1 || house > static_cast<std::int32_t>(chart::kHouses)) {
    throw CommandFailed("--rotate takes a number from 1 to 12");
  }
  horoscope::RotateNow(session, opened, house);
}

}  // namespace orvex::cli
