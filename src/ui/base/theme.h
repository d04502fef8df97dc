// The one style of all windows: a grid of 8 pixels, tabular figures, a light and a dark palette
// that follow the desktop, and the colours of cells in both.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QString>
#include <string_view>

class QApplication;

namespace orvex::ui {

inline constexpr int kGrid = 8;            // pixels between widgets
inline constexpr int kMargin = 2 * kGrid;  // pixels around the contents of a dialog

enum class ThemeMode { Light, Dark };

class Theme {
 public:
  // Gives the application its style, font and palette. The mode is $ORVEX_THEME ("light", "dark"),
  // else what the desktop says; a change on the desktop is followed while the program runs.
  static void Apply(QApplication& application);

  // Another mode for all open windows.
  static void SetMode(ThemeMode mode);
  static ThemeMode Mode();

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
