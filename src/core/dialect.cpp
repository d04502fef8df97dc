#include "core/dialect.h"

#include <optional>
#include <stdexcept>

#include "core/date_text.h"
#include "core/text.h"

namespace orvex::core {

namespace {

constexpr char kDateDelimiter = '#';
constexpr std::string_view kSelectTop = "select top ";

// The literal that begins at `open`, as a quoted stored text; `open` is moved to its last
// character.
std::string TranslateDate(std::string_view statement, std::size_t& open) {
  const std::size_t close = statement.find(kDateDelimiter, open + 1);
  if (close == std::string_view::npos) {
    throw std::invalid_argument("a date literal that is not closed");
  }
  const std::optional<DateTime> moment =
      ParseDateLiteral(statement.substr(open + 1, close - open - 1));
  if (!moment) {
    throw std::invalid_argument("a date literal that is no date");
  }
  open = close;
  return Quoted(StoredDateTimeText(*moment));
}

std::string TranslateDates(std::string_view statement) {
  std::string translated;
  bool inQuotes = false;
  for (std::size_t at = 0; at < statement.size(); ++at) {
    inQuotes = inQuotes != (statement[at] == '\'');
    if (statement[at] == kDateDelimiter && !inQuotes) {
      translated += TranslateDate(statement, at);
    } else {
      translated += statement[at];
    }
  }
  return translated;
}

std::string TranslateTop(std::string_view statement) {
  if (LowerCase(statement.substr(0, kSelectTop.size())) != kSelectTop) {
    return std::string(statement);
  }
  const std::string_view rest = statement.substr(kSelectTop.size());
  const std::size_t end = rest.find_first_not_of("0123456789");
  if (end == 0 || end == std::string_view::npos) {
    return std::string(statement);
  }
  return "Select" + std::string(rest.substr(end)) + " limit " + std::string(rest.substr(0, end));
}

}  // namespace

std::string TranslateStatement(std::string_view statement) {
  return TranslateTop(TranslateDates(statement));
}

}  // namespace orvex::core
