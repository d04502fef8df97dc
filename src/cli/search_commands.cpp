#include "cli/search_commands.h"

#include <iostream>

#include "cli/output.h"
#include "core/text.h"
#include "practice/birthdays.h"

namespace orvex::cli {

namespace {

std::vector<std::int32_t> GroupIds(const std::string& text) {
  std::vector<std::int32_t> ids;
  for (const std::string& id : core::Split(text, ',')) {
    if (!core::Trim(id).empty()) {
      ids.push_back(WholeOption("--groups", core::Trim(id)));
    }
  }
  return ids;
}

std::string GenderLetter(const std::string& text) {
  const std::string word = core::UpperCase(text);
  for (const char* name : {"MALE", "FEMALE", "OTHER"}) {
    if (word == name || word == std::string(1, *name)) {
      return {*name};
    }
  }
  if (word != "ANY") {
    throw CommandFailed("--gender takes M, F or O");
  }
  return "";
}

int PlanetId(const core::Session& session, const char* option, const std::string& name) {
  for (const core::PlanetInfo& planet : session.Reference.Planets) {
    if (core::UpperCase(planet.PlanetName) == core::UpperCase(name)) {
      return planet.Id;
    }
  }
  throw CommandFailed(std::string(option) + ": there is no planet of that name");
}

int RetrogradeId(const core::Session& session, const std::string& name) {
  if (core::UpperCase(name) == "IGNORE") {
    return 0;
  }
  const int id = PlanetId(session, "--retro", name);
  if (id < practice::kFirstRetrogradeId || id > practice::kLastRetrogradeId) {
    throw CommandFailed("--retro takes Mercury, Venus, Mars, Jupiter or Saturn");
  }
  return id;
}

int RashiNumber(const core::Session& session, const std::string& name) {
  for (const core::SignRow& sign : session.Reference.Signs) {
    if (core::UpperCase(sign.Zodiac) == core::UpperCase(name)) {
      return sign.Rashi;
    }
  }
  if (core::UpperCase(name) != "ANY") {
    throw CommandFailed("--ascendant: there is no sign of that name");
  }
  return 0;
}

void TakeDates(const SearchOptions& options, practice::SearchFilter& filter) {
  using practice::DateRange;
  if (options.After) {
    filter.Dates = options.Before ? DateRange::Between : DateRange::After;
    filter.From = MomentOption("--after", *options.After);
  }
  if (options.Before) {
    const core::DateTime before = MomentOption("--before", *options.Before);
    (options.After ? filter.To : filter.From) = before;
    filter.Dates = options.After ? DateRange::Between : DateRange::Before;
  }
}

practice::SearchFilter FilterOf(const core::Session& session, const SearchOptions& options) {
  practice::SearchFilter filter;
  filter.Mode = options.Remedies ? practice::SearchMode::Remedies : practice::SearchMode::Clients;
  if (options.Groups) {
    filter.GroupIds = GroupIds(*options.Groups);
  }
  filter.Gender = options.Gender ? GenderLetter(*options.Gender) : "";
  filter.RetrogradePlanetId = options.Retro ? RetrogradeId(session, *options.Retro) : 0;
  filter.AscendantRashi = options.Ascendant ? RashiNumber(session, *options.Ascendant) : 0;
  filter.Name = options.Name;
  filter.Text = options.Text;
  if (options.Planet && core::UpperCase(*options.Planet) != "ANY") {
    filter.ForPlanetId = PlanetId(session, "--planet", *options.Planet);
  }
  TakeDates(options, filter);
  return filter;
}

void RunAndPrint(Context& context, const SearchOptions& options) {
  const practice::SearchResult found = RunSearch(context.Reading(), options);
  if (context.Json) {
    PrintJson({{"captions", {{"Result", found.ResultLine}}},
               {"tables", {{"Results", TableJson(found.Results)}}}});
    return;
  }
  PrintList(found.Results, false);
  std::cout << found.ResultLine << "\n";
}

void PrintBirthdays(Context& context) {
  const core::Table birthdays = practice::GetBirthdaysToday(context.Reading());
  Print(birthdays, context.Json);
  if (!context.Json) {
    std::cout << practice::BirthdayCaption(birthdays) << "\n";
  }
}

}  // namespace

void AddSearchOptions(Command command, SearchOptions& options) {
  command.add_flag("--remedies", options.Remedies, "find remedies, else clients");
  command.add_option("--groups", options.Groups, "ids of groups, with commas; else all groups");
  command.add_option("--gender", options.Gender, "M, F or O");
  command.add_option("--retro", options.Retro, "planet that is retrograde, Mercury to Saturn");
  command.add_option("--ascendant", options.Ascendant, "sign of the first cusp");
  command.add_option("--name", options.Name, "a part of the client's name");
  command.add_option("--text", options.Text, "text in the comments, or in problem or remedy");
  command.add_option("--after", options.After, "date; with --before: between the two");
  command.add_option("--before", options.Before, "date");
  command.add_option("--planet", options.Planet, "planet that the remedy is for");
}

practice::SearchResult RunSearch(const core::Session& session, const SearchOptions& options) {
  practice::SearchResult found = practice::SearchClients(session, FilterOf(session, options));
  if (found.Refused) {
    throw CommandFailed(found.Refused->Text);
  }
  return found;
}

void AddSearchCommands(Command app, Context& context) {
  auto options = std::make_shared<SearchOptions>();
  AddSearchOptions(AddCommand(app, "search", "find clients or remedies",
                              [&context, options] { RunAndPrint(context, *options); }),
                   *options);
  AddCommand(app, "birthdays", "the birthdays of today", [&context] { PrintBirthdays(context); });
}

}  // namespace orvex::cli
