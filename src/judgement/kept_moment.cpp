#include "judgement/kept_moment.h"

#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::judgement {

std::string KeptText(const KeptMoment& kept) {
  const MomentOfJudgement& moment = kept.Moment;
  return core::Join(
      {core::StoredDateTimeText(moment.Local), core::DoubleText(moment.Where.Latitude),
       core::DoubleText(moment.Where.Longitude), core::DoubleText(moment.Offset),
       core::ReplaceAll(kept.City, "|", " ")},
      "|");
}

std::optional<KeptMoment> ReadKept(const std::string& text) {
  const std::vector<std::string> parts = core::Split(text, '|');
  if (parts.size() != 5) {
    return std::nullopt;
  }
  const std::optional<core::DateTime> local = core::ParseDateTime(parts[0]);
  const std::optional<double> latitude = core::ParseNumber(parts[1]);
  const std::optional<double> longitude = core::ParseNumber(parts[2]);
  const std::optional<double> offset = core::ParseNumber(parts[3]);
  if (!local || !latitude || !longitude || !offset) {
    return std::nullopt;
  }
  return KeptMoment{{*local, {*latitude, *longitude}, *offset}, parts[4]};
}

std::string MomentText(core::DateTime local, const std::string& city) {
  return core::LongDateText(local, true) + " " + core::TimeAmPm(local) +
         (city.empty() ? "" : ", " + city);
}

}  // namespace orvex::judgement
