// What a dialog's save routine gives back.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/messages.h"

namespace orvex::core {

// Why a form was not saved: the program's message, the name of the field that gets the focus and,
// in a dialog of several pages, the page that holds it.
struct Refusal {
  std::string Text;
  MessageIcon Icon = MessageIcon::Information;
  std::string Field;
  std::string Page{};
};

// Either the id of what was written or a refusal.
struct SaveResult {
  std::int32_t Id = 0;
  std::optional<Refusal> Refused;
};

// A refusal that is told with the mark of an information and gives a field the focus.
inline Refusal RefusalOf(const std::string& text, const char* field) {
  return {text, MessageIcon::Information, field};
}

// Nothing was written: a record is gone or may not be touched.
inline SaveResult StoppedSave(const char* text) {
  return {0, Refusal{text, MessageIcon::Stop, ""}};
}

inline constexpr const char* kRecordGone =
    "The record you are trying to edit could not be retrieved.";
inline constexpr const char* kNoClientWithId = "There is no client with that id.";
inline constexpr const char* kNoGroupWithId = "There is no group with that id.";
inline constexpr const char* kNoCityChosen = "Please select a City from the list.";
inline constexpr const char* kCouldNotUpdate = "Could not update database.";

}  // namespace orvex::core
