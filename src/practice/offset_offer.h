// The question before a client is saved with another offset than the clocks of the place showed.
#pragma once

#include <optional>
#include <string>

#include "chart/client_saving.h"
#include "practice/zone_clock.h"

namespace orvex::practice {

struct OffsetOffer {
  std::string Question;  // with the moments in UT for which the chart would be cast
  std::string Use;       // "Use -4"
  std::string Keep;      // "Keep -5"
  std::string Offset;    // what the clocks showed, as it is entered
};

// Whether an offset as typed is one that the clocks showed, compared as OffsetText writes them;
// true also for a text that is no number.
bool IsOffsetOfClocks(const std::string& offset, const ZoneClock& clock);

// What to ask before a form is saved; nothing where the clocks showed its offset, or nobody knows
// what they showed.
std::optional<OffsetOffer> OfferOffset(const core::Session& session, const chart::ClientForm& form);

// "The chart is cast for 5 July 1990 18:26 UT."; "" where the form has no moment yet.
std::string CastForText(const core::Session& session, const chart::ClientForm& form);

}  // namespace orvex::practice
