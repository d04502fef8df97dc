#include "chart/relations.h"

#include <array>

#include "chart/horoscope_model.h"
#include "core/exact_numbers.h"

namespace orvex::chart {

namespace {

constexpr std::array<const char*, kHouses> kRelations = {"the client",
                                                         "family",
                                                         "younger brothers and sisters",
                                                         "mother",
                                                         "children",
                                                         "mother's brothers and sisters",
                                                         "spouse, partner",
                                                         "",
                                                         "father",
                                                         "",
                                                         "elder brothers and sisters, friends",
                                                         ""};

}  // namespace

std::string RelationOf(int house) { return kRelations.at(static_cast<std::size_t>(house - 1)); }

std::string HouseWithRelation(int house) {
  const std::string relation = RelationOf(house);
  return core::WholeText(house) + (relation.empty() ? "" : " · " + relation);
}

}  // namespace orvex::chart
