#include <chrono>
#include <iostream>
#include <thread>

#include "chart/client_saving.h"
#include "chart/instant_chart.h"
#include "cli/context.h"
#include "cli/output.h"
#include "cli/visible_output.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "horoscope/client_facts.h"
#include "practice/client_csv.h"
#include "practice/client_list.h"

namespace orvex::cli {

namespace {

// The fields of the client dialog as options. One that is not given leaves its field as it is.
struct ClientOptions {
  std::optional<std::string> Name;
  std::optional<std::string> Birth;
  std::optional<std::string> City;
  std::optional<std::string> Group;
  std::optional<std::string> Latitude;
  std::optional<std::string> Longitude;
  std::optional<std::string> Offset;
  std::optional<std::string> Gender;
  std::optional<std::string> Email;
  std::optional<std::string> Mobile;
  std::optional<std::string> Comments;
  std::optional<std::string> Horary;
  std::optional<std::string> Question;
  std::optional<std::string> Ascendant;
  std::string Id;
  bool Csv = false;
  bool Yes = false;
};

void AddClientFieldOptions(Command command, ClientOptions& options) {
  command.add_option("--name", options.Name, "full name");
  command.add_option("--birth", options.Birth, "local moment, YYYY-MM-DD HH:MM");
  command.add_option("--city", options.City, "id of the city");
  command.add_option("--latitude", options.Latitude, "degrees north; else the city's");
  command.add_option("--longitude", options.Longitude, "degrees east; else the city's");
  command.add_option("--offset", options.Offset, "hours east of Greenwich; else the city's");
  command.add_option("--gender", options.Gender, "M, F or O");
  command.add_option("--email", options.Email, "e-mail");
  command.add_option("--mobile", options.Mobile, "mobile number");
  command.add_option("--comments", options.Comments, "comments");
  Option horary = command.add_option("--horary", options.Horary, "horary number 1 to 249");
  command.add_option("--question", options.Question, "horary question");
  command.add_option("--ascendant", options.Ascendant, "Ascendant by hand, degree 0 to 360")
      .excludes(horary);
}

void Take(const std::optional<std::string>& option, std::string& field) {
  field = option.value_or(field);
}

void ApplyQuery(const ClientOptions& options, chart::ClientForm& form) {
  if (options.Horary) {
    form.Horary = true;
    form.AscendantByHand = false;
    form.HoraryNumber = *options.Horary;
  }
  if (options.Ascendant) {
    form.Horary = false;
    form.AscendantByHand = true;
    form.AscendantDegree = *options.Ascendant;
  }
  Take(options.Question, form.HoraryQuestion);
}

void ApplyClient(const core::Session& session, const ClientOptions& options,
                 chart::ClientForm& form) {
  Take(options.Name, form.FullName);
  if (options.Birth) {
    form.Birth = MomentOption("--birth", *options.Birth);
  }
  if (options.City) {
    chart::SelectCity(session, WholeOption("--city", *options.City), form);
  }
  Take(options.Latitude, form.Latitude);
  Take(options.Longitude, form.Longitude);
  Take(options.Offset, form.Offset);
  if (options.Gender) {
    form.Gender = core::UpperCase(*options.Gender);
    if (form.Gender != "M" && form.Gender != "F" && form.Gender != "O") {
      throw CommandFailed("--gender takes M, F or O");
    }
  }
  Take(options.Email, form.Email);
  Take(options.Mobile, form.Mobile);
  Take(options.Comments, form.Comments);
  ApplyQuery(options, form);
}

// A new client is found again by the second of its creation. A script may add several in one
// second: each waits for a second of its own.
void AwaitFreshSecond(const core::Session& session) {
  constexpr int kMostWaits = 200;
  constexpr std::chrono::milliseconds kPause{10};
  const bool clockRuns = dynamic_cast<const core::SystemClock*>(&session.Time) != nullptr;
  const auto taken = [&session] {
    return !session.StoreConnection
                .Query("Select id from client_master where createddate = " +
                       core::DateLiteral(session.Time.Now()))
                .AtEnd();
  };
  for (int waits = 0; clockRuns && waits < kMostWaits && taken(); ++waits) {
    std::this_thread::sleep_for(kPause);
  }
}

// Latitudes and longitudes are stored as entered; a slip of the keys is worth a word.
void RemarkOnPlace(const chart::ClientForm& form) {
  const auto beyond = [](const std::string& text, double limit) {
    const double degrees = core::ParseNumber(text).value_or(0);
    return degrees < -limit || degrees > limit;
  };
  if (beyond(form.Latitude, 90) || beyond(form.Longitude, 180)) {
    std::cerr << "There is no such place on Earth: please check latitude and longitude.\n";
  }
}

void RunAddClient(Context& context, const ClientOptions& options) {
  core::Session& session = context.Writing();
  chart::ClientForm form = chart::OpenAddClient(session);
  ApplyClient(session, options, form);
  const std::int32_t group = GroupFor(session, options.Group);
  AwaitFreshSecond(session);
  PrintId(Context::Saved(chart::SaveNewClient(session, form, group)), context.Json);
  RemarkOnPlace(form);
}

void RunEditClient(Context& context, const ClientOptions& options) {
  core::Session& session = context.Writing();
  const std::int32_t id = WholeOption("ID", options.Id);
  std::optional<chart::ClientForm> form = chart::OpenEditClient(session, id);
  if (!form) {
    throw CommandFailed("");
  }
  ApplyClient(session, options, *form);
  PrintId(Context::Saved(chart::SaveClientChanges(session, *form, id)), context.Json);
  RemarkOnPlace(*form);
}

Json StoredRowJson(const core::Result& row) {
  Json json = Json::object();
  for (const std::string& field : row.FieldNames()) {
    json[horoscope::ClientColumnName(field)] = row.Text(field);
  }
  return json;
}

core::Result ClientRow(const core::Session& session, const std::string& id) {
  core::Result row = session.StoreConnection.Query(
      "Select cm.*, ct.cityname, gm.groupname from client_master cm "
      "left join city_master ct on ct.id = cm.cityid "
      "left join group_master gm on gm.id = cm.groupid where cm.id = " +
      id);
  if (row.AtEnd()) {
    throw CommandFailed(core::kNoClientWithId);
  }
  return row;
}

core::Table StoredCusps(const core::Result& client) {
  core::Table table{{{"Cusp"}, {"Degree"}}, {}};
  for (int cusp = 1; cusp <= 12; ++cusp) {
    const std::string number = core::WholeText(cusp);
    const double degree = client.Number("CuspDegree" + number);
    table.Rows.push_back({{{number}, {core::TwoDecimals(degree)}}});
  }
  return table;
}

core::Table StoredPlanets(const core::Session& session, const std::string& id) {
  core::Table table{{{"Planet"},
                     {"Degree"},
                     {"Rashi House"},
                     {"Chalit House"},
                     {"Star Lord"},
                     {"Sub Lord"},
                     {"In Retro"}},
                    {}};
  for (core::Result row = session.StoreConnection.Query(
           "Select pm.planetname, cp.* from planet_master pm, client_planets cp "
           "where cp.planetid = pm.id and cp.clientid = " +
           id + " order by pm.id");
       !row.AtEnd(); row.Next()) {
    table.Rows.push_back({{{row.Text("planetname")},
                           {core::TwoDecimals(row.Number("degree"))},
                           {row.Text("rashihouse")},
                           {row.Text("chalithouse")},
                           {row.Text("starlord")},
                           {row.Text("sublord")},
                           {row.Flag("inretro") ? "1" : "0"}}});
  }
  return table;
}

void PrintClient(const core::Result& client) {
  core::Table table{{{"Field"}, {"Value"}}, {}};
  for (const std::string& field : client.FieldNames()) {
    if (!core::LowerCase(field).starts_with("cuspdegree")) {
      table.Rows.push_back({{{horoscope::ClientColumnName(field)}, {client.Text(field)}}});
    }
  }
  PrintTable(table);
}

void RunShow(Context& context, const ClientOptions& options) {
  const core::Session& session = context.Reading();
  const std::string id = core::WholeText(WholeOption("ID", options.Id));
  const core::Result client = ClientRow(session, id);
  const core::Table cusps = StoredCusps(client);
  const core::Table planets = StoredPlanets(session, id);
  if (context.Json) {
    PrintJson({{"client", StoredRowJson(client)},
               {"cusps", TableJson(cusps)},
               {"planets", TableJson(planets)}});
    return;
  }
  PrintClient(client);
  std::cout << "\n";
  PrintTable(cusps);
  std::cout << "\n";
  PrintTable(planets);
}

void RunListClient(Context& context, const ClientOptions& options) {
  std::optional<std::int32_t> group;
  if (options.Group) {
    group = WholeOption("--group", *options.Group);
  }
  if (options.Csv) {
    PutData(practice::ClientsAsCsv(context.Reading(), group));
    return;
  }
  PrintList(practice::LoadClientsOfGroup(context.Reading(), group), context.Json);
}

void RunMove(Context& context, const ClientOptions& options) {
  const std::int32_t id = WholeOption("ID", options.Id);
  const std::int32_t group = WholeOption("--group", options.Group.value());
  PrintId(Context::Saved(practice::MoveClient(context.Writing(), id, group)), context.Json);
}

void RunDeleteClient(Context& context, const ClientOptions& options) {
  const std::int32_t id = WholeOption("ID", options.Id);
  if (!options.Yes) {
    throw CommandFailed(practice::kDeleteClientQuestion);
  }
  PrintId(Context::Saved(practice::DeleteClient(context.Writing(), id)), context.Json);
}

void RunInstant(Context& context) {
  core::Session& session = context.Writing();
  AwaitFreshSecond(session);
  PrintId(Context::Saved(chart::CreateInstantChart(session)), context.Json);
}

}  // namespace

void AddClientCommands(Command app, Context& context) {
  Command client = app.add_subcommand("client", "clients with their births and queries");
  client.require_subcommand(1);
  const auto add = [&](const char* name, const char* description, auto run) {
    auto options = std::make_shared<ClientOptions>();
    Command command =
        AddCommand(client, name, description, [&context, options, run] { run(context, *options); });
    return std::pair(command, options);
  };

  const auto [addCommand, addOptions] = add("add", "save a new client and its chart", RunAddClient);
  AddClientFieldOptions(addCommand, *addOptions);
  addCommand.get_option("--name").required();
  addCommand.get_option("--birth").required();
  addCommand.get_option("--city").required();
  addCommand.add_option("--group", addOptions->Group, "id of the group; else the first by name");

  const auto [editCommand, editOptions] =
      add("edit", "change a client; the rest stays", RunEditClient);
  editCommand.add_option("ID", editOptions->Id, "id of the client").required();
  AddClientFieldOptions(editCommand, *editOptions);

  const auto [listCommand, listOptions] = add("list", "list the clients", RunListClient);
  listCommand.add_option("--group", listOptions->Group, "id of the group");
  listCommand.add_flag("--csv", listOptions->Csv, "in the form that import takes");

  const auto [moveCommand, moveOptions] = add("move", "move a client to another group", RunMove);
  moveCommand.add_option("ID", moveOptions->Id, "id of the client").required();
  moveCommand.add_option("--group", moveOptions->Group, "id of the group").required();

  const auto [deleteCommand, deleteOptions] =
      add("delete", "delete a client with its remedies", RunDeleteClient);
  deleteCommand.add_option("ID", deleteOptions->Id, "id of the client").required();
  deleteCommand.add_flag("--yes", deleteOptions->Yes, "do not ask");

  const auto [showCommand, showOptions] = add("show", "show a client and its chart", RunShow);
  showCommand.add_option("ID", showOptions->Id, "id of the client").required();

  AddCommand(app, "instant", "save a chart of this moment at the user city",
             [&context] { RunInstant(context); });
}

}  // namespace orvex::cli
