#include <iostream>

#include "cli/context.h"
#include "cli/output.h"
#include "core/exact_numbers.h"
#include "practice/cities.h"
#include "practice/zone_clock.h"

namespace orvex::cli {

namespace {

struct CityOptions {
  std::string Id;
  std::string Text;
  std::string Moment;
  practice::CityForm Form;
  std::string Longitude;
  std::optional<Option> OffsetOption;     // --offset, to tell an empty text from none
  std::optional<Option> LongitudeOption;  // --longitude, likewise
};

void RunListCity(Context& context, const CityOptions& options) {
  const core::Session& session = context.Reading();
  core::Table cities = options.Text.empty() ? practice::LoadCities(session)
                                            : practice::SearchCities(session, options.Text);
  for (core::Row& row : cities.Rows) {
    row.Tag = row.Cells.front().Tag;
  }
  PrintList(std::move(cities), context.Json);
}

void RunAddCity(Context& context, const CityOptions& options) {
  core::Session& session = context.Writing();
  if (!practice::OpenAddCity(session)) {
    throw CommandFailed("");
  }
  practice::CityForm form = options.Form;
  if (!options.OffsetOption->given()) {
    form.Offset = practice::OffsetOfZone(session, form.TimeZone).value_or("");
  }
  PrintId(Context::Saved(practice::SaveNewCity(session, form)), context.Json);
}

std::string OffsetOrNothing(const std::optional<double>& hours) {
  return hours ? practice::OffsetText(*hours) : "";
}

void RunOffset(Context& context, const CityOptions& options) {
  core::Session& session = context.Reading();
  const std::optional<practice::CityForm> city =
      practice::OpenEditCity(session, WholeOption("ID", options.Id));
  if (!city) {
    throw CommandFailed("");
  }
  const core::DateTime moment = MomentOption("MOMENT", options.Moment);
  const double longitude = NumberOption(
      "--longitude", options.LongitudeOption->given() ? options.Longitude : city->Longitude, -180,
      180);
  const practice::ZoneClock clock = practice::ClocksOf(city->TimeZone, moment, longitude);
  const core::Table table{{{"City"},
                           {"Zone"},
                           {"Local time"},
                           {"Standard offset"},
                           {"Offset in force"},
                           {"Offset after"},
                           {"Clock"},
                           {"Remark"}},
                          {{{{city->CityName},
                             {city->TimeZone},
                             {core::StoredDateTimeText(moment)},
                             {practice::OffsetText(clock.StandardOffset)},
                             {practice::OffsetText(clock.OffsetInForce)},
                             {OffsetOrNothing(clock.SecondOffset)},
                             {clock.Abbreviation},
                             {practice::ReadingText(clock)}}}}};
  if (context.Json) {
    PrintJson(TableJson(table));
    return;
  }
  for (std::size_t i = 0; i < table.Columns.size(); ++i) {
    const std::string& text = table.Rows.front().Cells.at(i).Text;
    if (!text.empty()) {
      std::cout << table.Columns.at(i).Caption << ": " << text << "\n";
    }
  }
}

}  // namespace

void AddCityCommands(Command app, Context& context) {
  Command city = app.add_subcommand("city", "cities and their time zones");
  city.require_subcommand(1);
  const auto add = [&](const char* name, const char* description, auto run) {
    auto options = std::make_shared<CityOptions>();
    Command command =
        AddCommand(city, name, description, [&context, options, run] { run(context, *options); });
    return std::pair(command, options);
  };
  const auto [listCommand, listOptions] = add("list", "list the cities", RunListCity);
  listCommand.add_option("TEXT", listOptions->Text, "text that the name holds");

  const auto [addCommand, addOptions] = add("add", "add a city", RunAddCity);
  practice::CityForm& form = addOptions->Form;
  addCommand.add_option("--name", form.CityName, "name").required();
  addCommand.add_option("--timezone", form.TimeZone, "zone, as Asia/Kolkata").required();
  addCommand.add_option("--latitude", form.Latitude, "degrees north").required();
  addCommand.add_option("--longitude", form.Longitude, "degrees east").required();
  addOptions->OffsetOption =
      addCommand.add_option("--offset", form.Offset, "hours east of Greenwich; else the zone's");

  const auto [offsetCommand, offsetOptions] =
      add("offset", "what the clocks of a city showed on a date", RunOffset);
  offsetCommand.add_option("ID", offsetOptions->Id, "id of the city").required();
  offsetCommand.add_option("MOMENT", offsetOptions->Moment, "YYYY-MM-DD HH:MM").required();
  offsetOptions->LongitudeOption = offsetCommand.add_option(
      "--longitude", offsetOptions->Longitude, "degrees east of the birthplace; else the city's");
}

}  // namespace orvex::cli
