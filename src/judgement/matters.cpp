#include "judgement/matters.h"

#include "core/exact_numbers.h"
#include "core/letter_case.h"
#include "core/store_write.h"
#include "core/text.h"
#include "judgement/houses.h"
#include "judgement/matter_checks.h"

namespace orvex::judgement {

namespace {

Matter MatterOfRow(const core::Result& row) {
  return {static_cast<std::int32_t>(row.Integer("id")),
          row.Text("name"),
          static_cast<int>(row.Integer("maincusp")),
          HousesOfText(row.Text("supporting")),
          HousesOfText(row.Text("denying")),
          row.Text("source")};
}

std::optional<Matter> FirstMatter(const core::Session& session, const std::string& condition) {
  const core::Result row =
      session.StoreConnection.Query("Select * from matter_master where " + condition);
  return row.AtEnd() ? std::nullopt : std::optional(MatterOfRow(row));
}

}  // namespace

std::vector<int> GivingHouses(const Matter& matter) {
  std::vector<int> houses = {matter.MainCusp};
  houses.insert(houses.end(), matter.Supporting.begin(), matter.Supporting.end());
  return houses;
}

std::vector<int> HousesOf(const Matter& matter) {
  std::vector<int> houses = GivingHouses(matter);
  houses.insert(houses.end(), matter.Denying.begin(), matter.Denying.end());
  return houses;
}

std::string HousesText(const Matter& matter) {
  return core::WholeText(matter.MainCusp) + " | " + TextOfHouses(matter.Supporting) + " | " +
         TextOfHouses(matter.Denying);
}

core::Table LoadMatters(const core::Session& session) {
  core::Table table{
      {{"Matter", 160}, {"Main", 50}, {"Supporting", 90}, {"Denying", 90}, {"Source", 250}}, {}};
  for (core::Result row = session.StoreConnection.Query("Select * from matter_master order by id");
       !row.AtEnd(); row.Next()) {
    table.AddRow().Tag = row.Text("id");
    const std::size_t at = table.Rows.size() - 1;
    table.At(at, MatterColumn::Matter).Text = row.Text("name");
    table.At(at, MatterColumn::Main).Text = row.Text("maincusp");
    table.At(at, MatterColumn::Supporting).Text = row.Text("supporting");
    table.At(at, MatterColumn::Denying).Text = row.Text("denying");
    table.At(at, MatterColumn::Source).Text = row.Text("source");
  }
  return table;
}

std::optional<Matter> MatterOfId(const core::Session& session, std::int32_t id) {
  return FirstMatter(session, "id = " + core::WholeText(id));
}

std::optional<Matter> FindMatter(const core::Session& session, const std::string& text) {
  const std::string name = core::Trim(text);
  if (std::optional<Matter> named = FirstMatter(
          session, "ucase(name) = " + core::Quoted(core::UpperCaseOfAll(name)) + " order by id")) {
    return named;
  }
  const std::optional<std::int64_t> id = core::ParseWhole(name);
  return id ? FirstMatter(session, "id = " + core::WholeText(*id)) : std::nullopt;
}

std::optional<MatterForm> OpenEditMatter(core::Session& session, std::int32_t id) {
  const std::optional<Matter> matter = MatterOfId(session, id);
  if (!matter) {
    return core::TellRecordGone(session);
  }
  return MatterForm{matter->Name, core::WholeText(matter->MainCusp),
                    TextOfHouses(matter->Supporting), TextOfHouses(matter->Denying),
                    matter->Source};
}

core::SaveResult SaveNewMatter(core::Session& session, const MatterForm& form) {
  Matter matter;
  if (std::optional<core::Refusal> refused = ReadMatter(session, form, 0, matter)) {
    return {0, std::move(refused)};
  }
  return core::WriteBatch(session, [&matter](core::Store& store) {
    store.Execute(
        "Insert into matter_master (name, maincusp, supporting, denying, source) values (" +
        core::Quoted(matter.Name) + ", " + core::WholeText(matter.MainCusp) + ", " +
        core::Quoted(TextOfHouses(matter.Supporting)) + ", " +
        core::Quoted(TextOfHouses(matter.Denying)) + ", " + core::Quoted(matter.Source) + ")");
    return core::LastId(store, "matter_master");
  });
}

core::SaveResult SaveMatterChanges(core::Session& session, const MatterForm& form,
                                   std::int32_t id) {
  if (!core::HasRow(session.StoreConnection, "matter_master", id)) {
    return core::StoppedSave(core::kRecordGone);
  }
  Matter matter;
  if (std::optional<core::Refusal> refused = ReadMatter(session, form, id, matter)) {
    return {0, std::move(refused)};
  }
  return core::WriteBatch(session, [&matter, id](core::Store& store) {
    store.Execute("Update matter_master set name = " + core::Quoted(matter.Name) +
                  ", maincusp = " + core::WholeText(matter.MainCusp) +
                  ", supporting = " + core::Quoted(TextOfHouses(matter.Supporting)) +
                  ", denying = " + core::Quoted(TextOfHouses(matter.Denying)) + ", source = " +
                  core::Quoted(matter.Source) + " where id = " + core::WholeText(id));
    return id;
  });
}

core::SaveResult DeleteMatter(core::Session& session, std::int32_t id) {
  const core::Store& store = session.StoreConnection;
  if (!core::HasRow(store, "matter_master", id)) {
    return core::StoppedSave(core::kRecordGone);
  }
  if (!store.Query("Select Top 1 id from client_event where matterid = " + core::WholeText(id))
           .AtEnd()) {
    return {0,
            core::Refusal{"Life events of clients name this Matter; change or delete them first.",
                          core::MessageIcon::Information, "matterList"}};
  }
  return core::WriteBatch(session, [id](core::Store& writable) {
    writable.Execute("Delete from matter_master where id = " + core::WholeText(id));
    return id;
  });
}

}  // namespace orvex::judgement
