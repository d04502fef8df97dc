#include "cli/context.h"

#include <iostream>

#include "core/exact_numbers.h"
#include "core/text.h"
#include "practice/demo_home.h"
#include "practice/groups.h"

namespace orvex::cli {

core::MessageAnswer ErrorMessages::ShowMessage(const std::string& text,
                                               core::MessageButtons buttons,
                                               core::MessageIcon /*icon*/) {
  std::cerr << text << "\n";
  return buttons == core::MessageButtons::YesNo ? core::MessageAnswer::No : core::MessageAnswer::Ok;
}

core::DateTime MomentOption(const std::string& name, const std::string& text) {
  const std::optional<core::DateTime> moment = core::ParseDateTime(text);
  if (!moment) {
    throw CommandFailed(
        name + ": \"" + core::FirstCharacters(text, 40) +
        "\" is no date of the years 100 to 9999 in the form YYYY-MM-DD [HH:MM[:SS]]");
  }
  return *moment;
}

std::int32_t WholeOption(const std::string& name, const std::string& text) {
  const std::optional<std::int64_t> number = core::ParseWhole(text);
  if (!number || *number < INT32_MIN || *number > INT32_MAX) {
    throw CommandFailed(name + ": \"" + core::FirstCharacters(text, 40) + "\" is no whole number");
  }
  return static_cast<std::int32_t>(*number);
}

double NumberOption(const std::string& name, const std::string& text, double low, double high) {
  const std::optional<double> number = core::ParseNumber(text);
  if (!number || *number < low || *number > high) {
    throw CommandFailed(name + " takes a number from " + core::DoubleText(low) + " to " +
                        core::DoubleText(high));
  }
  return *number;
}

std::int32_t GroupFor(const core::Session& session, const std::optional<std::string>& option) {
  const std::string condition =
      option ? " where id = " + core::WholeText(WholeOption("--group", *option)) : "";
  const core::Result group = session.StoreConnection.Query(
      "Select id, groupname from group_master" + condition + " order by groupname collate names");
  if (group.AtEnd()) {
    throw CommandFailed(option ? core::kNoGroupWithId : practice::kNoGroupsStatus);
  }
  return static_cast<std::int32_t>(group.Integer("id"));
}

Command AddCommand(Command parent, const std::string& name, const std::string& description,
                   std::function<void()> run) {
  Command command = parent.add_subcommand(name, description);
  command.callback(std::move(run));
  return command;
}

std::int32_t Context::Saved(const core::SaveResult& result) {
  if (result.Refused) {
    throw CommandFailed(result.Refused->Text);
  }
  return result.Id;
}

const core::Clock& Context::Time() {
  if (!clock_) {
    if (NowOption.empty()) {
      clock_ = std::make_unique<core::SystemClock>();
    } else {
      clock_ = std::make_unique<core::FixedClock>(MomentOption("--now", NowOption));
    }
  }
  return *clock_;
}

core::StartupPlan Context::Plan(core::StartMode mode) const {
  if (Demo) {
    return practice::DemoPlan(mode);
  }
  return {core::Home{core::HomeFolder(HomeOption)}, core::ShippedDataFolder(),
          core::MachineSettings::DefaultFile(), mode};
}

std::unique_ptr<core::Session> Context::Start(const core::StartupPlan& plan) {
  std::unique_ptr<core::Session> session = core::RunStartup(plan, Time(), messages_, ephemeris_);
  if (!session) {
    throw CommandFailed("");
  }
  return session;
}

core::Session& Context::Open(core::StartMode mode) {
  if (!session_) {
    const core::StartupPlan plan = Plan(mode);
    if (Demo && practice::NeedsDemoClients(plan.Place)) {
      practice::FillDemo(*Start(Plan(core::StartMode::Writer)), plan.ShippedData);
    }
    session_ = Start(plan);
  }
  return *session_;
}

}  // namespace orvex::cli
