#include "ui/base/theme.h"

#include <QApplication>
#include <QFontMetricsF>
#include <algorithm>
#include <optional>

#include "core/cell_colors.h"
#include "core/settings.h"
#include "ui/base/calm_style.h"
#include "ui/base/desktop_scheme.h"

namespace orvex::ui {

namespace {

constexpr double kWhole = 100;  // per cent

QPalette PaletteOf(const Tokens& t) {
  QPalette palette;
  palette.setColor(QPalette::Window, t.Ground);
  palette.setColor(QPalette::WindowText, t.Ink);
  palette.setColor(QPalette::Base, t.Sheet);
  palette.setColor(QPalette::AlternateBase, t.Sunk);
  palette.setColor(QPalette::Text, t.Ink);
  palette.setColor(QPalette::PlaceholderText, t.Ink3);
  palette.setColor(QPalette::Button, t.Sunk);
  palette.setColor(QPalette::ButtonText, t.Ink);
  palette.setColor(QPalette::BrightText, t.OnAccent);
  palette.setColor(QPalette::ToolTipBase, t.Sheet);
  palette.setColor(QPalette::ToolTipText, t.Ink);
  palette.setColor(QPalette::Highlight, t.Sel);
  palette.setColor(QPalette::HighlightedText, t.Ink);
  palette.setColor(QPalette::Link, t.Accent);
  palette.setColor(QPalette::Disabled, QPalette::Base, t.Ground);
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, t.Ink3);
  }
  return palette;
}

// Columns of figures line up only where all digits are equally wide.
bool HasTabularFigures(const QFont& font) {
  const QFontMetricsF metrics(font);
  for (const QChar digit : QStringLiteral("123456789")) {
    if (!qFuzzyCompare(metrics.horizontalAdvance(digit), metrics.horizontalAdvance('0'))) {
      return false;
    }
  }
  return true;
}

// A family that is not installed gives way to the next one.
QFont TextFont(const QFont& ofDesktop) {
  QFont font = ofDesktop;
  font.setFamilies({"Open Sans", ofDesktop.family()});
  if (!HasTabularFigures(font)) {
    font.setFamilies({"DejaVu Sans"});
  }
  return font;
}

int& CurrentTextSize() {
  static int percent = 100;
  return percent;
}

// Qt knows the font of column heads by the class of their widget.
void ApplyFonts() {
  QApplication::setFont(Theme::Text(type::kText));
  QApplication::setFont(Theme::Text(type::kHead, QFont::DemiBold), "QHeaderView");
}

ThemeMode& CurrentMode() {
  static ThemeMode mode = ThemeMode::Light;
  return mode;
}

// What the desktop said last, and what the user wants.
ThemeMode& DesktopMode() {
  static ThemeMode mode = ThemeMode::Light;
  return mode;
}

ThemeChoice& CurrentChoice() {
  static ThemeChoice choice = ThemeChoice::Desktop;
  return choice;
}

bool IsDark() { return CurrentMode() == ThemeMode::Dark; }

QColor ColorOf(std::string_view hex) {
  return QColor('#' + QString::fromUtf8(hex.data(), static_cast<qsizetype>(hex.size())));
}

// A colour made for white paper on a dark ground: the hue stays, the lightness turns.
QColor WithLightness(const QColor& color, float saturation, float lightness) {
  float hue = 0;
  float full = 0;
  float ignored = 0;
  color.getHslF(&hue, &full, &ignored);
  return QColor::fromHslF(hue < 0 ? 0 : hue, full * saturation, lightness);
}

// The grounds by which tables tell good from hard, mark the first period and count.
QColor GroundToken(std::string_view hex) {
  const Tokens& t = Theme::Now();
  const struct {
    std::string_view Hex;
    const QColor& Token;
  } grounds[] = {{"CAFACB", t.GoodGround},
                 {"FACACA", t.HardGround},
                 {"FEF9D1", t.Start},
                 {"B7DA7F", t.Heat.at(2)}};
  for (const auto& ground : grounds) {
    if (ground.Hex == hex) {
      return ground.Token;
    }
  }
  return {};
}

// The mode that the environment asks for, whatever the desktop and the user say.
std::optional<ThemeMode> ForcedMode() {
  const QString wanted = qEnvironmentVariable("ORVEX_THEME");
  return wanted == "dark"    ? std::optional(ThemeMode::Dark)
         : wanted == "light" ? std::optional(ThemeMode::Light)
                             : std::nullopt;
}

}  // namespace

void Theme::Apply(QApplication& application) {
  const QPalette ofDesktop = QApplication::palette();
  QApplication::setStyle(new CalmStyle);
  QApplication::setFont(TextFont(QApplication::font()));
  ApplyFonts();
  if (const std::optional<ThemeMode> forced = ForcedMode()) {
    SetMode(*forced);
    return;
  }
  FollowDesktopScheme(application, ofDesktop, [](bool dark) {
    DesktopMode() = dark ? ThemeMode::Dark : ThemeMode::Light;
    Choose(CurrentChoice());
  });
}

void Theme::Choose(ThemeChoice choice) {
  CurrentChoice() = choice;
  const ThemeMode wanted = choice == ThemeChoice::Desktop ? DesktopMode()
                           : choice == ThemeChoice::Dark  ? ThemeMode::Dark
                                                          : ThemeMode::Light;
  SetMode(ForcedMode().value_or(wanted));
}

void Theme::SetMode(ThemeMode mode) {
  CurrentMode() = mode;
  QApplication::setPalette(PaletteOf(Now()));
}

ThemeMode Theme::Mode() { return CurrentMode(); }

QColor Theme::Background(std::string_view hex) {
  constexpr float kSaturation = 0.4F;
  constexpr float kLightness = 0.24F;
  if (hex.empty() || hex == core::kNeutralColor) {
    return {};
  }
  if (const QColor token = GroundToken(hex); token.isValid()) {
    return token;
  }
  const QColor color = ColorOf(hex);
  return IsDark() ? WithLightness(color, kSaturation, kLightness) : color;
}

QColor Theme::Foreground(std::string_view hex) {
  constexpr float kLightness = 0.72F;
  if (hex.empty()) {
    return {};
  }
  if (hex == core::kRed) {
    return Now().Now;
  }
  const QColor color = ColorOf(hex);
  return IsDark() ? WithLightness(color, 1, kLightness) : color;
}

QColor Theme::Red() { return Foreground(core::kRed); }
QColor Theme::Label() { return Now().Ink2; }
QColor Theme::Muted() { return Now().Ink2; }

void Theme::SetTextSize(int percent) {
  CurrentTextSize() = std::clamp(percent, core::kLeastTextSize, core::kMostTextSize);
  ApplyFonts();
}

int Theme::TextSize() { return CurrentTextSize(); }

QFont Theme::Text(double points, QFont::Weight weight) {
  QFont font = QApplication::font();
  font.setPointSizeF(points * TextSize() / kWhole);
  font.setWeight(weight);
  return font;
}

QFont Theme::Serif(double points) {
  QFont font = Text(points);
  font.setFamilies(QStringList{"Gentium Book Plus"} + font.families());
  return font;
}

QFont Theme::HeadingFont() {
  constexpr double kStep = 1.2;
  QFont font = QApplication::font();
  font.setPointSizeF(font.pointSizeF() * kStep);
  font.setWeight(QFont::DemiBold);
  return font;
}

QString Theme::Name(const QColor& color) { return color.name(QColor::HexRgb); }

}  // namespace orvex::ui
