#include "judgement/triggers.h"

#include <algorithm>

#include "core/exact_numbers.h"
#include "exact/crossings.h"
#include "exact/exact_tables.h"

namespace orvex::judgement {

namespace {

// So long a piece of a body's way takes a few milliseconds.
std::chrono::seconds PieceOf(exact::Point body) {
  return body == exact::Point::Ascendant ? std::chrono::days(1) : std::chrono::days(30);
}

void AddTrigger(exact::Point body, const exact::Crossing& span, const TriggerSearch& search,
                core::Table& table) {
  table.AddRow();
  const std::size_t row = table.Rows.size() - 1;
  table.At(row, TriggerColumn::Body).Text = exact::PointName(body);
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

TriggerRun::TriggerRun(core::Session& session, TriggerSearch search)
    : session_(session),
      search_(std::move(search)),
      zodiac_(session.Reference),
      reached_(search_.From) {
  if (search_.To <= search_.From) {
    body_ = search_.Bodies.size();
  }
}

TriggerRun::~TriggerRun() = default;

// A span goes on over the seam of two pieces as long as its lords stay.
void TriggerRun::Take(exact::Crossing span) {
  if (open_ && open_->Held == span.Held) {
    open_->Until = span.Until;
    return;
  }
  if (open_ && search_.Lords.contains(open_->Held.Sign) &&
      search_.Lords.contains(open_->Held.Star) && search_.Lords.contains(open_->Held.Sub)) {
    found_.push_back({body_, std::move(*open_)});
  }
  open_ = std::move(span);
}

void TriggerRun::NextBody() {
  Take({});  // closes the last span
  open_.reset();
  ++body_;
  reached_ = search_.From;
}

void TriggerRun::Step() {
  if (Done()) {
    return;
  }
  const exact::Point body = search_.Bodies[body_];
  const core::DateTime end = std::min(search_.To, reached_ + PieceOf(body));
  const exact::ExactSky sky(session_.Ephemeris, exact::ReadingOf(session_),
                            session_.State.RahuKetuCalculation);
  for (exact::Crossing& span :
       exact::Crossings(sky, zodiac_, {body, reached_, end, exact::Depth::Sub, search_.Where})) {
    Take(std::move(span));
  }
  reached_ = end;
  if (reached_ >= search_.To) {
    NextBody();
  }
}

double TriggerRun::Part() const {
  if (Done()) {
    return 1;
  }
  const auto whole = static_cast<double>((search_.To - search_.From).count());
  const double ofBody = static_cast<double>((reached_ - search_.From).count()) / whole;
  return (static_cast<double>(body_) + ofBody) / static_cast<double>(search_.Bodies.size());
}

core::Table TriggerRun::Table() const {
  std::vector<Trigger> triggers = found_;
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
    AddTrigger(search_.Bodies[trigger.Body], trigger.Span, search_, table);
  }
  return table;
}

core::Table BuildTriggers(core::Session& session, const TriggerSearch& search) {
  TriggerRun run(session, search);
  while (!run.Done()) {
    run.Step();
  }
  return run.Table();
}

}  // namespace orvex::judgement
