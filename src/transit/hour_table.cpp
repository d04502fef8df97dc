#include "transit/hour_table.h"

#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/exact_numbers.h"

namespace orvex::transit {

namespace {

constexpr int kMinuteRows = 12;
constexpr int kMinuteStep = 5;

core::Table EmptyTable(const std::string& timeCaption) {
  return {{{timeCaption, 50},
           {"Rashi", 100},
           {"Degree", 77},
           {"Sign Lord", 110},
           {"Star Lord", 110},
           {"Sub Lord", 110},
           {"Nakshatra", 160},
           {"Pada", 55}},
          {}};
}

void FillPosition(core::Session& session, const TransitPosition& position, core::Table& table) {
  const std::size_t row = table.Rows.size() - 1;
  table.At(row, HourColumn::Degree).Text = position.Degree;
  if (position.Degree.empty()) {
    return;
  }
  const double degree = core::ToDouble(position.Degree);
  table.At(row, HourColumn::Rashi).Text = chart::RashiName(chart::RashiOfDegree(degree));
  core::Attempt([&] {
    const core::SubRow& sub = chart::SubOfDegree(session.Reference, degree);
    table.At(row, HourColumn::SignLord).Text = sub.RashiLord;
    table.At(row, HourColumn::StarLord).Text = sub.StarLord;
    table.At(row, HourColumn::SubLord).Text = sub.SubLord;
  });
  core::Attempt([&] {
    const chart::StarAndPada star = chart::StarOfDegree(session.Reference, degree);
    table.At(row, HourColumn::Nakshatra).Text = star.Star->StarName;
    table.At(row, HourColumn::Pada).Text = core::WholeText(star.Pada->Pada);
  });
}

void AddRowAt(core::Session& session, Planet planet, core::DateTime local, float zoneHours,
              core::Table& table) {
  core::Row& row = table.AddRow();
  core::Cell& time = row.Cells.at(core::Table::Index(HourColumn::Time));
  time.Text = core::ShortTimeText(local);
  time.Tag = row.Tag = core::StoredDateTimeText(local);
  core::Attempt(
      [&] { FillPosition(session, PositionAt(session, planet, local, zoneHours), table); });
}

}  // namespace

core::Table BuildHourTable(core::Session& session, Planet planet, core::DateTime date,
                           float zoneHours, const std::string& timeCaption) {
  core::Table table = EmptyTable(timeCaption);
  for (int hour = 0; hour < kHoursOfDay; ++hour) {
    AddRowAt(session, planet, core::DateOnly(date) + std::chrono::hours(hour), zoneHours, table);
  }
  session.Ephemeris.Close();
  return table;
}

core::Table BuildMinuteTable(core::Session& session, Planet planet, core::DateTime start,
                             float zoneHours) {
  core::Table table = EmptyTable("Min");
  for (int row = 0; row < kMinuteRows; ++row) {
    AddRowAt(session, planet, start + std::chrono::minutes(row * kMinuteStep), zoneHours, table);
  }
  session.Ephemeris.Close();
  return table;
}

}  // namespace orvex::transit
