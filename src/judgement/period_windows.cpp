#include "judgement/period_windows.h"

#include <vector>

#include "chart/dasha_tree.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::judgement {

namespace {

constexpr int kLongestLife = 120;

std::optional<int> ReadAge(const std::string& word) {
  const std::optional<std::int64_t> age = core::ParseWhole(word);
  return age && *age >= 0 && *age <= kLongestLife ? std::optional(static_cast<int>(*age))
                                                  : std::nullopt;
}

}  // namespace

PeriodWindow YearsFrom(core::DateTime from, int years) {
  return {from, core::DateAdd(core::DateInterval::Years, years, from)};
}

std::optional<AgeSpan> ReadAges(const std::string& text) {
  std::string spaced = core::ReplaceAll(core::LowerCase(text), "to", " ");
  spaced = core::ReplaceAll(core::ReplaceAll(spaced, "–", " "), "-", " ");
  const std::vector<std::string> words = core::SplitWords(spaced);
  if (words.empty() || words.size() > 2) {
    return std::nullopt;
  }
  const std::optional<int> first = ReadAge(words.front());
  const std::optional<int> last = ReadAge(words.back());
  return first && last && *first <= *last ? std::optional(AgeSpan{*first, *last}) : std::nullopt;
}

std::string AgesText(const AgeSpan& ages) {
  const std::string first = core::WholeText(ages.First);
  return ages.First == ages.Last ? first : first + "-" + core::WholeText(ages.Last);
}

PeriodWindow WindowOfAges(core::DateTime birth, const AgeSpan& ages) {
  const core::DateTime day = core::DateOnly(birth);
  return {core::DateAdd(core::DateInterval::Years, ages.First, day),
          core::DateAdd(core::DateInterval::Years, ages.Last + 1, day)};
}

std::optional<PeriodWindow> WholeLife(const core::ReferenceData& reference,
                                      const chart::HoroscopeModel& model) {
  const std::vector<chart::TreeRow> dashas =
      chart::FullDashaTree(reference, model, chart::TreeDepth::Bhukti);
  return dashas.empty()
             ? std::nullopt
             : std::optional(PeriodWindow{core::DateOnly(model.Birth), dashas.back().End});
}

PeriodWindow UsualWindow(const core::ReferenceData& reference, const chart::HoroscopeModel& model,
                         core::DateTime now) {
  const std::optional<PeriodWindow> life = WholeLife(reference, model);
  return life && life->To <= now ? *life : YearsFrom(now, kYearsOfPeriods);
}

}  // namespace orvex::judgement
