// The look of all windows in the present mode: tokens, palette and fonts that follow the desktop,
// and the colours of cells.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QString>
#include <string_view>

#include "ui/base/tokens.h"

class QApplication;

namespace orvex::ui {

inline constexpr int kGrid = space::kS;    // pixels between widgets
inline constexpr int kMargin = space::kL;  // pixels around the contents of a dialog

enum class ThemeChoice { Desktop, Light, Dark };

class Theme {
 public:
  // Gives the application its style, font and palette. The mode is $ORVEX_THEME ("light", "dark"),
  // else what the desktop says; a change on the desktop is followed while the program runs.
  static void Apply(QApplication& application);

  // What the user wants; $ORVEX_THEME goes before it.
  static void Choose(ThemeChoice choice);

  // Another mode for all open windows.
  static void SetMode(ThemeMode mode);
  static ThemeMode Mode();

  // The tokens of the present mode.
  static const Tokens& Now() { return TokensOf(Mode()); }

  // The size of all texts in per cent, 90 to 140; other values count as the nearer end. Windows
  // that are open follow.
  static void SetTextSize(int percent);
  static int TextSize();

  // The font of the windows in a size of the type scale, and that of names and titles.
  static QFont Text(double points, QFont::Weight weight = QFont::Normal);
  static QFont Serif(double points);

  // The colours of a cell, six hexadecimal digits as the table carries them, as they are shown in
  // the present mode. An invalid colour for "" and for the neutral background.
  static QColor Background(std::string_view hex);
  static QColor Foreground(std::string_view hex);

  // Texts that tell of a retrograde planet or a changed coordinate: red (255, 0, 0), lifted on
  // dark.
  static QColor Red();

  // Labels of the almanac.
  static QColor Label();

  // Explanations beside the matter itself.
  static QColor Muted();

  // Headings, one step above the text of the windows.
  static QFont HeadingFont();

  // A rich text's form of a colour, "#rrggbb".
  static QString Name(const QColor& color);
};

}  // namespace orvex::ui
