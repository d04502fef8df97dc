// Letters of any alphabet compared without case, independent of the machine's locale.
#pragma once

#include <string>
#include <string_view>

namespace orvex::core {

// A UTF-8 text in upper case, letters beyond ASCII too.
std::string UpperCaseOfAll(std::string_view text);

// What lists order and filter texts by: without case and without accents ("Élan" as "elan").
std::string FoldedText(std::string_view text);

// Below 0, 0 or above 0 as the folded form of `left` comes before, with or behind that of `right`,
// by code points.
int CompareFolded(std::string_view left, std::string_view right);

}  // namespace orvex::core
