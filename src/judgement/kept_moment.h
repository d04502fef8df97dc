// The moment of judgement that a practitioner holds on to, as a text that outlives the program.
#pragma once

#include <optional>
#include <string>

#include "judgement/moment_of_judgement.h"

namespace orvex::judgement {

struct KeptMoment {
  MomentOfJudgement Moment;
  std::string City;
};

// "2026-11-24 10:00:00|19.07283|72.88261|5.5|Mumbai".
std::string KeptText(const KeptMoment& kept);

// What such a text tells; nothing of any other.
std::optional<KeptMoment> ReadKept(const std::string& text);

// "24 Nov 2026 10:00 AM, Mumbai".
std::string MomentText(core::DateTime local, const std::string& city);

}  // namespace orvex::judgement
