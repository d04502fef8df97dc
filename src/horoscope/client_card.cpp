#include "horoscope/client_card.h"

#include <algorithm>
#include <array>
#include <tuple>

#include "chart/dasha.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "horoscope/create_horoscope.h"

namespace orvex::horoscope {

namespace {

constexpr const char* kBetween = " \u00B7 ";
constexpr int kLongestLife = 120;  // years; all periods together
constexpr int kMonths = 12;

std::string Counted(std::int64_t count, const char* one, const char* many) {
  return core::WholeText(count) + " " + (count == 1 ? one : many);
}

std::string Joined(const std::vector<std::string>& parts, const char* between) {
  std::vector<std::string> filled;
  std::copy_if(parts.begin(), parts.end(), std::back_inserter(filled),
               [](const std::string& part) { return !part.empty(); });
  return core::Join(filled, between);
}

std::string FieldOf(const chart::HoroscopeModel& model, const std::string& name) {
  const auto found = std::find_if(model.Client.begin(), model.Client.end(),
                                  [&](const auto& field) { return field.first == name; });
  return found == model.Client.end() ? "" : found->second;
}

// The selected row of a list as a running period; nothing where the day is in none.
template <typename ColumnName>
std::optional<CardPeriod> Running(const core::Table& list, const char* level, ColumnName planet,
                                  ColumnName end, core::DateTime today) {
  const std::optional<std::size_t> row = chart::SelectedRow(list);
  if (!row) {
    return std::nullopt;
  }
  const std::vector<std::string> span = core::Split(list.At(*row, end).Tag, '*');
  if (span.size() != 2) {
    return std::nullopt;
  }
  const auto from = core::ParseLongDateText(span[0]);
  const auto to = core::ParseLongDateText(span[1]);
  if (!from || !to || today < *from || *to < today) {
    return std::nullopt;
  }
  const std::int64_t days = std::max<std::int64_t>(core::DaysBetween(*from, *to), 1);
  return CardPeriod{
      level, list.At(*row, planet).Text, span[1],
      static_cast<double>(core::DaysBetween(*from, today)) / static_cast<double>(days)};
}

std::vector<CardPeriod> RunningPeriods(const chart::HoroscopeModel& model, core::DateTime today) {
  const chart::DashaTree& tree = model.Periods;
  const auto part = [today](const core::Table& list, const char* level) {
    return Running(list, level, chart::PeriodColumn::Planet, chart::PeriodColumn::EndDate, today);
  };
  const std::array<std::optional<CardPeriod>, 4> levels = {
      Running(tree.DashaList, "Dasha", chart::DashaColumn::Planet, chart::DashaColumn::EndDate,
              today),
      part(tree.BhuktiList, "Bhukti"), part(tree.AntaraList, "Antara"),
      part(tree.SookshmaList, "Sookshma")};
  std::vector<CardPeriod> periods;
  for (const std::optional<CardPeriod>& level : levels) {
    if (!level) {
      break;
    }
    periods.push_back(*level);
  }
  return periods;
}

bool IsOlderThanALife(core::DateTime birth, core::DateTime today) {
  const core::DateParts born = core::PartsOf(birth);
  const core::DateParts now = core::PartsOf(today);
  return std::tuple(born.Year + kLongestLife, born.Month, born.Day) <
         std::tuple(now.Year, now.Month, now.Day);
}

}  // namespace

std::string AgeInWords(core::DateTime birth, core::DateTime today) {
  const core::DateParts born = core::PartsOf(birth);
  const core::DateParts now = core::PartsOf(today);
  if (core::DateOnly(today) < core::DateOnly(birth)) {
    return "";
  }
  const int months =
      (now.Year - born.Year) * kMonths + now.Month - born.Month - (now.Day < born.Day ? 1 : 0);
  if (months == 0) {
    return Counted(core::DaysBetween(birth, today), "day", "days");
  }
  const int years = months / kMonths;
  return Joined({years > 0 ? Counted(years, "year", "years") : "",
                 months % kMonths > 0 ? Counted(months % kMonths, "month", "months") : ""},
                " ");
}

std::optional<ClientCard> CardOf(core::Session& session, std::int32_t clientId) {
  const std::string sunrise = session.State.SunriseText;
  const std::string sunset = session.State.SunsetText;
  std::optional<OpenedHoroscope> opened = CreateHoroscope(session, clientId);
  session.State.SunriseText = sunrise;
  session.State.SunsetText = sunset;
  if (!opened) {
    return std::nullopt;
  }
  ClientCard card;
  card.Model = std::move(opened->Model);
  const chart::HoroscopeModel& model = card.Model;
  const core::DateTime today = session.Time.Today();
  card.Birth = model.Captions.Date + kBetween + model.City + model.Captions.Offset;
  const std::optional<core::DateTime> created = core::ParseDateTime(FieldOf(model, "createddate"));
  card.Person =
      Joined({Joined({model.Gender, model.Horary ? "" : AgeInWords(model.Birth, today)}, ", "),
              created ? "Created On " + core::LongDateText(*created, false) : ""},
             kBetween);
  card.Question = model.Horary ? model.HoraryQuestion : "";
  card.Ascendant = model.Captions.AscendantSign;
  const std::vector<std::string> star = core::Split(model.Captions.NakshatraTag, '*');
  card.Moon = star.size() == 3 ? star[0] + ", Pada " + star[2] : "";
  if (core::DateOnly(model.Birth) <= today && !IsOlderThanALife(model.Birth, today)) {
    card.Periods = RunningPeriods(model, today);
  }
  card.Comments = model.Comments;
  card.Mobile = FieldOf(model, "mobile");
  card.Email = FieldOf(model, "email");
  return card;
}

}  // namespace orvex::horoscope
