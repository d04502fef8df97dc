#include "practice/offset_offer.h"

#include "core/exact_numbers.h"
#include "core/text.h"
#include "practice/cities.h"

namespace orvex::practice {

namespace {

// The clocks of the form's place at its moment; nothing where they are not known.
std::optional<ZoneClock> ClocksOfForm(const std::string& zone, const chart::ClientForm& form) {
  const std::optional<double> longitude = core::ParseNumber(form.Longitude);
  if (zone.empty() || !longitude) {
    return std::nullopt;
  }
  try {
    return ClocksOf(zone, form.Birth, *longitude);
  } catch (const ZoneError&) {
    return std::nullopt;
  }
}

std::string MomentText(const core::Session& session, const chart::ClientForm& form) {
  const std::optional<core::DateTime> moment = chart::MomentUtOf(session, form);
  return moment ? core::LongDateText(*moment, false) + " " + core::ShortTimeText(*moment) + " UT"
                : "";
}

}  // namespace

bool IsOffsetOfClocks(const std::string& offset, const ZoneClock& clock) {
  const std::optional<double> hours = core::ParseNumber(offset);
  const auto showed = [&hours](double shown) { return OffsetText(*hours) == OffsetText(shown); };
  return !hours || showed(clock.OffsetInForce) ||
         (clock.SecondOffset && showed(*clock.SecondOffset));
}

std::string CastForText(const core::Session& session, const chart::ClientForm& form) {
  const std::string moment = MomentText(session, form);
  return moment.empty() ? "" : "The chart is cast for " + moment + ".";
}

std::optional<OffsetOffer> OfferOffset(const core::Session& session,
                                       const chart::ClientForm& form) {
  const std::string zone = ZoneOfCity(session, form.CityId);
  const std::optional<ZoneClock> clock = ClocksOfForm(zone, form);
  if (!clock || IsOffsetOfClocks(form.Offset, *clock)) {
    return std::nullopt;
  }
  const std::string showed = OffsetText(clock->OffsetInForce);
  const std::string kept = core::Trim(form.Offset);
  chart::ClientForm withShowed = form;
  withShowed.Offset = showed;
  return OffsetOffer{"Clocks in " + zone + " showed " + showed + " (" + clock->Abbreviation +
                         ") then.\n\nWith " + showed + " the chart is cast for " +
                         MomentText(session, withShowed) + ",\nwith " + kept + " for " +
                         MomentText(session, form) + ".",
                     "Use " + showed, "Keep " + kept, showed};
}

}  // namespace orvex::practice
