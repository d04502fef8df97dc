#include "panchang/day_strip.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/attempt.h"
#include "panchang/clock_text.h"
#include "panchang/hora.h"

namespace orvex::panchang {

namespace {

constexpr std::string_view kBetween = " to ";

// The labels of the panchang table and the names on the line.
constexpr std::array<std::pair<const char*, const char*>, 3> kKaalNames = {
    {{"Rahu Kaal", "Rahu Kaal"}, {"Gulika Kaal", "Gulika"}, {"Yamaganda Kaal", "Yamaganda"}}};

struct Span {
  core::DateTime From{};
  core::DateTime To{};

  double PlaceOf(core::DateTime moment) const {
    return static_cast<double>((moment - From).count()) / static_cast<double>((To - From).count());
  }
};

Span SpanOfHora(const core::Table& horas, std::size_t row) {
  return {core::ParseDateTime(horas.At(row, HoraColumn::Start).Tag).value(),
          core::ParseDateTime(horas.At(row, HoraColumn::End).Tag).value()};
}

std::string PanchangText(const core::Table& panchang, std::string_view label) {
  for (const core::Row& row : panchang.Rows) {
    for (std::size_t column = 0; column + 1 < row.Cells.size(); column += 2) {
      if (row.Cells[column].Text == label) {
        return row.Cells[column + 1].Text;
      }
    }
  }
  return "";
}

void AddKaal(const std::string& name, const std::string& times, const Span& day, DayStrip& strip) {
  const std::size_t between = times.find(kBetween);
  if (between == std::string::npos) {
    return;
  }
  const double from = day.PlaceOf(ClockOn(day.From, times.substr(0, between)));
  const double to = day.PlaceOf(ClockOn(day.From, times.substr(between + kBetween.size())));
  if (from < to && from < 1 && to > 0) {
    strip.Kaals.push_back({name, std::max(from, 0.0), std::min(to, 1.0), times});
  }
}

}  // namespace

DayStrip DayStripOf(const SkyView& view, core::DateTime now) {
  DayStrip strip;
  const core::Table& horas = view.DayHoras;
  if (horas.Rows.empty()) {
    return strip;
  }
  const Span day{SpanOfHora(horas, 0).From, SpanOfHora(horas, horas.Rows.size() - 1).To};
  if (day.From >= day.To) {
    return strip;
  }
  strip.Begin = core::TimeAmPm(day.From);
  strip.End = core::TimeAmPm(day.To);
  for (std::size_t row = 0; row < horas.Rows.size(); ++row) {
    const Span hora = SpanOfHora(horas, row);
    strip.Horas.push_back(
        {horas.At(row, HoraColumn::Planet).Text, day.PlaceOf(hora.From), day.PlaceOf(hora.To),
         core::TimeAmPm(hora.From) + std::string(kBetween) + core::TimeAmPm(hora.To)});
  }
  for (const auto& [label, name] : kKaalNames) {
    core::Attempt([&, label = label, name = name] {
      AddKaal(name, PanchangText(view.Panchang, label), day, strip);
    });
  }
  std::sort(strip.Kaals.begin(), strip.Kaals.end(),
            [](const StripPart& left, const StripPart& right) { return left.From < right.From; });
  if (day.From <= now && now <= day.To) {
    strip.Now = day.PlaceOf(now);
  }
  return strip;
}

}  // namespace orvex::panchang
