#include "core/csv.h"

#include <algorithm>

#include "core/exact_numbers.h"

namespace orvex::core {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kFormulaStarts = "=+-@\t\r";

char SeparatorOf(std::string_view text) {
  const std::string_view first = text.substr(0, text.find('\n'));
  const auto commas = std::count(first.begin(), first.end(), ',');
  return std::count(first.begin(), first.end(), ';') > commas ? ';' : ',';
}

// Reads records one after another.
class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text), separator_(SeparatorOf(text)) {}

  bool AtEnd() const { return at_ >= text_.size(); }

  CsvRecord Next() {
    CsvRecord record{line_, {}};
    do {
      record.Fields.push_back(Field());
    } while (Take(separator_));
    Take('\r');
    if (Take('\n')) {
      ++line_;
    }
    return record;
  }

 private:
  bool Take(char wanted) {
    const bool there = !AtEnd() && text_[at_] == wanted;
    at_ += there ? 1U : 0U;
    return there;
  }

  bool AtLineEnd() const {
    return text_[at_] == '\n' || (text_[at_] == '\r' && text_.substr(at_ + 1, 1) == "\n");
  }

  std::string Field() {
    std::string field = Take('"') ? Quoted() : "";
    while (!AtEnd() && text_[at_] != separator_ && !AtLineEnd()) {
      field += text_[at_++];
    }
    return field;
  }

  // The inside of quotes up to the closing one; two quotes are one.
  std::string Quoted() {
    const std::size_t began = line_;
    std::string inside;
    for (; !AtEnd(); ++at_) {
      if (text_[at_] == '"' && text_.substr(at_ + 1, 1) != "\"") {
        ++at_;
        return inside;
      }
      at_ += text_[at_] == '"' ? 1U : 0U;
      line_ += text_[at_] == '\n' ? 1U : 0U;
      inside += text_[at_];
    }
    throw CsvError("The quoted field of line " + WholeText(static_cast<std::int64_t>(began)) +
                   " is not closed.");
  }

  std::string_view text_;
  char separator_;
  std::size_t at_ = 0;
  std::size_t line_ = 1;
};

bool IsBlankRecord(const CsvRecord& record) {
  return record.Fields.size() == 1 && record.Fields.front().empty();
}

}  // namespace

std::vector<CsvRecord> ReadCsv(std::string_view text) {
  if (text.starts_with(kByteOrderMark)) {
    text.remove_prefix(kByteOrderMark.size());
  }
  std::vector<CsvRecord> records;
  for (Reader reader(text); !reader.AtEnd();) {
    CsvRecord record = reader.Next();
    if (!IsBlankRecord(record)) {
      records.push_back(std::move(record));
    }
  }
  return records;
}

std::string CsvLine(const std::vector<std::string>& fields) {
  std::string line;
  for (const std::string& field : fields) {
    line += line.empty() && &field == &fields.front() ? "" : ",";
    if (field.find_first_of("\",;\r\n") == std::string::npos) {
      line += field;
      continue;
    }
    line += '"';
    for (const char c : field) {
      line += c == '"' ? "\"\"" : std::string(1, c);
    }
    line += '"';
  }
  return line + "\n";
}

std::string GuardedText(const std::string& text) {
  const bool runs = !text.empty() && kFormulaStarts.find(text.front()) != std::string_view::npos;
  return runs || UnguardedText(text) != text ? "'" + text : text;
}

std::string UnguardedText(const std::string& text) {
  const bool guarded = text.size() > 1 && text.front() == '\'' &&
                       (text[1] == '\'' || kFormulaStarts.find(text[1]) != std::string_view::npos);
  return guarded ? text.substr(1) : text;
}

}  // namespace orvex::core
