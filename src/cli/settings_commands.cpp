#include <functional>
#include <iostream>

#include "cli/context.h"
#include "cli/output.h"
#include "core/settings.h"
#include "core/text.h"

namespace orvex::cli {

namespace {

using core::SettingsForm;
using Assign = std::function<void(SettingsForm&, const std::string&)>;

// A setting by its column and how a text becomes its field.
struct Setting {
  std::string Column;
  Assign Set;
};

Setting Text(const char* column, std::string SettingsForm::*field) {
  return {column, [field](SettingsForm& form, const std::string& value) { form.*field = value; }};
}

Setting Id(const char* column, std::int32_t SettingsForm::*field) {
  return {column, [field, column](SettingsForm& form, const std::string& value) {
            form.*field = WholeOption(column, value);
          }};
}

// A choice is taken as its code or its text; any other word is refused, as no dialog offers it.
Setting Choice(const char* column, std::string SettingsForm::*field,
               std::span<const core::SettingChoice> choices) {
  return {column, [=](SettingsForm& form, const std::string& value) {
            if (core::FindChoice(choices, value) == nullptr) {
              std::string known;
              for (const core::SettingChoice& choice : choices) {
                known +=
                    std::string(known.empty() ? "" : ", ") + choice.Code + " (" + choice.Text + ")";
              }
              throw CommandFailed(std::string(column) + " takes one of " + known);
            }
            form.*field = value;
          }};
}

std::vector<Setting> AllSettings() {
  std::vector<Setting> settings = {
      Choice("RahuKetuCalculation", &SettingsForm::RahuKetuCalculation, core::kNodeChoices),
      Choice("DefaultChartType", &SettingsForm::DefaultChartType, core::kChartTypeChoices),
      Choice("StatusBarDegreeCalc", &SettingsForm::StatusBarDegreeCalc, core::kDegreeChoices),
      Choice("ExactAyanamsa", &SettingsForm::ExactAyanamsa, core::kAyanamsaChoices),
      Choice("BirthMoment", &SettingsForm::BirthMoment, core::kBirthMomentChoices),
      Choice("DegreesShown", &SettingsForm::DegreesShown, core::kShownDegreeChoices),
      Text("TextSize", &SettingsForm::TextSize),
      Choice("Theme", &SettingsForm::Theme, core::kThemeChoices),
      Text("chartpath", &SettingsForm::ChartPath),
      Text("AstrologerName", &SettingsForm::AstrologerName),
      Text("AstrologerOrganization", &SettingsForm::AstrologerOrganization),
      Text("AstrologerContactDetails", &SettingsForm::AstrologerContactDetails),
      Id("usercityid", &SettingsForm::UserCityId),
      Text("SortByField", &SettingsForm::SortBy),
      Id("ICGroupID", &SettingsForm::InstantChartGroupId)};
  for (std::size_t aspect = 0; aspect < core::kAspectCount; ++aspect) {
    settings.push_back(
        {core::kAspects.at(aspect).OrbColumn,
         [aspect](SettingsForm& form, const std::string& value) { form.Orbs.at(aspect) = value; }});
  }
  return settings;
}

// Takes "KEY=VALUE" into the form; keys are columns of the settings row, in any case.
void ApplySetting(const std::string& assignment, SettingsForm& form) {
  const std::size_t sign = assignment.find('=');
  if (sign == std::string::npos) {
    RefuseWords("settings set", "takes KEY=VALUE");
  }
  const std::string key = core::LowerCase(core::Trim(assignment.substr(0, sign)));
  for (const Setting& setting : AllSettings()) {
    if (core::LowerCase(setting.Column) == key) {
      setting.Set(form, assignment.substr(sign + 1));
      return;
    }
  }
  RefuseWords("settings set", "there is no setting \"" + core::FirstCharacters(key, 40) + "\"");
}

void PrintSettings(const core::Session& session, bool json) {
  const core::Result row = session.StoreConnection.Query("Select Top 1 * from settings");
  Json document = Json::object();
  core::Table table{{{"Setting"}, {"Value"}}, {}};
  for (const std::string& field : row.FieldNames()) {
    document[field] = row.Text(field);
    table.Rows.push_back({{{field}, {row.Text(field)}}});
  }
  if (json) {
    PrintJson(document);
  } else {
    PrintTable(table);
  }
}

void RunSet(Context& context, const std::vector<std::string>& assignments) {
  core::Session& session = context.Writing();
  SettingsForm form = core::OpenSettings(session);
  for (const std::string& assignment : assignments) {
    ApplySetting(assignment, form);
  }
  Context::Saved(core::SaveSettings(session, form));
  PrintSettings(session, context.Json);
}

}  // namespace

void AddSettingsCommands(Command app, Context& context) {
  Command settings = app.add_subcommand("settings", "the settings of the practice");
  settings.require_subcommand(1);
  AddCommand(settings, "show", "show the settings row",
             [&context] { PrintSettings(context.Reading(), context.Json); });
  auto assignments = std::make_shared<std::vector<std::string>>();
  Command set = AddCommand(settings, "set", "change settings; the rest stays",
                           [&context, assignments] { RunSet(context, *assignments); });
  set.add_option("KEY=VALUE", *assignments, "columns of the settings row").required();
}

}  // namespace orvex::cli
