// The details view of a planet on a date: its hours, and the captions and state of its buttons.
#pragma once

#include "core/table.h"
#include "transit/transit_position.h"

namespace orvex::transit {

struct DayButton {
  std::string Caption;
  bool Enabled = true;
};

struct TransitDetails {
  std::string Title;
  std::string Tag;  // number "*" name "*" date in the stored form
  core::Table Hours;
  core::Table Changes;  // of that planet on that date, columns of ChangeColumn
  DayButton PreviousDay;
  DayButton NextDay;
  bool TodayLink = false;  // the way back to today is shown
};

// The view of a planet on a local date of the user city.
TransitDetails GetTransitForPlanet(core::Session& session, Planet planet, core::DateTime date);

// What an hour of the hour table shows in its stead.
struct MinuteDetails {
  std::string Label;
  core::Table Minutes;
};

// The minutes of an hour; `hourTag` is the tag of a row of the hour table. Nothing for another
// text.
std::optional<MinuteDetails> GetMinuteDetails(core::Session& session, Planet planet,
                                              const std::string& hourTag);

// What a view's tag tells.
struct DetailsSubject {
  Planet Body = Planet::Sun;
  core::DateTime Date{};
};

// The planet and date of a tag; nothing for another text.
std::optional<DetailsSubject> SubjectOfTag(const std::string& tag);

}  // namespace orvex::transit
