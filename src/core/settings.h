// The settings dialog: the one settings row as a form, its checks and its statement.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "core/save_result.h"
#include "core/session.h"

namespace orvex::core {

// The pages of the dialog; its title is "Settings - " and the page.
inline constexpr const char* kGeneralPage = "General";
inline constexpr const char* kOrbitsPage = "Orbits";
inline constexpr const char* kLookPage = "Look";
inline constexpr const char* kProfilePage = "Profile";

inline constexpr const char* kResetOrbsQuestion =
    "This will reset all Aspect Orbits to default values. Do you wish to proceed?";

// One choice of a list: the code that is stored and the text that is shown.
struct SettingChoice {
  const char* Code;
  const char* Text;
};

// clang-format off
inline constexpr std::array<SettingChoice, 2> kNodeChoices = {{{"M", "Mean"}, {"T", "True"}}};
inline constexpr std::array<SettingChoice, 3> kChartTypeChoices = {{
    {"N", "North Indian"}, {"E", "East Indian"}, {"S", "South Indian"}}};
inline constexpr std::array<SettingChoice, 2> kDegreeChoices = {{{"A", "Actual"}, {"R", "Rashi"}}};
inline constexpr std::array<SettingChoice, 2> kAyanamsaChoices = {{
    {"kp", "KP"}, {"kp-new", "KP new"}}};
inline constexpr std::array<SettingChoice, 2> kBirthMomentChoices = {{
    {"S", "Local mean time"}, {"C", "Clock time"}}};
inline constexpr std::array<SettingChoice, 2> kShownDegreeChoices = {{
    {"S", "In the sign"}, {"A", "As stored"}}};
inline constexpr std::array<SettingChoice, 3> kThemeChoices = {{
    {"desktop", "As the desktop"}, {"light", "Light"}, {"dark", "Dark"}}};
inline constexpr std::array<SettingChoice, 6> kSortChoices = {{
    {"BHD", "Birth/Horary Date"}, {"CTY", "City"},  {"CLN", "Client Name"},
    {"CRD", "Created Date"},      {"EML", "Email"}, {"MBL", "Mobile No."}}};
// clang-format on

// The size of all texts in the windows, in per cent.
inline constexpr int kLeastTextSize = 90;
inline constexpr int kUsualTextSize = 100;
inline constexpr int kMostTextSize = 140;

// The choice whose code or text it is, in any case; null where there is none.
const SettingChoice* FindChoice(std::span<const SettingChoice> choices,
                                std::string_view codeOrText);

// The fields of the dialog: shown texts of the choices, everything else as typed.
struct SettingsForm {
  std::string RahuKetuCalculation;
  std::string DefaultChartType;
  std::string StatusBarDegreeCalc;
  std::string SortBy;
  std::string ExactAyanamsa;
  std::string BirthMoment;
  std::string DegreesShown;
  std::string TextSize;  // a whole number of per cent
  std::string Theme;
  std::string ChartPath;                       // empty: the default folder
  std::int32_t UserCityId = 0;                 // 0: the present city is kept
  std::string UserCityName;                    // shown beside the field
  std::int32_t InstantChartGroupId = 0;        // 0: none
  std::array<std::string, kAspectCount> Orbs;  // degrees, in the order of kAspects
  std::string AstrologerName;
  std::string AstrologerOrganization;
  std::string AstrologerContactDetails;
};

// The form as the dialog opens: the stored row, with the orbs of the state.
SettingsForm OpenSettings(const Session& session);

// The refusal of an orb as typed; nothing where it may be taken. `aspect` is a place in kAspects.
std::optional<Refusal> CheckOrb(std::size_t aspect, const std::string& typed);

// "30 Degree: (27 to 33)", the caption that follows an orb that may be taken.
std::string OrbCaption(std::size_t aspect, const std::string& typed);

// The default orbs, as the reset writes them into the fields.
std::array<std::string, kAspectCount> DefaultOrbs();

// The ayanamsa of the reading to the second, "kp" or "kp-new".
std::string ExactAyanamsaOf(const Session& session);

// What a chart west of Greenwich takes: 'S' local mean time, 'C' the clock's time.
char BirthMomentOf(const Session& session);

// How the windows look.
struct LookSettings {
  bool DegreesInSign = true;  // else as they are stored
  int TextSize = kUsualTextSize;
  std::string Theme = "desktop";  // or "light", "dark"
};

LookSettings LookOf(const Session& session);

// Keeps the ayanamsa of the reading to the second, "kp" or "kp-new".
SaveResult SaveExactAyanamsa(Session& session, const std::string& code);

// Saves the form and takes it into the state. The first failed check is refused with its page and
// field; fields are named after their columns. An unknown sort text is stored as "CLN".
SaveResult SaveSettings(Session& session, const SettingsForm& form);

}  // namespace orvex::core
