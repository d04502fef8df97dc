#include "cli/context.h"
#include "cli/judgement_words.h"
#include "cli/output.h"
#include "core/store_write.h"
#include "judgement/life_events.h"

namespace orvex::cli {

namespace {

struct EventOptions {
  std::string Id;
  std::optional<std::string> Date;
  std::optional<std::string> Matter;
  std::optional<std::string> Remark;
  bool Yes = false;
};

void ApplyEvent(const core::Session& session, const EventOptions& options,
                judgement::EventForm& form) {
  if (options.Date) {
    form.Date = MomentOption("--date", *options.Date);
  }
  if (options.Matter) {
    form.MatterId = MatterFor(session, *options.Matter).Id;
  }
  form.Remark = options.Remark.value_or(form.Remark);
}

void RunListEvent(Context& context, const EventOptions& options) {
  const std::int32_t client = WholeOption("CLIENT", options.Id);
  if (!core::HasRow(context.Reading().StoreConnection, "client_master", client)) {
    throw CommandFailed(core::kNoClientWithId);
  }
  PrintList(judgement::LoadEvents(context.Reading(), client), context.Json);
}

void RunAddEvent(Context& context, const EventOptions& options) {
  core::Session& session = context.Writing();
  judgement::EventForm form;
  ApplyEvent(session, options, form);
  PrintId(Context::Saved(judgement::SaveNewEvent(session, form, WholeOption("CLIENT", options.Id))),
          context.Json);
}

void RunEditEvent(Context& context, const EventOptions& options) {
  core::Session& session = context.Writing();
  const std::int32_t id = WholeOption("ID", options.Id);
  std::optional<judgement::EventForm> form = judgement::OpenEditEvent(session, id);
  if (!form) {
    throw CommandFailed("");
  }
  ApplyEvent(session, options, *form);
  PrintId(Context::Saved(judgement::SaveEventChanges(session, *form, id)), context.Json);
}

void RunDeleteEvent(Context& context, const EventOptions& options) {
  const std::int32_t id = WholeOption("ID", options.Id);
  if (!options.Yes) {
    throw CommandFailed(judgement::kDeleteEventQuestion);
  }
  PrintId(Context::Saved(judgement::DeleteEvent(context.Writing(), id)), context.Json);
}

void AddEventFieldOptions(Command command, EventOptions& options) {
  command.add_option("--date", options.Date, "YYYY-MM-DD");
  command.add_option("--matter", options.Matter, "name or id of the matter");
  command.add_option("--remark", options.Remark, "at most 250 characters");
}

}  // namespace

void AddEventCommands(Command app, Context& context) {
  Command event = app.add_subcommand("event", "events of a client's life");
  event.require_subcommand(1);
  const auto add = [&](const char* name, const char* description, auto run, const char* id) {
    auto options = std::make_shared<EventOptions>();
    Command command =
        AddCommand(event, name, description, [&context, options, run] { run(context, *options); });
    command.add_option(id, options->Id, "id").required();
    return std::pair(command, options);
  };
  add("list", "list the events of a client", RunListEvent, "CLIENT");

  const auto [addCommand, addOptions] = add("add", "note an event", RunAddEvent, "CLIENT");
  AddEventFieldOptions(addCommand, *addOptions);
  addCommand.get_option("--date").required();
  addCommand.get_option("--matter").required();

  const auto [editCommand, editOptions] =
      add("edit", "change an event; the rest stays", RunEditEvent, "ID");
  AddEventFieldOptions(editCommand, *editOptions);

  const auto [deleteCommand, deleteOptions] =
      add("delete", "delete an event", RunDeleteEvent, "ID");
  deleteCommand.add_flag("--yes", deleteOptions->Yes, "do not ask");
}

}  // namespace orvex::cli
