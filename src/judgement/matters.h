// Matters: the questions that a practitioner asks, each with the group of houses that gives it and
// the houses that deny it. Teachers differ in the groups, so they are rows that the user changes.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/save_result.h"
#include "core/session.h"
#include "core/table.h"

namespace orvex::judgement {

// Houses 1 to 12, each in one of the lists only.
struct Matter {
  std::int32_t Id = 0;
  std::string Name;
  int MainCusp = 0;
  std::vector<int> Supporting;  // ascending, without the main cusp
  std::vector<int> Denying;     // ascending
  std::string Source;           // the teacher or school
};

// The main cusp and the supporting houses: what gives the matter.
std::vector<int> GivingHouses(const Matter& matter);

// The houses of the matter: main cusp, supporting, denying.
std::vector<int> HousesOf(const Matter& matter);

// "7 | 2 11 | 1 6 10".
std::string HousesText(const Matter& matter);

enum class MatterColumn { Matter, Main, Supporting, Denying, Source };

// All matters in the order in which they came. The tag of a row is the matter's id.
core::Table LoadMatters(const core::Session& session);

// The matter of an id; nothing where there is none.
std::optional<Matter> MatterOfId(const core::Session& session, std::int32_t id);

// The matter that a text names: by its name in any case, else by its id; nothing where none is.
std::optional<Matter> FindMatter(const core::Session& session, const std::string& text);

// The fields of the matter dialog as typed. Houses stand between blanks or commas.
struct MatterForm {
  std::string Name;
  std::string MainCusp;
  std::string Supporting;
  std::string Denying;
  std::string Source;
};

// The form of a stored matter; nothing where it is gone, after the program's message.
std::optional<MatterForm> OpenEditMatter(core::Session& session, std::int32_t id);

// Saves a new matter, or the changes of a stored one; lists are stored ascending. The first failed
// check is refused: the name (needed, at most 50 characters, no mere number, none twice without
// case), the houses (1 to 12, none twice), the source (at most 100 characters).
core::SaveResult SaveNewMatter(core::Session& session, const MatterForm& form);
core::SaveResult SaveMatterChanges(core::Session& session, const MatterForm& form, std::int32_t id);

inline constexpr const char* kDeleteMatterQuestion =
    "Are you sure you want to delete the selected Matter?";

// Deletes a matter. Refused where it is gone and while life events of clients name it.
core::SaveResult DeleteMatter(core::Session& session, std::int32_t id);

}  // namespace orvex::judgement
