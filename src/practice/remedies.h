// Remedies: what was prescribed to a client, for which problem and planet, and when.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/save_result.h"
#include "core/session.h"
#include "core/table.h"

namespace orvex::practice {

inline constexpr const char* kDeleteRemedyQuestion =
    "Are you sure you want to delete the selected Remedy?";

// The question before a remedy is deleted, with the name of its client below it.
std::string DeleteRemedyQuestion(const core::Session& session, std::int32_t remedyId);

enum class RemedyColumn { Problem, Solution, ForPlanet, RemedyDate };

// The caption of the manager's remedy list: for a client, for a list without clients, and while a
// filter is typed.
std::string RemedyCaption(const std::string& clientName);
inline constexpr const char* kNoRemedyCaption = "Remedy Given:";
inline constexpr const char* kFilteredRemedyCaption = "Remedy given:";

// The remedies of a client by date. The tag of a row is the remedy's id. Planet 0 reads "None"; a
// number that is no planet reads as the row before it.
core::Table LoadRemedies(const core::Session& session, std::int32_t clientId);

// A planet of the dialog's list.
struct PlanetChoice {
  std::int32_t Id = 0;
  std::string Name;
};

// "None" with 0, then the planets by name.
std::vector<PlanetChoice> RemedyPlanets(const core::Session& session);

// The fields of the remedy dialog.
struct RemedyForm {
  std::int32_t PlanetId = 0;  // 0: none
  std::string Problem;
  std::string Remedy;
  core::DateTime Date{};
};

// The form of a new remedy: no planet, today.
RemedyForm OpenAddRemedy(const core::Session& session);

// The form of a stored remedy; nothing where it is gone, after the program's message.
std::optional<RemedyForm> OpenEditRemedy(core::Session& session, std::int32_t remedyId);

// Saves a new remedy of a client, or the changes of a stored one. The first failed check is
// refused.
core::SaveResult SaveNewRemedy(core::Session& session, const RemedyForm& form,
                               std::int32_t clientId);
core::SaveResult SaveRemedyChanges(core::Session& session, const RemedyForm& form,
                                   std::int32_t remedyId);

// Deletes a remedy; refused where it is gone.
core::SaveResult DeleteRemedy(core::Session& session, std::int32_t remedyId);

}  // namespace orvex::practice
