#include "practice/find_anyone.h"

#include <algorithm>
#include <array>

#include "core/date_text.h"
#include "core/letter_case.h"
#include "core/text.h"

namespace orvex::practice {

namespace {

constexpr std::size_t kNowhere = std::string::npos;
constexpr std::array<FoundIn, 7> kPlaces = {
    FoundIn::NameBegins, FoundIn::WithinName, FoundIn::Telephone, FoundIn::Email,
    FoundIn::Place,      FoundIn::Question,   FoundIn::Comments};

bool IsDigit(char letter) { return letter >= '0' && letter <= '9'; }

// A sign or a blank parts words; letters beyond ASCII belong to them.
bool PartsWords(char letter) {
  const auto byte = static_cast<unsigned char>(letter);
  return byte < 0x80 && !IsDigit(letter) && !(letter >= 'a' && letter <= 'z');
}

std::string DigitsOf(std::string_view text) {
  std::string digits;
  std::copy_if(text.begin(), text.end(), std::back_inserter(digits), IsDigit);
  return digits;
}

// Where a folded text stands in a folded name at the beginning of a word.
std::size_t AtWordBegin(const std::string& name, const std::string& text) {
  for (std::size_t at = name.find(text); at != kNowhere; at = name.find(text, at + 1)) {
    if (at == 0 || PartsWords(name[at - 1])) {
      return at;
    }
  }
  return kNowhere;
}

bool HoldsAll(const std::string& text, const std::vector<std::string>& words) {
  return std::all_of(words.begin(), words.end(),
                     [&](const std::string& word) { return core::Contains(text, word); });
}

std::size_t LengthOfLetter(const std::string& text, std::size_t at) {
  std::size_t length = 1;
  while (at + length < text.size() && (static_cast<unsigned char>(text[at + length]) >> 6) == 2) {
    ++length;
  }
  return length;
}

// The bytes of a name that its folded bytes from `begin` on come from; a letter may fold into
// several bytes, or into none.
void MarkOf(const std::string& name, std::size_t begin, std::size_t length, FoundAnyone& client) {
  std::size_t folded = 0;
  std::size_t end = 0;
  client.MarkBegin = kNowhere;
  for (std::size_t at = 0; at < name.size() && folded < begin + length;) {
    const std::size_t bytes = LengthOfLetter(name, at);
    if (folded >= begin && client.MarkBegin == kNowhere) {
      client.MarkBegin = at;
    }
    folded += core::FoldedText(std::string_view(name).substr(at, bytes)).size();
    at += bytes;
    end = at;
  }
  client.MarkBegin = client.MarkBegin == kNowhere ? 0 : client.MarkBegin;
  client.MarkLength = end - client.MarkBegin;
}

}  // namespace

struct FindAnyone::Typed {
  std::string Whole;  // folded, one blank between the words
  std::vector<std::string> Words;
  std::string Digits;  // of a telephone number, "" where it is none
};

const char* CaptionOf(FoundIn where) {
  constexpr std::array<const char*, kPlaces.size()> kCaptions = {"A name begins with it",
                                                                 "Within a name",
                                                                 "Telephone",
                                                                 "E-mail",
                                                                 "Place",
                                                                 "Question",
                                                                 "Comments"};
  return kCaptions.at(static_cast<std::size_t>(where));
}

FindAnyone::FindAnyone(const core::Session& session) {
  for (core::Result row = session.StoreConnection.Query(
           "Select cm.id, cm.fullname, cm.birthdate, cm.mobile, cm.email, cm.comments, "
           "cm.horaryquestion, ct.cityname, gm.groupname from client_master cm, city_master ct, "
           "group_master gm where cm.cityid = ct.id and cm.groupid = gm.id order by cm.fullname "
           "collate names");
       !row.AtEnd(); row.Next()) {
    Entry entry;
    entry.Client.Id = static_cast<std::int32_t>(row.Integer("id"));
    entry.Client.Name = row.Text("fullname");
    entry.Client.Group = row.Text("groupname");
    entry.Client.City = row.Text("cityname");
    if (const std::optional<core::DateTime> birth = row.Moment("birthdate")) {
      entry.Client.Date = core::LongDateText(*birth, true);
    }
    entry.Name = core::FoldedText(entry.Client.Name);
    entry.Mobile = core::FoldedText(row.Text("mobile"));
    entry.Digits = DigitsOf(entry.Mobile);
    entry.Email = core::FoldedText(row.Text("email"));
    entry.City = core::FoldedText(entry.Client.City);
    entry.Question = core::FoldedText(row.Text("horaryquestion"));
    entry.Comments = core::FoldedText(row.Text("comments"));
    entries_.push_back(std::move(entry));
  }
}

bool FindAnyone::Fits(const Entry& entry, const Typed& typed, FoundIn where) {
  switch (where) {
    case FoundIn::NameBegins:
      return std::all_of(typed.Words.begin(), typed.Words.end(), [&](const std::string& word) {
        return AtWordBegin(entry.Name, word) != kNowhere;
      });
    case FoundIn::WithinName:
      return HoldsAll(entry.Name, typed.Words);
    case FoundIn::Telephone:
      return typed.Digits.empty() ? HoldsAll(entry.Mobile, typed.Words)
                                  : core::Contains(entry.Digits, typed.Digits);
    case FoundIn::Email:
      return HoldsAll(entry.Email, typed.Words);
    case FoundIn::Place:
      return HoldsAll(entry.City, typed.Words);
    case FoundIn::Question:
      return HoldsAll(entry.Question, typed.Words);
    case FoundIn::Comments:
      break;
  }
  return HoldsAll(entry.Comments, typed.Words);
}

FindAnyone::Result FindAnyone::Find(const std::string& text, std::size_t most) const {
  Typed typed;
  typed.Words = core::SplitWords(core::FoldedText(text));
  typed.Whole = core::Join(typed.Words, " ");
  const bool isNumber =
      typed.Whole.find_first_not_of("0123456789 +-()/.") == kNowhere && DigitsOf(text).size() > 1;
  typed.Digits = isNumber ? DigitsOf(text) : "";
  Result result;
  if (typed.Words.empty()) {
    return result;
  }
  std::vector<bool> taken(entries_.size(), false);
  for (const FoundIn where : kPlaces) {
    for (std::size_t i = 0; i < entries_.size(); ++i) {
      const Entry& entry = entries_[i];
      if (taken[i] || !Fits(entry, typed, where)) {
        continue;
      }
      taken[i] = true;
      ++result.Count;
      if (result.Best.size() >= most) {
        continue;
      }
      FoundAnyone found = entry.Client;
      found.Where = where;
      // What was typed as one piece, else its first word.
      for (const std::string& piece : {typed.Whole, typed.Words.front()}) {
        const std::size_t at = where == FoundIn::NameBegins   ? AtWordBegin(entry.Name, piece)
                               : where == FoundIn::WithinName ? entry.Name.find(piece)
                                                              : kNowhere;
        if (at != kNowhere) {
          MarkOf(found.Name, at, piece.size(), found);
          break;
        }
      }
      result.Best.push_back(std::move(found));
    }
  }
  return result;
}

}  // namespace orvex::practice
