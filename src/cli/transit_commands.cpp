#include <iostream>

#include "cli/city_place.h"
#include "cli/context.h"
#include "cli/output.h"
#include "core/exact_numbers.h"
#include "core/own_files.h"
#include "core/text.h"
#include "practice/cities.h"
#include "transit/changes.h"
#include "transit/find_transit_tool.h"
#include "transit/monthly_grid.h"
#include "transit/transit_calendar.h"
#include "transit/transit_details.h"
#include "ui/painting/graph_files.h"
#include "ui/painting/month_graph.h"
#include "ui/painting/offscreen.h"

namespace orvex::cli {

namespace {

struct TransitOptions {
  std::string Year;
  std::string Month;
  std::string City;
  std::string Time;
  std::string Planet;
  std::string Date;
  std::string Hour;
  std::string From;
  std::string Days;
  std::string Degree;
  std::string Star;
  std::string Pada;
  std::string Rashi;
  std::string Count = "1";
  std::string IcsFile;
  std::string SvgFile;
};

void WriteGraph(const core::Session& session, const std::string& file,
                const transit::MonthGrid& grid) {
  core::CheckFileToWrite(session, file);
  const ui::OffscreenPainting painting;
  const ui::MonthPicture picture = ui::PictureOfMonth(grid, session.Time.Today());
  ui::WriteGraphSvg([&](QPainter& painter, const QRectF& area,
                        ui::Ground ground) { ui::PaintMonth(painter, area, picture, ground); },
                    picture.Title, file);
}

transit::Planet PlanetArgument(const std::string& name) {
  const std::optional<transit::Planet> planet = transit::PlanetOfName(name);
  if (!planet) {
    throw CommandFailed("There is no planet of that name.");
  }
  return *planet;
}

// The view of the grid: the user city and now, or what the options say.
transit::GridView ViewOf(core::Session& session, const TransitOptions& options) {
  transit::GridView view = transit::UserCityView(session);
  if (!options.City.empty()) {
    const std::optional<practice::CityForm> city =
        practice::OpenEditCity(session, WholeOption("--city", options.City));
    if (!city) {
      throw CommandFailed("");
    }
    view.CityName = city->CityName;
    view.ZoneHours = core::ToSingle(city->Offset);
  }
  if (!options.Time.empty()) {
    const std::optional<core::DateTime> time = core::ParseDateTime("2000-01-01 " + options.Time);
    if (!time) {
      throw CommandFailed("--time takes a time of day in the form HH:MM");
    }
    view.TransitTime = *time;
  }
  return view;
}

void RunGrid(Context& context, const TransitOptions& options) {
  core::Session& session = context.Reading();
  const transit::GridView view = ViewOf(session, options);
  const std::int32_t month = WholeOption("MONTH", options.Month);
  const std::int32_t year = WholeOption("YEAR", options.Year);
  const transit::MonthGrid grid = transit::CreateGrid(session, view, month, year);
  if (!options.IcsFile.empty()) {
    WriteCalendar(session, options.IcsFile, transit::GridEvents(session, view, month, year));
  }
  if (!options.SvgFile.empty()) {
    WriteGraph(session, options.SvgFile, grid);
  }
  const core::Table changes = transit::ChangesOfMonth(session, month, year, view.ZoneHours);
  if (context.Json) {
    PrintJson({{"captions",
                {{"Title", grid.Title},
                 {"Next", grid.Next.Caption},
                 {"Previous", grid.Previous.Caption},
                 {"Month", grid.MonthLabel}}},
               {"tables", {{"Grid", TableJson(grid.Grid)}, {"Changes", TableJson(changes)}}}});
    return;
  }
  std::cout << grid.Title << "\n" << grid.MonthLabel << "\n";
  PrintTable(grid.Grid);
  std::cout << "\n";
  PrintTable(changes);
}

void RunMinutes(Context& context, transit::Planet planet, const transit::TransitDetails& details,
                const std::string& hourText) {
  const std::int32_t hour = WholeOption("--hour", hourText);
  if (hour < 0 || hour >= static_cast<std::int32_t>(details.Hours.Rows.size())) {
    throw CommandFailed("--hour takes a whole number from 0 to 23");
  }
  const auto minutes = transit::GetMinuteDetails(
      context.Reading(), planet, details.Hours.Rows.at(static_cast<std::size_t>(hour)).Tag);
  if (context.Json) {
    PrintJson({{"captions", {{"Title", details.Title}, {"Hour", minutes.value().Label}}},
               {"tables", {{"Minutes", TableJson(minutes.value().Minutes)}}}});
    return;
  }
  std::cout << details.Title << "\n" << minutes.value().Label << "\n";
  PrintTable(minutes.value().Minutes);
}

void RunTransit(Context& context, const TransitOptions& options) {
  const transit::Planet planet = PlanetArgument(options.Planet);
  const transit::TransitDetails details =
      transit::GetTransitForPlanet(context.Reading(), planet, MomentOption("DATE", options.Date));
  if (!options.Hour.empty()) {
    RunMinutes(context, planet, details, options.Hour);
    return;
  }
  if (context.Json) {
    PrintJson({{"captions",
                {{"Title", details.Title},
                 {"Previous", details.PreviousDay.Caption},
                 {"Next", details.NextDay.Caption}}},
               {"tables",
                {{"Hours", TableJson(details.Hours)}, {"Changes", TableJson(details.Changes)}}}});
    return;
  }
  std::cout << details.Title << "\n";
  PrintTable(details.Hours);
  std::cout << "\n";
  PrintTable(details.Changes);
}

// The name as the reference tables write it; the text itself where they have none of that name.
template <typename Rows, typename NameOf>
std::string AsWritten(const Rows& rows, NameOf nameOf, const std::string& text) {
  for (const auto& row : rows) {
    if (core::LowerCase(nameOf(row)) == core::LowerCase(text)) {
      return nameOf(row);
    }
  }
  return text;
}

transit::FindForm FormOf(const core::Session& session, const TransitOptions& options) {
  transit::FindForm form;
  form.Body = PlanetArgument(options.Planet);
  form.From = options.From.empty() ? session.Time.Today() : MomentOption("--from", options.From);
  form.DegreeText = options.Degree;
  if (!options.Star.empty()) {
    form.Kind = transit::TargetKind::Nakshatra;
    form.StarName = AsWritten(
        session.Reference.Stars, [](const core::StarRow& row) { return row.StarName; },
        options.Star);
    form.Pada = WholeOption("--pada", options.Pada);
  } else if (!options.Rashi.empty()) {
    form.Kind = transit::TargetKind::Rashi;
    form.Zodiac = AsWritten(
        session.Reference.Signs, [](const core::SignRow& row) { return row.Zodiac; },
        options.Rashi);
  }
  return form;
}

std::optional<std::int64_t> DaysOf(const TransitOptions& options) {
  return options.Days.empty() ? std::nullopt
                              : std::optional<std::int64_t>(WholeOption("--days", options.Days));
}

core::Table PassagesOf(const std::vector<transit::FindResult>& results) {
  core::Table table{{{"Moment"}, {"Passage"}}, {}};
  for (const transit::FindResult& result : results) {
    table.Rows.push_back({{{core::StoredDateTimeText(result.Hour)}, {result.Result}}, result.Tag});
  }
  return table;
}

void PrintFound(Context& context, const std::vector<transit::FindResult>& results) {
  const transit::FindResult& first = results.front();
  if (context.Json) {
    PrintJson(
        {{"captions", {{"Result", first.Result}, {"Tag", first.Tag}, {"Status", first.Status}}},
         {"tables",
          {{"Hours", TableJson(first.Hours)}, {"Passages", TableJson(PassagesOf(results))}}}});
    return;
  }
  for (const transit::FindResult& result : results) {
    std::cout << result.Result << "\n";
  }
  if (results.size() == 1) {
    PrintTable(first.Hours);
  }
}

void RunFind(Context& context, const TransitOptions& options) {
  core::Session& session = context.Reading();
  const transit::FindForm form = FormOf(session, options);
  const transit::TargetResult target = transit::TargetOf(session.Reference, form);
  if (target.Refused) {
    throw CommandFailed(target.Refused->Text);
  }
  const std::int32_t count = WholeOption("--count", options.Count);
  if (count < 1) {
    throw CommandFailed("--count takes a whole number from 1 on");
  }
  std::vector<transit::FindResult> results =
      transit::FindTransits(session, form, target.Degree, count, DaysOf(options), {});
  const transit::FindResult last = results.back();
  if (last.End != transit::SearchEnd::Found) {
    results.pop_back();
  }
  if (results.empty()) {
    throw CommandFailed(last.Status);
  }
  WriteCalendar(session, options.IcsFile, transit::PassageEvents(session, results));
  PrintFound(context, results);
  if (last.End != transit::SearchEnd::Found) {
    std::cerr << last.Status << "\n";
  }
}

void AddGrid(Command app, Context& context) {
  auto options = std::make_shared<TransitOptions>();
  Command command = AddCommand(app, "grid", "the planets of a month, day by day",
                               [&context, options] { RunGrid(context, *options); });
  command.add_option("YEAR", options->Year, "1500 to 2500").required();
  command.add_option("MONTH", options->Month, "1 to 12").required();
  command.add_option("--city", options->City, "id of the city; else the user city");
  command.add_option("--time", options->Time, "time of day, HH:MM; else now");
  command.add_option("--ics", options->IcsFile, "writes stations and changes of sign as calendar");
  command.add_option("--svg", options->SvgFile, "writes the month as lines over the signs");
}

void AddTransit(Command app, Context& context) {
  auto options = std::make_shared<TransitOptions>();
  Command command = AddCommand(app, "transit", "a planet hour by hour",
                               [&context, options] { RunTransit(context, *options); });
  command.add_option("PLANET", options->Planet, "name of the planet").required();
  command.add_option("DATE", options->Date, "YYYY-MM-DD").required();
  command.add_option("--hour", options->Hour, "0 to 23: the minutes of that hour");
}

void AddFind(Command app, Context& context) {
  auto options = std::make_shared<TransitOptions>();
  Command command = AddCommand(app, "find", "when a planet passes a degree, a star or a sign",
                               [&context, options] { RunFind(context, *options); });
  command.add_option("PLANET", options->Planet, "name of the planet").required();
  Command target = command.add_option_group("target");
  target.add_option("--degree", options->Degree, "0 to 360");
  Option star = target.add_option("--star", options->Star, "name of the nakshatra");
  target.add_option("--rashi", options->Rashi, "name of the sign");
  target.require_option(1);
  Option pada = command.add_option("--pada", options->Pada, "1 to 4");
  pada.needs(star);
  star.needs(pada);
  command.add_option("--from", options->From, "YYYY-MM-DD; else today");
  command.add_option("--days", options->Days, "the days to search; else without an end");
  command.add_option("--count", options->Count, "so many passages, one after the other");
  command.add_option("--ics", options->IcsFile, "writes what was found as calendar");
}

}  // namespace

void AddTransitCommands(Command app, Context& context) {
  AddGrid(app, context);
  AddTransit(app, context);
  AddFind(app, context);
}

}  // namespace orvex::cli
