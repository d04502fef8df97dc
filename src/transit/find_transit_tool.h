// The find-transit tool: a target as chosen, the search, and what the tool says of the result.
#pragma once

#include "core/save_result.h"
#include "core/table.h"
#include "transit/passage_rule.h"

namespace orvex::transit {

enum class TargetKind { Degree, Nakshatra, Rashi };

// The inputs of the tool as typed and chosen.
struct FindForm {
  Planet Body = Planet::Sun;
  core::DateTime From{};
  TargetKind Kind = TargetKind::Degree;
  std::string DegreeText;  // as typed
  std::string StarName;
  int Pada = 1;  // 1 to 4
  std::string Zodiac;
};

// What the lists of the tool offer, in their order: planets and stars by name, signs by number.
struct FindChoices {
  std::vector<std::string> Planets;
  std::vector<std::string> Stars;
  std::vector<std::string> Zodiacs;
};

FindChoices ChoicesOf(const core::ReferenceData& reference);

// A target longitude, or the program's message with the field to go back to.
struct TargetResult {
  float Degree = 0;
  std::optional<core::Refusal> Refused;
};

// The longitude of the chosen target in single precision: the typed degree, the begin of the
// quarter or of the sign, with two decimals.
TargetResult TargetOf(const core::ReferenceData& reference, const FindForm& form);

// What the tool shows when a search has ended. `Tag` leads back into the monthly grid.
struct FindResult {
  SearchEnd End = SearchEnd::CalendarOver;
  core::DateTime Hour{};
  std::string Result;
  std::string Tag;
  std::string Status;
  core::Table Hours;  // of the last date searched
};

inline constexpr const char* kFindPrompt =
    "Select a Planet, pick a condition above and click on Find to start.";
inline constexpr const char* kFindWaiting = "Please wait...";
inline constexpr const char* kFindWorking = "Working...";

// Searches on from the start date for the user city. `days` bounds the dates searched.
FindResult FindTransit(core::Session& session, const FindForm& form, float target,
                       std::optional<std::int64_t> days,
                       const std::function<bool(core::DateTime)>& progress);

// The next `count` passages at most, each searched for from the day after the last; `days` bounds
// the whole. The last result tells why the chain ended where it is shorter.
std::vector<FindResult> FindTransits(core::Session& session, const FindForm& form, float target,
                                     std::int64_t count, std::optional<std::int64_t> days,
                                     const std::function<bool(core::DateTime)>& progress);

// The sentence for a search that found nothing.
std::string WhyNotFound(const FindResult& result);

// Where a found transit lies in the monthly grid.
struct GridMark {
  int Month = 0;
  int Year = 0;
  std::string DateText;
  std::string PlanetName;
};

// The place that a tag names; nothing for another text.
std::optional<GridMark> SyncToGrid(const std::string& tag);

}  // namespace orvex::transit
