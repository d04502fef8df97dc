// What the commands of the judgement share.
#pragma once

#include <string>

#include "cli/context.h"
#include "horoscope/create_horoscope.h"
#include "judgement/matters.h"
#include "judgement/moment_of_judgement.h"

namespace orvex::cli {

// The matter that an argument names, by name in any case or by id. CommandFailed where none is.
judgement::Matter MatterFor(const core::Session& session, const std::string& text);

// The moment of judgement at the user city that --at names, else now.
judgement::MomentOfJudgement JudgementAt(const core::Session& session, const std::string& option);

// Turns a horoscope to the house that --rotate names, if it names one. CommandFailed beyond 1
// to 12.
void RotateTo(const core::Session& session, horoscope::OpenedHoroscope& opened,
              const std::string& option);

}  // namespace orvex::cli
