#include "core/settings.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/exact_numbers.h"
#include "core/startup.h"
#include "core/store_write.h"
#include "core/text.h"

namespace orvex::core {

namespace {

constexpr std::size_t kLongestName = 50;
constexpr std::size_t kLongestContact = 250;

std::int64_t OrbDegrees(const std::string& typed) { return RoundToWhole(ToDouble(typed)); }

// The text that a stored code is shown as; an unknown one shows the first choice.
std::string ShownText(std::span<const SettingChoice> choices, const std::string& code) {
  const SettingChoice* choice = FindChoice(choices, code);
  return choice == nullptr ? choices.front().Text : choice->Text;
}

std::string StoredCode(std::span<const SettingChoice> choices, const std::string& text,
                       const char* fallback) {
  const SettingChoice* choice = FindChoice(choices, text);
  return Quoted(choice == nullptr ? fallback : choice->Code);
}

std::optional<Refusal> CheckProfile(const SettingsForm& form) {
  const auto refuse = [](const char* text, const char* field) {
    return Refusal{text, MessageIcon::Information, field, kProfilePage};
  };
  const auto exceeds = [](const std::string& text, std::size_t limit) {
    return CharacterCount(Trim(text)) > limit;
  };
  if (exceeds(form.AstrologerName, kLongestName)) {
    return refuse("Name cannot exceed 50 characters.", "AstrologerName");
  }
  if (exceeds(form.AstrologerOrganization, kLongestName)) {
    return refuse("Organization cannot exceed 50 characters.", "AstrologerOrganization");
  }
  if (exceeds(form.AstrologerContactDetails, kLongestContact)) {
    return refuse("Contact Details cannot exceed 250 characters.", "AstrologerContactDetails");
  }
  return std::nullopt;
}

// City and group are chosen from lists; both may have been deleted since the lists were filled.
std::optional<Refusal> CheckChoices(const Session& session, const SettingsForm& form) {
  const auto refuse = [](const char* text, const char* field) {
    return Refusal{text, MessageIcon::Information, field, kGeneralPage};
  };
  if (form.UserCityId != 0 && !HasRow(session.StoreConnection, "city_master", form.UserCityId)) {
    return refuse(kNoCityChosen, "UserCityID");
  }
  if (form.InstantChartGroupId != 0 &&
      !HasRow(session.StoreConnection, "group_master", form.InstantChartGroupId)) {
    return refuse(kNoGroupWithId, "ICGroupID");
  }
  return std::nullopt;
}

std::optional<Refusal> CheckTextSize(const std::string& typed) {
  const std::optional<std::int64_t> size = ParseWhole(Trim(typed));
  if (!size || *size < kLeastTextSize || *size > kMostTextSize) {
    return Refusal{"The text size must be a whole number from " + WholeText(kLeastTextSize) +
                       " to " + WholeText(kMostTextSize) + ".",
                   MessageIcon::Information, "TextSize", kLookPage};
  }
  return std::nullopt;
}

std::optional<Refusal> CheckSettings(const Session& session, const SettingsForm& form) {
  if (std::optional<Refusal> refused = CheckProfile(form)) {
    return refused;
  }
  for (std::size_t aspect = 0; aspect < kAspectCount; ++aspect) {
    if (std::optional<Refusal> refused = CheckOrb(aspect, form.Orbs[aspect])) {
      return refused;
    }
  }
  if (std::optional<Refusal> refused = CheckChoices(session, form)) {
    return refused;
  }
  return CheckTextSize(form.TextSize);
}

std::string UpdateStatement(const SettingsForm& form, std::int32_t cityId) {
  std::vector<std::pair<std::string, std::string>> values = {
      {"RahuKetuCalculation", StoredCode(kNodeChoices, form.RahuKetuCalculation, "M")},
      {"DefaultChartType", StoredCode(kChartTypeChoices, form.DefaultChartType, "N")},
      {"StatusBarDegreeCalc", StoredCode(kDegreeChoices, form.StatusBarDegreeCalc, "A")},
      {"ChartPath", Quoted(form.ChartPath)},
      {"AstrologerName", Quoted(Trim(form.AstrologerName))},
      {"AstrologerOrganization", Quoted(Trim(form.AstrologerOrganization))},
      {"AstrologerContactDetails", Quoted(Trim(form.AstrologerContactDetails))},
      {"UserCityID", WholeText(cityId)}};
  for (std::size_t aspect = 0; aspect < kAspectCount; ++aspect) {
    values.emplace_back(kAspects[aspect].OrbColumn, WholeText(OrbDegrees(form.Orbs[aspect])));
  }
  values.emplace_back("SortByField", StoredCode(kSortChoices, form.SortBy, "CLN"));
  values.emplace_back("ICGroupID", WholeText(form.InstantChartGroupId));
  values.emplace_back("ExactAyanamsa", StoredCode(kAyanamsaChoices, form.ExactAyanamsa, "kp"));
  values.emplace_back("BirthMoment", StoredCode(kBirthMomentChoices, form.BirthMoment, "S"));
  values.emplace_back("DegreesShown", StoredCode(kShownDegreeChoices, form.DegreesShown, "S"));
  values.emplace_back("TextSize", Trim(form.TextSize));
  values.emplace_back("Theme", StoredCode(kThemeChoices, form.Theme, "desktop"));
  std::string changes;
  for (const auto& [column, value] : values) {
    changes += (changes.empty() ? "" : ", ") + column + " = " + value;
  }
  return "Update settings set " + changes;
}

}  // namespace

const SettingChoice* FindChoice(std::span<const SettingChoice> choices,
                                std::string_view codeOrText) {
  const std::string wanted = UpperCase(codeOrText);
  const auto found = std::find_if(choices.begin(), choices.end(), [&](const SettingChoice& choice) {
    return wanted == UpperCase(choice.Code) || wanted == UpperCase(choice.Text);
  });
  return found == choices.end() ? nullptr : &*found;
}

SettingsForm OpenSettings(const Session& session) {
  const Result row = session.StoreConnection.Query("Select Top 1 * from settings");
  const ApplicationState& state = session.State;
  SettingsForm form;
  form.RahuKetuCalculation = ShownText(kNodeChoices, row.Text("RahuKetuCalculation"));
  form.DefaultChartType = ShownText(kChartTypeChoices, row.Text("DefaultChartType"));
  form.StatusBarDegreeCalc = ShownText(kDegreeChoices, row.Text("StatusBarDegreeCalc"));
  const SettingChoice* sort = FindChoice(kSortChoices, row.Text("SortByField"));
  form.SortBy = sort == nullptr ? ShownText(kSortChoices, "CLN") : sort->Text;
  form.ExactAyanamsa = ShownText(kAyanamsaChoices, row.Text("ExactAyanamsa"));
  form.BirthMoment = ShownText(kBirthMomentChoices, row.Text("BirthMoment"));
  const LookSettings look = LookOf(session);
  form.DegreesShown = kShownDegreeChoices.at(look.DegreesInSign ? 0 : 1).Text;
  form.TextSize = WholeText(look.TextSize);
  form.Theme = ShownText(kThemeChoices, look.Theme);
  form.ChartPath = row.Text("chartpath");
  form.UserCityId = state.UserCityId;
  form.UserCityName = state.UserCityName;
  form.InstantChartGroupId = state.InstantChartGroupId;
  for (std::size_t aspect = 0; aspect < kAspectCount; ++aspect) {
    form.Orbs[aspect] = WholeText(state.Orbs[aspect]);
  }
  form.AstrologerName = row.Text("AstrologerName");
  form.AstrologerOrganization = row.Text("AstrologerOrganization");
  form.AstrologerContactDetails = row.Text("AstrologerContactDetails");
  return form;
}

std::optional<Refusal> CheckOrb(std::size_t aspect, const std::string& typed) {
  const AspectBand& band = kAspects.at(aspect);
  const std::optional<double> degrees = ParseNumber(typed);
  if (!degrees) {
    return Refusal{"Numeric value required.", MessageIcon::Stop, band.OrbColumn, kOrbitsPage};
  }
  if (*degrees < 0 || *degrees > band.HighestOrb) {
    return Refusal{
        "Value cannot be less than 0 or greater than " + WholeText(band.HighestOrb) + ".",
        MessageIcon::Stop, band.OrbColumn, kOrbitsPage};
  }
  return std::nullopt;
}

std::string OrbCaption(std::size_t aspect, const std::string& typed) {
  const std::int64_t degrees = kAspects.at(aspect).Aspect;
  const std::int64_t orb = OrbDegrees(typed);
  return WholeText(degrees) + " Degree: (" + WholeText(degrees - orb) + " to " +
         WholeText(degrees + orb) + ")";
}

std::array<std::string, kAspectCount> DefaultOrbs() {
  std::array<std::string, kAspectCount> orbs;
  std::transform(kAspects.begin(), kAspects.end(), orbs.begin(),
                 [](const AspectBand& band) { return WholeText(band.DefaultOrb); });
  return orbs;
}

namespace {

// A column of the settings row; "" also where a store of an old release, opened only to read, has
// none of that name.
std::string SettingText(const Session& session, const std::string& column) {
  const Result row = session.StoreConnection.Query("Select Top 1 * from settings");
  const std::vector<std::string> fields = row.FieldNames();
  return std::find(fields.begin(), fields.end(), column) == fields.end() ? "" : row.Text(column);
}

}  // namespace

std::string ExactAyanamsaOf(const Session& session) {
  return SettingText(session, "ExactAyanamsa") == "kp-new" ? "kp-new" : "kp";
}

char BirthMomentOf(const Session& session) {
  return SettingText(session, "BirthMoment") == "C" ? 'C' : 'S';
}

LookSettings LookOf(const Session& session) {
  LookSettings look;
  look.DegreesInSign = SettingText(session, "DegreesShown") != "A";
  const std::int64_t size = ParseWhole(SettingText(session, "TextSize")).value_or(kUsualTextSize);
  look.TextSize = static_cast<int>(std::clamp<std::int64_t>(size, kLeastTextSize, kMostTextSize));
  if (const SettingChoice* theme = FindChoice(kThemeChoices, SettingText(session, "Theme"))) {
    look.Theme = theme->Code;
  }
  return look;
}

SaveResult SaveExactAyanamsa(Session& session, const std::string& code) {
  return WriteBatch(session, [&code](Store& store) {
    store.Execute("Update settings set ExactAyanamsa = " +
                  StoredCode(kAyanamsaChoices, code, "kp"));
    return 0;
  });
}

SaveResult SaveSettings(Session& session, const SettingsForm& form) {
  if (std::optional<Refusal> refused = CheckSettings(session, form)) {
    return {0, std::move(refused)};
  }
  const std::int32_t cityId = form.UserCityId == 0 ? session.State.UserCityId : form.UserCityId;
  SaveResult saved = WriteBatch(session, [&form, cityId](Store& store) {
    store.Execute(UpdateStatement(form, cityId));
    return cityId;
  });
  if (!saved.Refused) {
    LoadSessionSettings(session);
    LoadUserCity(session);
  }
  return saved;
}

}  // namespace orvex::core
