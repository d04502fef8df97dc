// The constants of the Ashtakavarga scheme.
#pragma once

#include <array>

namespace orvex::vedic {

// A planet that receives bindus. Bits holds eight entries joined with "-", one a source in the
// order SU, MO, MA, ME, JU, VE, SA and LA (the ascendant); an entry is the source's code and twelve
// flags 0 or 1, joined with "*". Flag k gives a bindu in the k-th sign from the source, the
// source's own sign being the first.
struct AshtakavargaBits {
  const char* Planet;
  const char* Code;
  const char* Bits;
};

extern const std::array<AshtakavargaBits, 7> kAshtakavargaBits;

}  // namespace orvex::vedic
