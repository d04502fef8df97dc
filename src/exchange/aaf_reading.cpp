#include "exchange/aaf_reading.h"

#include "core/exact_numbers.h"
#include "core/text.h"
#include "core/text_encoding.h"
#include "core/typed_coordinate.h"
#include "exchange/aaf_fields.h"
#include "exchange/text_lines.h"

namespace orvex::exchange {

namespace {

enum class PersonField { Name, FirstName, Sex, Date, Time, Place, Country, Count };
enum class PlaceField { JulianDay, Latitude, Longitude, Zone, Summer, Count };

// Carries the reason why a line is refused to the one place where it is noted.
struct LineRefusal {
  std::string Reason;
};

// The fields of a line, empty texts for empty ones.
template <typename Field>
class Fields {
 public:
  explicit Fields(const std::string& text) : texts_(core::Split(text, ',')) {
    constexpr auto kCount = static_cast<std::size_t>(Field::Count);
    if (texts_.size() != kCount) {
      throw LineRefusal{"the line has " + CountText(texts_.size()) + ", not " + CountText(kCount)};
    }
    for (std::string& field : texts_) {
      field = core::Trim(field);
      field = field == kEmptyField ? "" : field;
    }
  }

  const std::string& Text(Field field) const { return texts_.at(static_cast<std::size_t>(field)); }

  // What `read` makes of a field; nothing of an empty one.
  template <typename Reader>
  auto Value(Field field, const char* name, Reader read) const -> decltype(read(std::string())) {
    if (Text(field).empty()) {
      return std::nullopt;
    }
    auto value = read(Text(field));
    if (!value) {
      throw LineRefusal{std::string(name) + ": " + Shown(Text(field)) + " could not be read"};
    }
    return value;
  }

 private:
  static std::string CountText(std::size_t count) {
    return core::WholeText(static_cast<std::int64_t>(count)) + (count == 1 ? " field" : " fields");
  }

  std::vector<std::string> texts_;
};

// "Ravi" "Kumar" is "Ravi Kumar".
std::string WholeName(const std::string& firstName, const std::string& name) {
  return firstName + (firstName.empty() || name.empty() ? "" : " ") + name;
}

std::string GenderOf(const std::string& sex) {
  const std::string letter = core::LowerCase(sex);
  if (letter == "m") {
    return "M";
  }
  if (letter == "f" || letter == "w") {
    return "F";
  }
  if (letter.empty() || letter == "o" || letter == "n") {
    return "O";
  }
  throw LineRefusal{"sex: " + Shown(sex) + " is none of m, f, w and *"};
}

void ReadPerson(const std::string& text, FileBirth& birth) {
  const Fields<PersonField> fields(text);
  birth.Name = WholeName(fields.Text(PersonField::FirstName), fields.Text(PersonField::Name));
  birth.Gender = GenderOf(fields.Text(PersonField::Sex));
  birth.Place = fields.Text(PersonField::Place);
  birth.Country = fields.Text(PersonField::Country);
  const auto date = fields.Value(PersonField::Date, "date", ReadAafDate);
  const auto time = fields.Value(PersonField::Time, "time", ReadAafTime);
  if (date && time) {
    birth.Local = *date + *time;
  }
}

void ReadPlace(const std::string& text, FileBirth& birth) {
  const Fields<PlaceField> fields(text);
  birth.Julian = fields.Value(PlaceField::JulianDay, "Julian day", ReadAafJulianDay);
  birth.Latitude =
      fields.Value(PlaceField::Latitude, "latitude", core::ReadTypedLatitude).value_or("");
  birth.Longitude =
      fields.Value(PlaceField::Longitude, "longitude", core::ReadTypedLongitude).value_or("");
  birth.ZoneHours = fields.Value(PlaceField::Zone, "zone", ReadAafZone);
  birth.SummerHours = fields.Value(PlaceField::Summer, "summer time", ReadAafSummer);
}

class AafReader {
 public:
  void Take(const FileLine& line) {
    try {
      TakeLine(line);
    } catch (const LineRefusal& refusal) {
      reading_.Refused.push_back({line.Number, refusal.Reason});
      isRefused_ = true;
    }
  }

  FileReading Finish() && {
    EndBirth();
    return std::move(reading_);
  }

 private:
  void TakeLine(const FileLine& line) {
    const std::size_t colon = line.Text.find(':');
    const bool hasTag = line.Text.starts_with('#') && colon != std::string::npos;
    const std::string tag = hasTag ? core::UpperCase(line.Text.substr(1, colon - 1)) : "";
    if (tag == "A93") {
      EndBirth();
      birth_.emplace();
      birth_->Line = line.Number;
    }
    if (core::HasControlCharacter(line.Text)) {
      throw LineRefusal{kControlCharacter};
    }
    if (hasTag) {
      TakeTagged(tag, line.Text.substr(colon + 1));
      inComment_ = tag == "COM" && birth_;
    } else if (core::Trim(line.Text).empty()) {
      return;
    } else if (inComment_) {
      AddComment(line.Text);
    } else {
      throw LineRefusal{"the line begins with no tag such as #A93:"};
    }
  }

  void TakeTagged(const std::string& tag, const std::string& text) {
    if (tag == "A93") {
      ReadPerson(text, *birth_);
    } else if (tag == "B93") {
      if (!birth_ || hasPlace_) {
        throw LineRefusal{"there is no #A93 line of its own before it"};
      }
      hasPlace_ = true;
      ReadPlace(text, *birth_);
    } else if (tag == "ZNAM" && birth_) {
      birth_->ZoneName = core::Trim(text);
    } else if (tag == "COM" && birth_) {
      AddComment(text);
    }
  }

  void AddComment(const std::string& text) {
    birth_->Comments += (hasComment_ ? "\n" : "") + text;
    hasComment_ = true;
  }

  // A birth that names no moment is refused at its first line.
  void EndBirth() {
    if (birth_ && !isRefused_ && !birth_->Local && !birth_->Julian) {
      reading_.Refused.push_back(
          {birth_->Line, "there is neither a date with a time nor a Julian day"});
    } else if (birth_ && !isRefused_) {
      reading_.Births.push_back(std::move(*birth_));
    }
    birth_.reset();
    isRefused_ = hasPlace_ = hasComment_ = inComment_ = false;
  }

  FileReading reading_;
  std::optional<FileBirth> birth_;  // that of the last #A93
  bool isRefused_ = false;
  bool hasPlace_ = false;
  bool hasComment_ = false;
  bool inComment_ = false;
};

}  // namespace

FileReading ReadAaf(std::string_view bytes) {
  AafReader reader;
  for (const FileLine& line : LinesOf(bytes)) {
    reader.Take(line);
  }
  return std::move(reader).Finish();
}

}  // namespace orvex::exchange
