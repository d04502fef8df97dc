// The local moment and the offset of a birth, and what the clocks of its city showed.
#pragma once

#include <string>
#include <variant>

#include "exchange/birth_place.h"

namespace orvex::exchange {

// Offsets are hours east of Greenwich, written by practice::OffsetText.
struct BirthClock {
  core::DateTime Local;
  std::string Offset;        // with which the birth is saved
  std::string OffsetInFile;  // "" where the file gives none
  std::string
      OffsetOfClocks;  // what the clocks of the city's zone showed; "" where it is not known
  bool AgreesWithClocks = true;
};

// The clock of a birth, or why it has none. The file's zone and summer time are the offset. Where
// the file gives no summer time, it is what the clocks of the place added then; where it gives no
// zone, the offset is what those clocks showed: of the zone that the file names, else of the
// city's, before the first standard time the local mean time of the longitude. A local time that no
// clock showed, or that came twice, then has none. The Julian day goes before the local time,
// unless they agree as far as its decimals reach.
std::variant<BirthClock, std::string> ClockOf(const FileBirth& birth, const BirthPlace& place);

}  // namespace orvex::exchange
