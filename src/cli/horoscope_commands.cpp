#include <iostream>

#include "chart/aspects.h"
#include "cli/chart_style.h"
#include "cli/context.h"
#include "cli/output.h"
#include "core/exact_numbers.h"
#include "core/own_files.h"
#include "horoscope/catalogue.h"
#include "horoscope/create_horoscope.h"
#include "horoscope/moved_lords.h"
#include "ui/painting/dasha_timeline.h"
#include "ui/painting/graph_files.h"
#include "ui/painting/offscreen.h"

namespace orvex::cli {

namespace {

struct HoroscopeOptions {
  std::string Id;
  std::string Rotate;
  std::string Aspects;
  std::string Year;
  std::string TimelineFile;
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
    throw CommandFailed(name + " takes a number from " + core::WholeText(low) + " to " +
                        core::WholeText(high));
  }
  return number;
}

horoscope::OpenedHoroscope Open(Context& context, const HoroscopeOptions& options) {
  core::Session& session = context.Reading();
  horoscope::OpenedHoroscope opened = OpenHoroscope(context, options.Id);
  if (!options.Rotate.empty()) {
    horoscope::RotateNow(session, opened, OptionWithin("--rotate", options.Rotate, 1, 12));
  }
  if (!options.Aspects.empty()) {
    chart::LoadPlanetAspects(opened.Model, session.State.AspectBands,
                             AspectFilter(options.Aspects));
  }
  if (!options.Year.empty()) {
    horoscope::ShowYear(opened, OptionWithin("--year", options.Year, 1, 120));
  }
  return opened;
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

void WriteTimeline(const core::Session& session, const std::string& file,
                   const chart::HoroscopeModel& model) {
  core::CheckFileToWrite(session, file);
  const ui::OffscreenPainting painting;
  const ui::TimelinePicture picture = ui::PictureOfDashas(model, session.Time.Today());
  const auto paint = [&](QPainter& painter, const QRectF& area, ui::Ground ground) {
    ui::PaintTimeline(painter, area, picture, ground, std::nullopt);
  };
  ui::WriteGraphSvg(paint, picture.Title, file);
}

void RunHoroscope(Context& context, const HoroscopeOptions& options) {
  const horoscope::OpenedHoroscope opened = Open(context, options);
  if (!options.TimelineFile.empty()) {
    WriteTimeline(context.Reading(), options.TimelineFile, opened.Model);
  }
  if (context.Json) {
    PrintJson(HoroscopeJson(opened.Model));
  } else {
    PrintHoroscope(opened.Model);
  }
}

struct RectifyOptions {
  std::string Id;
  std::optional<std::string> Offset;
  std::optional<std::string> Latitude;
  std::optional<std::string> Longitude;
  std::string Days = "0";
  std::string Hours = "0";
  std::string Minutes = "0";
  std::string Seconds = "0";
};

void RunRectify(Context& context, const RectifyOptions& options) {
  const horoscope::OpenedHoroscope opened = OpenHoroscope(context, options.Id);
  horoscope::RecalculationForm form = horoscope::OpenRecalculation(opened.Model);
  form.Offset = options.Offset.value_or(form.Offset);
  form.Latitude = options.Latitude.value_or(form.Latitude);
  form.Longitude = options.Longitude.value_or(form.Longitude);
  form.Shift = {WholeOption("--days", options.Days), WholeOption("--hours", options.Hours),
                WholeOption("--minutes", options.Minutes),
                WholeOption("--seconds", options.Seconds)};
  const horoscope::Recalculation result =
      horoscope::Recalculate(context.Reading(), opened.Model, form);
  if (result.Refused) {
    throw CommandFailed(result.Refused->Text);
  }
  const std::string birth = core::StoredDateTimeText(result.Birth);
  const core::Table lords = horoscope::MovedLords(context.Reading(), opened.Model, form);
  if (context.Json) {
    PrintJson({{"birth", birth},
               {"cusps", TableJson(result.Cusps)},
               {"planets", TableJson(result.Planets)},
               {"dashas", TableJson(result.Dashas)},
               {"dashaBalance", result.DashaBalance},
               {"lords", TableJson(lords)}});
    return;
  }
  std::cout << birth << "\n\n";
  PrintTable(lords);
  std::cout << "\n";
  PrintTable(result.Cusps);
  std::cout << "\n";
  PrintTable(result.Planets);
  std::cout << "\n" << result.DashaBalance << "\n";
  PrintTable(result.Dashas);
}

void AddRectifyCommand(Command app, Context& context) {
  auto options = std::make_shared<RectifyOptions>();
  Command command =
      AddCommand(app, "rectify", "a client's chart for a moved birth; nothing is saved",
                 [&context, options] { RunRectify(context, *options); });
  command.add_option("ID", options->Id, "id of the client").required();
  command.add_option("--offset", options->Offset, "hours east of Greenwich");
  command.add_option("--latitude", options->Latitude, "degrees north");
  command.add_option("--longitude", options->Longitude, "degrees east");
  command.add_option("--days", options->Days, "days to move the birth by");
  command.add_option("--hours", options->Hours, "hours to move the birth by");
  command.add_option("--minutes", options->Minutes, "minutes to move the birth by");
  command.add_option("--seconds", options->Seconds, "seconds to move the birth by");
}

}  // namespace

void AddHoroscopeCommands(Command app, Context& context) {
  auto options = std::make_shared<HoroscopeOptions>();
  Command command = AddCommand(app, "horoscope", "the assembled horoscope of a client",
                               [&context, options] { RunHoroscope(context, *options); });
  command.add_option("ID", options->Id, "id of the client").required();
  command.add_option("--rotate", options->Rotate, "house that counts as the first, 1 to 12");
  command.add_option("--aspects", options->Aspects, "aspects listed: all, good or hard")
      .one_of({"all", "good", "hard"});
  command.add_option("--year", options->Year, "year of life of the annual chart, 1 to 120");
  command.add_option("--timeline", options->TimelineFile, "writes the periods as bars, as SVG");
  AddRectifyCommand(app, context);
}

}  // namespace orvex::cli
