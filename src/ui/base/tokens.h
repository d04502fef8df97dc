// Every colour, size and space of the windows, light and dark. Nothing else in the windows names a
// colour or a number of pixels.
#pragma once

#include <QColor>
#include <QStringView>
#include <array>

namespace orvex::ui {

enum class ThemeMode { Light, Dark };

// The ground of a chip and the letters on it.
struct ChipColors {
  QColor Ground;
  QColor Letters;
};

struct Tokens {
  QColor Sheet;   // tables, lists, fields
  QColor Ground;  // the window behind them
  QColor Bar;     // heads and status lines
  QColor Sunk;    // side lists
  QColor Ink;     // text
  QColor Ink2;    // labels, second figures
  QColor Ink3;    // placeholders, zeros, disabled text; on Sheet and Sunk alone
  QColor Accent;  // can be pressed, is chosen
  QColor OnAccent;
  QColor Sel;  // the ground of a chosen row
  QColor Now;  // today, retrograde, refused
  QColor Good;
  QColor GoodGround;
  QColor Hard;
  QColor HardGround;
  QColor Amber;  // rotated, rectified, summer time
  QColor AmberGround;
  QColor Ascendant;                 // its field in a chart
  QColor Start;                     // the row that the periods of a life begin from
  QColor Rule;                      // between rows
  QColor Rule2;                     // between parts
  QColor HeadRule;                  // above a head of a table
  QColor Edge;                      // fields, buttons, lines of charts
  std::array<QColor, 4> Heat;       // counts 1, 2, 3, 4 and more
  std::array<QColor, 4> HeatText;   // the figure on each
  std::array<ChipColors, 9> Chips;  // in the order of kChipCodes
};

// The codes of the planets as chips carry them.
inline constexpr std::array<const char*, 9> kChipCodes = {"SU", "MO", "MA", "ME", "JU",
                                                          "VE", "SA", "RA", "KE"};

const Tokens& TokensOf(ThemeMode mode);

// The colours of the chip of a code; Ink on Sunk for any other text.
ChipColors ChipOf(const Tokens& tokens, QStringView code);

// Sizes of text in points at a text size of 100 per cent.
namespace type {
inline constexpr double kHead = 8.25;  // heads of columns, chips
inline constexpr double kSmall = 9;    // second text
inline constexpr double kText = 9.75;
inline constexpr double kTitle = 12;   // names of pages
inline constexpr double kName = 16.5;  // a client's name
}  // namespace type

// Pixels between things.
namespace space {
inline constexpr int kXs = 4;
inline constexpr int kS = 8;
inline constexpr int kM = 12;
inline constexpr int kL = 16;
inline constexpr int kXl = 24;
}  // namespace space

namespace radius {
inline constexpr int kChip = 3;
inline constexpr int kField = 5;
inline constexpr int kPopup = 6;
}  // namespace radius

// Heights in pixels.
namespace height {
inline constexpr int kField = 32;
inline constexpr int kSmallField = 26;
inline constexpr int kHead = 26;
inline constexpr int kLeastRow = 22;  // text with chips
inline constexpr int kMostRow = 32;
inline constexpr int kGridRow = 18;  // a day of a month
inline constexpr int kListRow = 26;
inline constexpr int kClientRow = 30;
inline constexpr int kWindowHead = 62;
}  // namespace height

// Lines in pixels.
namespace line {
inline constexpr int kHair = 1;
inline constexpr int kHead = 2;
inline constexpr int kFocus = 2;
inline constexpr int kChosen = 3;   // the bar beside a chosen row
inline constexpr int kWarning = 5;  // the bar beside an amber head
}  // namespace line

// The least size that every window can be given.
namespace window {
inline constexpr int kLeastWidth = 960;
inline constexpr int kLeastHeight = 540;
}  // namespace window

}  // namespace orvex::ui
