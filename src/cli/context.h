// What the commands share: the options before the command and the session that it runs in.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

#include "astro/ephemeris_gateway.h"
#include "cli/call_words.h"
#include "core/save_result.h"
#include "core/session.h"
#include "core/startup.h"

namespace orvex::cli {

// Ends a command with exit status 1. The text goes to standard error; an empty one was shown
// before.
class CommandFailed : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Messages of a run go to standard error; questions are answered with the answer given.
class ErrorMessages final : public core::Messages {
 public:
  core::MessageAnswer ShowMessage(const std::string& text, core::MessageButtons buttons,
                                  core::MessageIcon icon) override;
};

class Context {
 public:
  std::string HomeOption;
  std::string NowOption;
  bool Demo = false;  // the demonstration in place of a home
  bool Json = false;

  // The session of a command, started at the first call. CommandFailed where the start is refused.
  core::Session& Reading() { return Open(core::StartMode::Reader); }
  core::Session& Writing() { return Open(core::StartMode::Writer); }

  // How the session of a command starts.
  core::StartupPlan Plan(core::StartMode mode) const;

  // The clock of the run.
  const core::Clock& Time();

  // The id that was saved; CommandFailed with the program's message where the form was refused.
  static std::int32_t Saved(const core::SaveResult& result);

  // Whether a computation found no ephemeris files.
  bool EphemerisFellBack() const { return ephemeris_.FellBack(); }

  // Whether the ephemeris had no position for a moment.
  bool EphemerisFailed() const { return ephemeris_.Failed(); }

 private:
  std::unique_ptr<core::Session> Start(const core::StartupPlan& plan);
  core::Session& Open(core::StartMode mode);

  std::unique_ptr<core::Clock> clock_;
  ErrorMessages messages_;
  astro::EphemerisGateway ephemeris_;
  std::unique_ptr<core::Session> session_;
};

// The date or moment of an option's text. CommandFailed for a text that names none.
core::DateTime MomentOption(const std::string& name, const std::string& text);

// The whole number of an option's or argument's text. CommandFailed for any other text.
std::int32_t WholeOption(const std::string& name, const std::string& text);

// The id of the group that an option names, else of the first group by name. CommandFailed where
// there is none.
std::int32_t GroupFor(const core::Session& session, const std::optional<std::string>& option);

// The number of an option's text within limits. CommandFailed for any other text.
double NumberOption(const std::string& name, const std::string& text, double low, double high);

// A command below `parent` whose callback runs `run`.
Command AddCommand(Command parent, const std::string& name, const std::string& description,
                   std::function<void()> run);

void AddStoreCommands(Command app, Context& context);       // init, backup, restore
void AddCityCommands(Command app, Context& context);        // city
void AddGroupCommands(Command app, Context& context);       // group
void AddClientCommands(Command app, Context& context);      // client, instant
void AddChartCommands(Command app, Context& context);       // chart, sun
void AddHoroscopeCommands(Command app, Context& context);   // horoscope, rectify
void AddChartsCommands(Command app, Context& context);      // charts
void AddPlanetCommands(Command app, Context& context);      // planet
void AddRemedyCommands(Command app, Context& context);      // remedy
void AddSearchCommands(Command app, Context& context);      // search, birthdays
void AddExportCommands(Command app, Context& context);      // export
void AddImportCommand(Command app, Context& context);       // import
void AddSettingsCommands(Command app, Context& context);    // settings
void AddSkyCommands(Command app, Context& context);         // sky, hora
void AddReportCommands(Command app, Context& context);      // report
void AddSheetCommand(Command app, Context& context);        // sheet
void AddDivisionalCommands(Command app, Context& context);  // divisional
void AddExactCommands(Command app, Context& context);       // exact, crossings
void AddMattersCommands(Command app, Context& context);     // matters
void AddMatterCommand(Command app, Context& context);       // matter
void AddRulersCommand(Command app, Context& context);       // rulers
void AddTriggersCommand(Command app, Context& context);     // triggers
void AddBenchCommand(Command app, Context& context);        // bench
void AddEventCommands(Command app, Context& context);       // event
void AddTransitCommands(Command app, Context& context);     // grid, transit, find

}  // namespace orvex::cli
