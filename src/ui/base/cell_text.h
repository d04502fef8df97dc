// What the texts of cells name: planets with their houses, degrees in a sign.
#pragma once

#include <QString>
#include <optional>
#include <vector>

namespace orvex::ui {

// A planet with the houses behind it, or a word that names none.
struct CellPiece {
  QString Code;    // "ME", "" for a plain word
  QString Houses;  // "9 9 12", without brackets
  QString Word;    // as it stands, with its marks
};

// The pieces of a text such as "Mercury (9 9 12)", "VE MO SU" or "Sun (9 11) Jupiter (9 3 6)".
std::vector<CellPiece> PiecesOf(const QString& text);

// "ME" of "Mercury", "mercury*" or "ME~"; "" for anything else.
QString CodeOfWord(const QString& word);

// A place in the zodiac as it is read: "18°41'" or, where the stored text is no whole minute,
// "7.56", and the sign's two letters.
struct DegreeText {
  QString Figures;
  QString Sign;
};

// Of a degree from 0 to 360 with up to two decimals, as tables carry it; nothing for other texts.
std::optional<DegreeText> DegreeInSign(const QString& text);

// Whether all windows show degrees in their sign, as at first, or as they are stored.
bool ShowsDegreesInSign();
void ShowDegreesInSign(bool inSign);

// As DegreeInSign; nothing also where degrees are shown as they are stored.
std::optional<DegreeText> ShownDegree(const QString& text);

}  // namespace orvex::ui
