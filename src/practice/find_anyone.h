// The search over all clients of all groups while a name is typed.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/session.h"

namespace orvex::practice {

// Where a text was found, the best place first.
enum class FoundIn { NameBegins, WithinName, Telephone, Email, Place, Question, Comments };

// The caption above the clients that were found there: "A name begins with it".
const char* CaptionOf(FoundIn where);

struct FoundAnyone {
  std::int32_t Id = 0;
  std::string Name;
  std::string Group;
  std::string Date;  // of the birth or the query, "5 Jul 1990"
  std::string City;
  FoundIn Where = FoundIn::NameBegins;
  // What of the name was typed, in bytes; nothing where it was found elsewhere.
  std::size_t MarkBegin = 0;
  std::size_t MarkLength = 0;
};

class FindAnyone {
 public:
  struct Result {
    std::vector<FoundAnyone> Best;
    std::size_t Count = 0;  // of all that were found
  };

  // Reads all clients once; those whose city is gone are in no list and not found here either.
  explicit FindAnyone(const core::Session& session);

  // The best `most` clients for a text, case and accents not minded: those first in whose name each
  // of its words begins a word, then those that hold it within the name, in the telephone number
  // (where it has two digits and no letter, its digits alone count), the e-mail address, the city,
  // the question and the comments. Each client stands once, at its best place; of one place they
  // stand by name. Nothing for an empty text.
  Result Find(const std::string& text, std::size_t most) const;

 private:
  struct Entry {
    FoundAnyone Client;
    std::string Name;  // this and the following as they are compared
    std::string Digits;
    std::string Mobile;
    std::string Email;
    std::string City;
    std::string Question;
    std::string Comments;
  };
  struct Typed;

  static bool Fits(const Entry& entry, const Typed& typed, FoundIn where);

  std::vector<Entry> entries_;  // by name
};

}  // namespace orvex::practice
