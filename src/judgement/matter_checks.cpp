#include "judgement/matter_checks.h"

#include <algorithm>

#include "core/exact_numbers.h"
#include "core/letter_case.h"
#include "core/text.h"

namespace orvex::judgement {

namespace {

constexpr std::size_t kLongestName = 50;
constexpr std::size_t kLongestSource = 100;
constexpr int kLastHouse = 12;

bool IsTaken(const core::Session& session, const std::string& name, std::int32_t id) {
  const core::Result row = session.StoreConnection.Query(
      "Select id from matter_master where ucase(name) = " +
      core::Quoted(core::UpperCaseOfAll(name)) + " and id <> " + core::WholeText(id));
  return !row.AtEnd();
}

std::optional<core::Refusal> CheckName(const core::Session& session, const std::string& name,
                                       std::int32_t id) {
  if (name.empty()) {
    return core::RefusalOf("Matter Name is a mandatory field.", "matterName");
  }
  if (core::CharacterCount(name) > kLongestName) {
    return core::RefusalOf("Matter Name cannot exceed 50 characters.", "matterName");
  }
  if (core::ParseWhole(name)) {
    return core::RefusalOf("Matter Name cannot be a mere number.", "matterName");
  }
  if (IsTaken(session, name, id)) {
    return core::RefusalOf("The Matter '" + name + "' already exists in the database.",
                           "matterName");
  }
  return std::nullopt;
}

// A house 1 to 12 of digits alone; nothing for any other text.
std::optional<int> HouseOf(const std::string& word) {
  const bool digits = !word.empty() && std::all_of(word.begin(), word.end(), [](char letter) {
    return letter >= '0' && letter <= '9';
  });
  const std::optional<std::int64_t> house = digits ? core::ParseWhole(word) : std::nullopt;
  return house && *house >= 1 && *house <= kLastHouse ? std::optional(static_cast<int>(*house))
                                                      : std::nullopt;
}

// Reads a list into `houses`, ascending; false where a piece is no house or comes twice.
bool ReadHouses(const std::string& text, std::vector<int>& houses) {
  for (const std::string& word : core::SplitWords(core::ReplaceAll(text, ",", " "))) {
    const std::optional<int> house = HouseOf(word);
    if (!house || std::find(houses.begin(), houses.end(), *house) != houses.end()) {
      return false;
    }
    houses.push_back(*house);
  }
  std::sort(houses.begin(), houses.end());
  return true;
}

// The first house that stands in two of the lists; 0 where none does.
int HouseInTwoLists(const Matter& matter) {
  std::vector<int> houses = HousesOf(matter);
  std::sort(houses.begin(), houses.end());
  const auto twice = std::adjacent_find(houses.begin(), houses.end());
  return twice == houses.end() ? 0 : *twice;
}

std::optional<core::Refusal> ReadLists(const MatterForm& form, Matter& matter) {
  const std::optional<int> mainCusp = HouseOf(core::Trim(form.MainCusp));
  if (!mainCusp) {
    return core::RefusalOf("Main Cusp takes one house from 1 to 12.", "mainCusp");
  }
  matter.MainCusp = *mainCusp;
  if (!ReadHouses(form.Supporting, matter.Supporting)) {
    return core::RefusalOf(
        "Supporting takes houses from 1 to 12, each once, with blanks between them.", "supporting");
  }
  if (!ReadHouses(form.Denying, matter.Denying)) {
    return core::RefusalOf(
        "Denying takes houses from 1 to 12, each once, with blanks between them.", "denying");
  }
  if (const int twice = HouseInTwoLists(matter); twice != 0) {
    const bool denied =
        std::find(matter.Denying.begin(), matter.Denying.end(), twice) != matter.Denying.end();
    return core::RefusalOf(
        "House " + core::WholeText(twice) + " stands in two lists of the Matter.",
        denied ? "denying" : "supporting");
  }
  return std::nullopt;
}

}  // namespace

std::optional<core::Refusal> ReadMatter(const core::Session& session, const MatterForm& form,
                                        std::int32_t id, Matter& matter) {
  matter = {id, core::Trim(form.Name), 0, {}, {}, core::Trim(form.Source)};
  if (std::optional<core::Refusal> refused = CheckName(session, matter.Name, id)) {
    return refused;
  }
  if (std::optional<core::Refusal> refused = ReadLists(form, matter)) {
    return refused;
  }
  if (core::CharacterCount(matter.Source) > kLongestSource) {
    return core::RefusalOf("Source cannot exceed 100 characters.", "source");
  }
  return std::nullopt;
}

}  // namespace orvex::judgement
