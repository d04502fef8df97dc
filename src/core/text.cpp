#include "core/text.h"

#include <algorithm>
#include <stdexcept>

namespace orvex::core {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

char UpperOf(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

char LowerOf(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool StartsCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }

}  // namespace

std::string Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) {
    return "";
  }
  return std::string(text.substr(first, text.find_last_not_of(kBlanks) - first + 1));
}

std::string UpperCase(std::string_view text) {
  std::string upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(), UpperOf);
  return upper;
}

std::string LowerCase(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), LowerOf);
  return lower;
}

std::vector<std::string> Split(std::string_view text, char separator) {
  std::vector<std::string> pieces;
  std::size_t start = 0;
  for (std::size_t at = text.find(separator); at != std::string_view::npos;
       at = text.find(separator, start)) {
    pieces.emplace_back(text.substr(start, at - start));
    start = at + 1;
  }
  pieces.emplace_back(text.substr(start));
  return pieces;
}

std::vector<std::string> SplitWords(std::string_view text) {
  std::vector<std::string> words = Split(text, ' ');
  std::erase_if(words, [](const std::string& word) { return word.empty(); });
  return words;
}

std::string Join(const std::vector<std::string>& texts, std::string_view separator) {
  std::string joined;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    joined.append(i == 0 ? "" : separator).append(texts[i]);
  }
  return joined;
}

std::string ReplaceAll(std::string_view text, std::string_view what, std::string_view with) {
  std::string replaced;
  std::size_t start = 0;
  while (!what.empty()) {
    const std::size_t at = text.find(what, start);
    if (at == std::string_view::npos) {
      break;
    }
    replaced.append(text.substr(start, at - start)).append(with);
    start = at + what.size();
  }
  return replaced.append(text.substr(start));
}

bool Contains(std::string_view text, std::string_view what) {
  return text.find(what) != std::string_view::npos;
}

bool ContainsIgnoringCase(std::string_view text, std::string_view what) {
  return Contains(LowerCase(text), LowerCase(what));
}

std::string FirstCharacters(std::string_view text, std::size_t count) {
  std::size_t end = 0;
  for (std::size_t seen = 0; end < text.size(); ++end) {
    if (StartsCharacter(text[end]) && seen++ == count) {
      break;
    }
  }
  return std::string(text.substr(0, end));
}

std::size_t CharacterCount(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), StartsCharacter));
}

std::string Quoted(std::string_view text) { return "'" + ReplaceAll(text, "'", "''") + "'"; }

std::string CutAtNul(std::string_view buffer) {
  return std::string(buffer.substr(0, buffer.find('\0')));
}

std::string LastBracketText(std::string_view text) {
  std::string found;
  for (std::size_t open = text.find('('); open != std::string_view::npos;) {
    const std::size_t close = text.find(')', open);
    if (close == std::string_view::npos) {
      break;
    }
    found = text.substr(open + 1, close - open - 1);
    open = text.find('(', close);
  }
  return found;
}

int DigitSum(std::string_view text) {
  int sum = 0;
  for (const char c : text) {
    if (c == ' ') {
      continue;
    }
    if (c < '0' || c > '9') {
      throw std::invalid_argument("a digit sum of a text that holds more than digits");
    }
    sum += c - '0';
  }
  return sum;
}

bool IsValidEmail(std::string_view text) {
  const std::size_t at = text.find('@');
  if (at == std::string_view::npos || at == 0 || text.back() == '.') {
    return false;
  }
  const std::string_view domain = text.substr(std::min(at + 2, text.size()));
  return Contains(domain, ".") && !Contains(domain, "..");
}

}  // namespace orvex::core
