#include <iostream>

#include "chart/aspects.h"
#include "cli/context.h"
#include "cli/output.h"
#include "core/exact_numbers.h"
#include "horoscope/catalogue.h"
#include "horoscope/create_horoscope.h"

namespace orvex::cli {

namespace {

struct HoroscopeOptions {
  std::string Id;
  std::string Rotate;
  std::string Aspects;
  std::string Year;
};

// The filter of the aspect list that an option names.
std::string AspectFilter(const std::string& option) {
  if (option == "good") {
    return "+";
  }
  return option == "hard" ? "-" : "";
}

std::int32_t OptionWithin(const std::string& name, const std::string& text, int low, int high) {
  const std::int32_t number = WholeOption(name, text);
  if (number < low || number > high) {
    throw CommandFailed(name + " takes a number from " + core::PaddedWhole(low, 1) + " to " +
                        core::PaddedWhole(high, 1));
  }
  return number;
}

horoscope::OpenedHoroscope Open(Context& context, const HoroscopeOptions& options) {
  core::Session& session = context.Reading();
  std::optional<horoscope::OpenedHoroscope> opened =
      horoscope::CreateHoroscope(session, WholeOption("ID", options.Id));
  if (!opened) {
    throw CommandFailed("There is no client with that id.");
  }
  if (!options.Rotate.empty()) {
    horoscope::RotateNow(session, *opened, OptionWithin("--rotate", options.Rotate, 1, 12));
  }
  if (!options.Aspects.empty()) {
    chart::LoadPlanetAspects(opened->Model, session.State.AspectBands,
                             AspectFilter(options.Aspects));
  }
  if (!options.Year.empty()) {
    horoscope::ShowYear(*opened, OptionWithin("--year", options.Year, 1, 120));
  }
  return std::move(*opened);
}

Json HoroscopeJson(const chart::HoroscopeModel& model) {
  Json json = {
      {"client", Json::object()}, {"captions", Json::object()}, {"tables", Json::object()}};
  for (const auto& [column, text] : model.Client) {
    json["client"][column] = text;
  }
  for (const horoscope::CaptionEntry& caption : horoscope::HoroscopeCaptionTexts()) {
    json["captions"][caption.Name] = model.Captions.*caption.Text;
  }
  for (const horoscope::TableEntry& entry : horoscope::HoroscopeTables()) {
    const core::Table& table = entry.Of(model);
    if (!table.Columns.empty()) {
      json["tables"][entry.Name] = TableJson(table);
    }
  }
  return json;
}

void PrintHoroscope(const chart::HoroscopeModel& model) {
  for (const horoscope::CaptionEntry& caption : horoscope::HoroscopeCaptionTexts()) {
    std::cout << caption.Name << ": " << model.Captions.*caption.Text << "\n";
  }
  for (const horoscope::TableEntry& entry : horoscope::HoroscopeTables()) {
    const core::Table& table = entry.Of(model);
    if (!table.Columns.empty()) {
      std::cout << "\n" << entry.Title << "\n";
      PrintTable(table);
    }
  }
}

void RunHoroscope(Context& context, const HoroscopeOptions& options) {
  const horoscope::OpenedHoroscope opened = Open(context, options);
  if (context.Json) {
    PrintJson(HoroscopeJson(opened.Model));
  } else {
    PrintHoroscope(opened.Model);
  }
}

}  // namespace

void AddHoroscopeCommands(CLI::App& app, Context& context) {
  auto options = std::make_shared<HoroscopeOptions>();
  CLI::App* command = AddCommand(app, "horoscope", "the assembled horoscope of a client",
                                 [&context, options] { RunHoroscope(context, *options); });
  command->add_option("ID", options->Id, "id of the client")->required();
  command->add_option("--rotate", options->Rotate, "house that counts as the first, 1 to 12");
  command->add_option("--aspects", options->Aspects, "aspects listed: all, good or hard")
      ->check(CLI::IsMember({"all", "good", "hard"}));
  command->add_option("--year", options->Year, "year of life of the annual chart, 1 to 120");
}

}  // namespace orvex::cli
