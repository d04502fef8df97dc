// Plain text helpers, all on bytes of UTF-8 and without a locale.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvex::core {

// The text without blanks at both ends (also tabs and line breaks).
std::string Trim(std::string_view text);

// ASCII letters in upper or lower case, all else as it is.
std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);

// The pieces between the separators, empty ones too; an empty text gives one empty piece.
std::vector<std::string> Split(std::string_view text, char separator);

// The pieces between blanks, empty ones left out.
std::vector<std::string> SplitWords(std::string_view text);

// The texts with `separator` between them.
std::string Join(const std::vector<std::string>& texts, std::string_view separator);

// Every `what` replaced by `with`. An empty `what` changes nothing.
std::string ReplaceAll(std::string_view text, std::string_view what, std::string_view with);

bool Contains(std::string_view text, std::string_view what);

// Contains, ASCII letters compared without case.
bool ContainsIgnoringCase(std::string_view text, std::string_view what);

// The first `count` characters (code points, not bytes) of a UTF-8 text.
std::string FirstCharacters(std::string_view text, std::size_t count);

// The number of characters (code points) of a UTF-8 text.
std::size_t CharacterCount(std::string_view text);

// A text for a statement: single quotes around it, each ' inside doubled.
std::string Quoted(std::string_view text);

// A fixed buffer's text up to its first NUL; without one the whole of it.
std::string CutAtNul(std::string_view buffer);

// The inside of the last complete "(...)" pair, "" where there is none. A "(" without a closing
// bracket ends the search and what was found before stands.
std::string LastBracketText(std::string_view text);

// The sum of the digits of a text, blanks left out. std::invalid_argument on any other character.
int DigitSum(std::string_view text);

// The form check of an e-mail: an "@" that is not first, a "." from the second character behind
// it, no ".." from there on, no "." at the end.
bool IsValidEmail(std::string_view text);

}  // namespace orvex::core
