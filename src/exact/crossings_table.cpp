#include "exact/crossings_table.h"

#include "core/exact_numbers.h"

namespace orvex::exact {

core::Table CrossingsTable(const ExactZodiac& zodiac, const std::vector<Crossing>& crossings,
                           std::chrono::seconds offset) {
  core::Table table{{{"From"},
                     {"Until"},
                     {"Position"},
                     {"R"},
                     {"Sign Lord"},
                     {"Star Lord"},
                     {"Sub Lord"},
                     {"Sub Sub Lord"}},
                    {}};
  for (const Crossing& crossing : crossings) {
    table.Rows.push_back({{{core::StoredDateTimeText(crossing.From + offset)},
                           {core::StoredDateTimeText(crossing.Until + offset)},
                           {zodiac.PositionText(crossing.Longitude)},
                           {crossing.Retrograde ? "R" : ""},
                           {crossing.Held.Sign},
                           {crossing.Held.Star},
                           {crossing.Held.Sub},
                           {crossing.Held.SubSub}}});
  }
  return table;
}

std::chrono::seconds OffsetOf(double hours) {
  return std::chrono::seconds(core::RoundToWhole(hours * core::kSecondsOfHour));
}

std::string ChangeText(const ExactZodiac& zodiac, const std::string& name, Units before,
                       Units after, Depth depth) {
  const Lords lords = zodiac.LordsOf(after);
  if (before / kUnitsOfSign != after / kUnitsOfSign) {
    return name + " enters " + zodiac.SignName(after);
  }
  if (before / kUnitsOfStar != after / kUnitsOfStar) {
    return name + " enters the star of " + lords.Star;
  }
  if (depth == Depth::Sub || zodiac.LordsOf(before).Sub != lords.Sub) {
    return name + " enters the sub of " + lords.Sub;
  }
  return name + " enters the sub-sub of " + lords.SubSub;
}

}  // namespace orvex::exact
