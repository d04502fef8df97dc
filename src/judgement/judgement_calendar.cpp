#include "judgement/judgement_calendar.h"

#include "core/text.h"
#include "judgement/matter_periods.h"
#include "judgement/triggers.h"

namespace orvex::judgement {

namespace {

// Lower case without blanks, as identifiers of calendar entries are written.
std::string Identifier(const std::string& text) {
  return core::ReplaceAll(core::LowerCase(text), " ", "-") + "@orvexplus";
}

core::DateTime MomentOf(const std::string& stored) {
  return core::ParseDateTime(stored).value_or(core::DateTime{});
}

}  // namespace

std::vector<transit::CalendarEvent> PeriodEvents(const core::Table& matterPeriods,
                                                 const std::string& owner, const std::string& key) {
  std::vector<transit::CalendarEvent> events;
  for (std::size_t row = 0; row < matterPeriods.Rows.size(); ++row) {
    const auto cell = [&](MatterPeriodColumn column) -> const core::Cell& {
      return matterPeriods.At(row, column);
    };
    const std::string lords = cell(MatterPeriodColumn::Dasha).Text + " - " +
                              cell(MatterPeriodColumn::Bhukti).Text + " - " +
                              cell(MatterPeriodColumn::Antara).Text;
    transit::CalendarEvent event;
    event.Start = MomentOf(cell(MatterPeriodColumn::From).SortKey);
    event.End = MomentOf(cell(MatterPeriodColumn::Until).SortKey);
    event.WholeDay = true;
    event.Uid = Identifier("matter-" + key + "-" + cell(MatterPeriodColumn::From).Text + "-" +
                           core::ReplaceAll(lords, " - ", "-"));
    event.Summary = owner + ", " + lords;
    event.Description = "Houses: " + cell(MatterPeriodColumn::Houses).Text +
                        "\nScore: " + cell(MatterPeriodColumn::Score).Text;
    events.push_back(std::move(event));
  }
  return events;
}

std::vector<transit::CalendarEvent> TriggerEvents(const core::Table& triggers,
                                                  std::chrono::seconds offset) {
  std::vector<transit::CalendarEvent> events;
  for (std::size_t row = 0; row < triggers.Rows.size(); ++row) {
    const auto text = [&](TriggerColumn column) -> const std::string& {
      return triggers.At(row, column).Text;
    };
    const std::string lords = text(TriggerColumn::SignLord) + " - " +
                              text(TriggerColumn::StarLord) + " - " + text(TriggerColumn::SubLord);
    transit::CalendarEvent event;
    event.Start = MomentOf(text(TriggerColumn::From)) - offset;
    event.End = MomentOf(text(TriggerColumn::Until)) - offset;
    event.Uid = Identifier("trigger-" + core::StoredDateTimeText(event.Start) + "-" +
                           text(TriggerColumn::Body));
    event.Summary = text(TriggerColumn::Body) + " in " + lords;
    event.Description =
        text(TriggerColumn::House).empty() ? "" : "House: " + text(TriggerColumn::House);
    events.push_back(std::move(event));
  }
  return events;
}

}  // namespace orvex::judgement
