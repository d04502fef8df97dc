#include "judgement/life_events.h"

#include "core/exact_numbers.h"
#include "core/store_write.h"
#include "core/text.h"

namespace orvex::judgement {

namespace {

constexpr std::size_t kLongestRemark = 250;

core::Result QueryEvents(const core::Session& session, std::int32_t clientId) {
  return session.StoreConnection.Query("Select * from client_event where clientid = " +
                                       core::WholeText(clientId) + " order by eventdate, id");
}

std::optional<Matter> MatterOfEvent(const core::Session& session, const core::Result& event) {
  return MatterOfId(session, static_cast<std::int32_t>(event.Integer("matterid")));
}

std::optional<core::Refusal> CheckEvent(const core::Session& session, const EventForm& form) {
  if (!core::HasRow(session.StoreConnection, "matter_master", form.MatterId)) {
    return core::Refusal{"Please select a Matter from the list.", core::MessageIcon::Information,
                         "matter"};
  }
  if (core::CharacterCount(form.Remark) > kLongestRemark) {
    return core::Refusal{"Remark cannot exceed 250 characters.", core::MessageIcon::Information,
                         "remark"};
  }
  return std::nullopt;
}

std::string DayLiteral(core::DateTime date) { return core::DateLiteral(core::DateOnly(date)); }

}  // namespace

std::vector<LifeEvent> EventsOfClient(const core::Session& session, std::int32_t clientId) {
  std::vector<LifeEvent> events;
  for (core::Result row = QueryEvents(session, clientId); !row.AtEnd(); row.Next()) {
    events.push_back(
        {row.Moment("eventdate").value_or(core::DateTime{}), MatterOfEvent(session, row)});
  }
  return events;
}

core::Table LoadEvents(const core::Session& session, std::int32_t clientId) {
  core::Table table{{{"Date", 120}, {"Matter", 160}, {"Remark", 300}}, {}};
  for (core::Result row = QueryEvents(session, clientId); !row.AtEnd(); row.Next()) {
    table.AddRow().Tag = row.Text("id");
    const std::size_t at = table.Rows.size() - 1;
    if (const std::optional<core::DateTime> date = row.Moment("eventdate")) {
      table.At(at, EventColumn::Date).Text = core::LongDateText(*date, false);
      table.At(at, EventColumn::Date).SortKey = core::StoredDateTimeText(*date);
    }
    const std::optional<Matter> matter = MatterOfEvent(session, row);
    table.At(at, EventColumn::Matter).Text = matter ? matter->Name : "";
    table.At(at, EventColumn::Remark).Text = row.Text("remark");
  }
  return table;
}

std::optional<EventForm> OpenEditEvent(core::Session& session, std::int32_t eventId) {
  const core::Result row = session.StoreConnection.Query("Select * from client_event where id = " +
                                                         core::WholeText(eventId));
  if (row.AtEnd()) {
    return core::TellRecordGone(session);
  }
  return EventForm{row.Moment("eventdate").value_or(session.Time.Today()),
                   static_cast<std::int32_t>(row.Integer("matterid")), row.Text("remark")};
}

core::SaveResult SaveNewEvent(core::Session& session, const EventForm& form,
                              std::int32_t clientId) {
  if (std::optional<core::Refusal> refused = CheckEvent(session, form)) {
    return {0, std::move(refused)};
  }
  if (!core::HasRow(session.StoreConnection, "client_master", clientId)) {
    return core::StoppedSave(core::kNoClientWithId);
  }
  return core::WriteBatch(session, [&form, clientId](core::Store& store) {
    store.Execute("Insert into client_event (clientid, eventdate, matterid, remark) values (" +
                  core::WholeText(clientId) + ", " + DayLiteral(form.Date) + ", " +
                  core::WholeText(form.MatterId) + ", " + core::Quoted(form.Remark) + ")");
    return core::LastId(store, "client_event");
  });
}

core::SaveResult SaveEventChanges(core::Session& session, const EventForm& form,
                                  std::int32_t eventId) {
  if (!core::HasRow(session.StoreConnection, "client_event", eventId)) {
    return core::StoppedSave(core::kRecordGone);
  }
  if (std::optional<core::Refusal> refused = CheckEvent(session, form)) {
    return {0, std::move(refused)};
  }
  return core::WriteBatch(session, [&form, eventId](core::Store& store) {
    store.Execute("Update client_event set eventdate = " + DayLiteral(form.Date) + ", matterid = " +
                  core::WholeText(form.MatterId) + ", remark = " + core::Quoted(form.Remark) +
                  " where id = " + core::WholeText(eventId));
    return eventId;
  });
}

std::string DeleteEventQuestion(const core::Session& session, std::int32_t eventId) {
  const core::Result row = session.StoreConnection.Query("Select * from client_event where id = " +
                                                         core::WholeText(eventId));
  const std::optional<core::DateTime> date = row.AtEnd() ? std::nullopt : row.Moment("eventdate");
  if (!date) {
    return kDeleteEventQuestion;
  }
  const std::optional<Matter> matter = MatterOfEvent(session, row);
  return std::string(kDeleteEventQuestion) + "\n\n" + (matter ? matter->Name + ", " : "") +
         core::LongDateText(*date, false);
}

core::SaveResult DeleteEvent(core::Session& session, std::int32_t eventId) {
  if (!core::HasRow(session.StoreConnection, "client_event", eventId)) {
    return core::StoppedSave(core::kRecordGone);
  }
  return core::WriteBatch(session, [eventId](core::Store& store) {
    store.Execute("Delete from client_event where id = " + core::WholeText(eventId));
    return eventId;
  });
}

}  // namespace orvex::judgement
