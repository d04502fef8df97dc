#include <iostream>

#include "cli/chart_style.h"
#include "cli/city_place.h"
#include "cli/context.h"
#include "cli/output.h"
#include "exact/crossings_table.h"
#include "horoscope/exact_reading.h"
#include "transit/crossings_calendar.h"

namespace orvex::cli {

namespace {

struct ExactOptions {
  std::string Id;
  std::string Ayanamsa;
};

struct CrossingOptions {
  std::string Point;
  std::string From;
  std::string To;
  std::string Depth = "sub";
  std::string City;
  std::string Ayanamsa;
  std::string IcsFile;
};

exact::Reading ReadingFor(const core::Session& session, const std::string& option) {
  return exact::ReadingOfCode(option).value_or(exact::ReadingOf(session));
}

void PrintReading(const horoscope::ExactReading& reading) {
  std::cout << "Moment: " << reading.Moment << "\nStoredMoment: " << reading.StoredMoment
            << "\nAyanamsa: " << reading.Ayanamsa << "\nReading: " << reading.Reading << "\n\n";
  if (reading.Message.empty()) {
    PrintTable(reading.Cusps);
  } else {
    std::cout << reading.Message << "\n";
  }
  std::cout << "\n";
  PrintTable(reading.Planets);
}

void RunExact(Context& context, const ExactOptions& options) {
  core::Session& session = context.Reading();
  const horoscope::OpenedHoroscope opened = OpenHoroscope(context, options.Id);
  const horoscope::ExactReading reading = horoscope::ReadToTheSecond(
      session, opened.Model, opened.Birth, ReadingFor(session, options.Ayanamsa));
  if (!context.Json) {
    PrintReading(reading);
    return;
  }
  Json captions = {{"Moment", reading.Moment},
                   {"StoredMoment", reading.StoredMoment},
                   {"Ayanamsa", reading.Ayanamsa},
                   {"Reading", reading.Reading}};
  if (!reading.Message.empty()) {
    captions["Message"] = reading.Message;
  }
  PrintJson(
      {{"captions", std::move(captions)},
       {"tables",
        {{"ExactCusps", TableJson(reading.Cusps)}, {"ExactPlanets", TableJson(reading.Planets)}}}});
}

exact::Depth DepthOf(const std::string& option) {
  if (option == "sign") {
    return exact::Depth::Sign;
  }
  if (option == "star") {
    return exact::Depth::Star;
  }
  return option == "sub" ? exact::Depth::Sub : exact::Depth::SubSub;
}

exact::CrossingSearch CrossingSearchOf(core::Session& session, const CrossingOptions& options,
                                       const CityPlace& city) {
  const std::optional<exact::Point> point = exact::PointOfName(options.Point);
  if (!point) {
    throw CommandFailed("POINT takes the name of a planet or Ascendant.");
  }
  const auto userOffset = exact::OffsetOf(static_cast<double>(session.State.UserCityOffset));
  exact::CrossingSearch search;
  search.Body = *point;
  search.Where = city.Where;
  search.Down = DepthOf(options.Depth);
  search.From = options.From.empty() ? session.Time.Now() - userOffset
                                     : MomentOption("--from", options.From) - city.Clock;
  const bool ascendant = *point == exact::Point::Ascendant;
  search.To = options.To.empty()
                  ? core::DateAdd(ascendant ? core::DateInterval::Days : core::DateInterval::Months,
                                  1, search.From + city.Clock) -
                        city.Clock
                  : MomentOption("--to", options.To) - city.Clock;
  if (search.To <= search.From) {
    throw CommandFailed("--to takes a moment after --from.");
  }
  return search;
}

void RunCrossings(Context& context, const CrossingOptions& options) {
  core::Session& session = context.Reading();
  const CityPlace city = CityPlaceOf(session, options.City);
  const exact::CrossingSearch search = CrossingSearchOf(session, options, city);
  const exact::ExactZodiac zodiac(session.Reference);
  const exact::ExactSky sky(session.Ephemeris, ReadingFor(session, options.Ayanamsa),
                            session.State.RahuKetuCalculation);
  const std::vector<exact::Crossing> crossings = exact::Crossings(sky, zodiac, search);
  WriteCalendar(session, options.IcsFile, transit::CrossingEvents(zodiac, search, crossings));
  const core::Table table = exact::CrossingsTable(zodiac, crossings, city.Clock);
  if (context.Json) {
    PrintJson({{"tables", {{"Crossings", TableJson(table)}}}});
  } else {
    PrintTable(table);
  }
}

void AddExact(Command app, Context& context) {
  auto options = std::make_shared<ExactOptions>();
  Command command = AddCommand(app, "exact", "a client's birth read to the second",
                               [&context, options] { RunExact(context, *options); });
  command.add_option("ID", options->Id, "id of the client").required();
  command.add_option("--ayanamsa", options->Ayanamsa, "kp or kp-new; else that of the settings")
      .one_of({"kp", "kp-new"});
}

void AddCrossings(Command app, Context& context) {
  auto options = std::make_shared<CrossingOptions>();
  Command command = AddCommand(app, "crossings", "when a planet or the Ascendant changes its lords",
                               [&context, options] { RunCrossings(context, *options); });
  command.add_option("POINT", options->Point, "a planet or Ascendant").required();
  command.add_option("--from", options->From, "local moment; else now");
  command.add_option("--to", options->To,
                     "local moment; else a day later for the Ascendant, a month for a planet");
  command.add_option("--depth", options->Depth, "sign, star, sub or subsub")
      .one_of({"sign", "star", "sub", "subsub"});
  command.add_option("--city", options->City, "id of the city; else the user city");
  command.add_option("--ayanamsa", options->Ayanamsa, "kp or kp-new; else that of the settings")
      .one_of({"kp", "kp-new"});
  command.add_option("--ics", options->IcsFile, "writes the changes as calendar");
}

}  // namespace

void AddExactCommands(Command app, Context& context) {
  AddExact(app, context);
  AddCrossings(app, context);
}

}  // namespace orvex::cli
