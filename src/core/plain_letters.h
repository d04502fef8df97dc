// Texts for a search that minds neither case nor marks.
#pragma once

#include <string>
#include <string_view>

namespace orvex::core {

// The words of a text with one blank between: Latin letters small and without marks ("São Tomé"
// gives "sao tome"), signs as blanks but for apostrophes, which go ("O'Brien" gives "obrien").
// Other scripts stay as they are.
std::string PlainWords(std::string_view text);

}  // namespace orvex::core
