#include "judgement/triggers.h"

#include <algorithm>

#include "core/exact_numbers.h"
#include "exact/crossings.h"
#include "exact/exact_tables.h"

namespace orvex::judgement {

namespace {

struct Trigger {
  exact::Point Body = exact::Point::Sun;
  exact::Crossing Span;
};

std::vector<Trigger> TriggersOf(const exact::ExactSky& sky, const exact::ExactZodiac& zodiac,
                                const TriggerSearch& search, exact::Point body) {
  std::vector<Trigger> triggers;
  for (const exact::Crossing& span : exact::Crossings(
           sky, zodiac, {body, search.From, search.To, exact::Depth::Sub, search.Where})) {
    if (search.Lords.contains(span.Held.Sign) && search.Lords.contains(span.Held.Star) &&
        search.Lords.contains(span.Held.Sub)) {
      triggers.push_back({body, span});
    }
  }
  return triggers;
}

void AddTrigger(const Trigger& trigger, const TriggerSearch& search, core::Table& table) {
  table.AddRow();
  const std::size_t row = table.Rows.size() - 1;
  const exact::Crossing& span = trigger.Span;
  table.At(row, TriggerColumn::Body).Text = exact::PointName(trigger.Body);
  table.At(row, TriggerColumn::From).Text = core::StoredDateTimeText(span.From + search.Offset);
  table.At(row, TriggerColumn::Until).Text = core::StoredDateTimeText(span.Until + search.Offset);
  table.At(row, TriggerColumn::SignLord).Text = span.Held.Sign;
  table.At(row, TriggerColumn::StarLord).Text = span.Held.Star;
  table.At(row, TriggerColumn::SubLord).Text = span.Held.Sub;
  if (search.Natal) {
    table.At(row, TriggerColumn::House).Text =
        core::WholeText(exact::HouseOf(*search.Natal, span.Longitude));
  }
}

}  // namespace

astro::Cusps NatalCusps(const chart::BirthTables& birth) {
  constexpr int kHundred = 100;
  astro::Cusps cusps{};
  for (std::size_t row = 0; row < birth.HouseTable.Rows.size(); ++row) {
    const double degree =
        core::ToDouble(birth.HouseTable.At(row, chart::HouseColumn::CuspDegree).Text);
    // Hundredths of a degree are whole units, which a product of binary fractions may miss.
    cusps.at(row + 1) = exact::DegreesOf(exact::OnCircle(core::RoundToWhole(degree * kHundred) *
                                                         (exact::kUnitsOfDegree / kHundred)));
  }
  return cusps;
}

core::Table BuildTriggers(core::Session& session, const TriggerSearch& search) {
  const exact::ExactZodiac zodiac(session.Reference);
  const exact::ExactSky sky(session.Ephemeris, exact::ReadingOf(session),
                            session.State.RahuKetuCalculation);
  std::vector<Trigger> triggers;
  for (const exact::Point body : search.Bodies) {
    for (Trigger& trigger : TriggersOf(sky, zodiac, search, body)) {
      triggers.push_back(std::move(trigger));
    }
  }
  std::stable_sort(triggers.begin(), triggers.end(), [](const Trigger& left, const Trigger& right) {
    return left.Span.From < right.Span.From;
  });
  core::Table table{{{"Body", 80},
                     {"From", 150},
                     {"Until", 150},
                     {"Sign Lord", 80},
                     {"Star Lord", 80},
                     {"Sub Lord", 80},
                     {"House", 50}},
                    {}};
  for (const Trigger& trigger : triggers) {
    AddTrigger(trigger, search, table);
  }
  return table;
}

}  // namespace orvex::judgement
