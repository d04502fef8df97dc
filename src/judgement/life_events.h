// Events of a client's life, each an instance of a matter, by which a birth time is tried.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/save_result.h"
#include "core/session.h"
#include "core/table.h"
#include "judgement/matters.h"

namespace orvex::judgement {

struct LifeEvent {
  core::DateTime Date{};
  std::optional<Matter> What;  // nothing where the matter is gone
};

// The events of a client, the earliest first.
std::vector<LifeEvent> EventsOfClient(const core::Session& session, std::int32_t clientId);

enum class EventColumn { Date, Matter, Remark };

// The same as a list; the tag of a row is the event's id.
core::Table LoadEvents(const core::Session& session, std::int32_t clientId);

// The fields of a life event. Of the date only the day counts.
struct EventForm {
  core::DateTime Date{};
  std::int32_t MatterId = 0;
  std::string Remark;
};

// The form of a stored event; nothing where it is gone, after the program's message.
std::optional<EventForm> OpenEditEvent(core::Session& session, std::int32_t eventId);

// Saves a new event of a client, or the changes of a stored one. Refused: a matter or client that
// does not exist, a remark of more than 250 characters.
core::SaveResult SaveNewEvent(core::Session& session, const EventForm& form, std::int32_t clientId);
core::SaveResult SaveEventChanges(core::Session& session, const EventForm& form,
                                  std::int32_t eventId);

inline constexpr const char* kDeleteEventQuestion =
    "Are you sure you want to delete the selected Life Event?";

// The question before an event is deleted, with its matter and date below it.
std::string DeleteEventQuestion(const core::Session& session, std::int32_t eventId);

// Deletes an event; refused where it is gone.
core::SaveResult DeleteEvent(core::Session& session, std::int32_t eventId);

}  // namespace orvex::judgement
