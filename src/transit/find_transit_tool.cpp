#include "transit/find_transit_tool.h"

#include <algorithm>

#include "chart/zodiac_lookups.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "transit/hour_table.h"
#include "transit/month_name.h"

namespace orvex::transit {

namespace {

float Rounded(double degree) { return core::ToSingle(core::TwoDecimals(degree)); }

TargetResult Refused(const char* message, const char* field) {
  return {0, core::Refusal{message, core::MessageIcon::Information, field}};
}

TargetResult TypedDegree(const std::string& text) {
  const std::optional<double> degree = core::ParseNumber(text);
  if (!degree) {
    return Refused("Numeric value required.", "Degree");
  }
  if (*degree < 0 || *degree > 360) {
    return Refused("Value should be between 0 to 360 degrees.", "Degree");
  }
  return {Rounded(*degree), std::nullopt};
}

TargetResult BeginOfQuarter(const core::ReferenceData& reference, const FindForm& form) {
  for (const core::PadaRow& pada : reference.Padas) {
    const bool ofStar =
        std::any_of(reference.Stars.begin(), reference.Stars.end(), [&](const core::StarRow& star) {
          return star.Sequence == pada.StarId && star.StarName == form.StarName;
        });
    if (ofStar && pada.Pada == form.Pada) {
      return {Rounded(pada.StartCDegree), std::nullopt};
    }
  }
  return Refused("There is no such nakshatra pada.", "Nakshatra");
}

TargetResult BeginOfSign(const core::ReferenceData& reference, const FindForm& form) {
  for (const core::SignRow& sign : reference.Signs) {
    if (sign.Zodiac == form.Zodiac) {
      return {Rounded(core::ToDouble(sign.StartDegree)), std::nullopt};
    }
  }
  return Refused("There is no such rashi.", "Rashi");
}

std::string TargetText(const FindForm& form) {
  switch (form.Kind) {
    case TargetKind::Degree:
      return form.DegreeText + " degree(s)";
    case TargetKind::Nakshatra:
      return form.StarName + " Nakshatra (Pada " + core::WholeText(form.Pada) + ")";
    case TargetKind::Rashi:
      return form.Zodiac;
  }
  return "";
}

void Tell(const FindForm& form, FindResult& result) {
  const std::string planet = PlanetName(form.Body);
  const std::string date = core::LongDateText(result.Hour, false);
  result.Result = planet + " will get to " + TargetText(form) + " on " + date + " at " +
                  core::ShortTimeText(result.Hour) + ".";
  result.Tag = MonthName(result.Hour) + "*" + core::WholeText(core::PartsOf(result.Hour).Year) +
               "*" + date + "*" + planet;
  result.Status = "Ready";
}

}  // namespace

FindChoices ChoicesOf(const core::ReferenceData& reference) {
  FindChoices choices;
  for (const core::PlanetInfo& planet : reference.Planets) {
    choices.Planets.push_back(planet.PlanetName);
  }
  for (const core::StarRow& star : reference.Stars) {
    choices.Stars.push_back(star.StarName);
  }
  std::sort(choices.Planets.begin(), choices.Planets.end());
  std::sort(choices.Stars.begin(), choices.Stars.end());
  std::vector<core::SignRow> signs = reference.Signs;
  std::stable_sort(signs.begin(), signs.end(),
                   [](const core::SignRow& left, const core::SignRow& right) {
                     return left.Rashi < right.Rashi;
                   });
  for (const core::SignRow& sign : signs) {
    choices.Zodiacs.push_back(sign.Zodiac);
  }
  return choices;
}

TargetResult TargetOf(const core::ReferenceData& reference, const FindForm& form) {
  switch (form.Kind) {
    case TargetKind::Degree:
      return TypedDegree(form.DegreeText);
    case TargetKind::Nakshatra:
      return BeginOfQuarter(reference, form);
    case TargetKind::Rashi:
      return BeginOfSign(reference, form);
  }
  return {};
}

FindResult FindTransit(core::Session& session, const FindForm& form, float target,
                       std::optional<std::int64_t> days,
                       const std::function<bool(core::DateTime)>& progress) {
  const float zoneHours = session.State.UserCityOffset;
  const SearchResult found =
      SearchPassage(session, {form.Body, target, form.From, zoneHours, days, progress});
  FindResult result;
  result.End = found.End;
  result.Hour = found.Hour;
  if (found.End == SearchEnd::Found) {
    Tell(form, result);
  } else {
    result.Result = kFindPrompt;
    result.Status = found.End == SearchEnd::Canceled ? "Process was canceled" : WhyNotFound(result);
  }
  result.Hours = BuildHourTable(session, form.Body, found.Hour, zoneHours, "Time");
  return result;
}

std::vector<FindResult> FindTransits(core::Session& session, const FindForm& form, float target,
                                     std::int64_t count, std::optional<std::int64_t> days,
                                     const std::function<bool(core::DateTime)>& progress) {
  std::vector<FindResult> results;
  FindForm next = form;
  while (count-- > 0) {
    std::optional<std::int64_t> rest;
    if (days) {
      rest = *days - core::DaysBetween(form.From, next.From);
    }
    results.push_back(FindTransit(session, next, target, rest, progress));
    if (results.back().End != SearchEnd::Found) {
      break;
    }
    next.From = core::DateOnly(results.back().Hour) + std::chrono::days(1);
  }
  return results;
}

std::string WhyNotFound(const FindResult& result) {
  switch (result.End) {
    case SearchEnd::DaysOver:
      return "Not found within the days to search.";
    case SearchEnd::EphemerisOver:
      return "Not found: the ephemeris has no positions at " +
             core::LongDateText(result.Hour, false) + ".";
    case SearchEnd::CalendarOver:
      return "Not found up to the end of the calendar, 31 December 9999.";
    case SearchEnd::Found:
    case SearchEnd::Canceled:
      break;
  }
  return "";
}

std::optional<GridMark> SyncToGrid(const std::string& tag) {
  const std::vector<std::string> fields = core::Split(tag, '*');
  if (fields.size() != 4 || !core::ParseWhole(fields[1])) {
    return std::nullopt;
  }
  return GridMark{core::MonthNumber(fields[0]), static_cast<int>(*core::ParseWhole(fields[1])),
                  fields[2], fields[3]};
}

}  // namespace orvex::transit
