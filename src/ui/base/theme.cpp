#include "ui/base/theme.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QProxyStyle>
#include <QStyleFactory>

#include "core/cell_colors.h"
#include "ui/base/desktop_scheme.h"

namespace orvex::ui {

namespace {

constexpr const char* kLabelColor = "006A94";
constexpr const char* kMutedColor = "5F6B76";

// Spaces of the 8-pixel grid under an otherwise plain style.
class CalmStyle final : public QProxyStyle {
 public:
  CalmStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    switch (metric) {
      case PM_LayoutLeftMargin:
      case PM_LayoutTopMargin:
      case PM_LayoutRightMargin:
      case PM_LayoutBottomMargin:
      case PM_LayoutHorizontalSpacing:
      case PM_LayoutVerticalSpacing:
        return kGrid;
      case PM_SplitterWidth:
        return kGrid;
      default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
  }
};

struct Shades {
  const char* Window;
  const char* Base;
  const char* Alternate;
  const char* Text;
  const char* Faint;
  const char* Button;
  const char* Highlight;
  const char* HighlightedText;
  const char* Link;
};

constexpr Shades kLight = {"#f4f5f7", "#ffffff", "#f8f9fb", "#1d242b", "#8a939c",
                           "#eceef1", "#1f6fb2", "#ffffff", "#1a5fa0"};
constexpr Shades kDark = {"#1e2227", "#272c33", "#2b3138", "#e4e7ea", "#7d8790",
                          "#2a3037", "#2f7fc4", "#ffffff", "#6cb3f0"};

QPalette PaletteOf(const Shades& shades) {
  QPalette palette;
  palette.setColor(QPalette::Window, shades.Window);
  palette.setColor(QPalette::WindowText, shades.Text);
  palette.setColor(QPalette::Base, shades.Base);
  palette.setColor(QPalette::AlternateBase, shades.Alternate);
  palette.setColor(QPalette::Text, shades.Text);
  palette.setColor(QPalette::PlaceholderText, shades.Faint);
  palette.setColor(QPalette::Button, shades.Button);
  palette.setColor(QPalette::ButtonText, shades.Text);
  palette.setColor(QPalette::BrightText, shades.HighlightedText);
  palette.setColor(QPalette::ToolTipBase, shades.Base);
  palette.setColor(QPalette::ToolTipText, shades.Text);
  palette.setColor(QPalette::Highlight, shades.Highlight);
  palette.setColor(QPalette::HighlightedText, shades.HighlightedText);
  palette.setColor(QPalette::Link, shades.Link);
  palette.setColor(QPalette::Disabled, QPalette::Base, shades.Window);
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, shades.Faint);
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

QFont TextFont(const QFont& ofDesktop) {
  QFont font = ofDesktop;
  if (!HasTabularFigures(font)) {
    font.setFamily("DejaVu Sans");
  }
  return font;
}

ThemeMode& CurrentMode() {
  static ThemeMode mode = ThemeMode::Light;
  return mode;
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

}  // namespace

void Theme::Apply(QApplication& application) {
  const QPalette ofDesktop = QApplication::palette();
  QApplication::setStyle(new CalmStyle);
  QApplication::setFont(TextFont(QApplication::font()));
  const QString wanted = qEnvironmentVariable("ORVEX_THEME");
  if (wanted == "dark" || wanted == "light") {
    SetMode(wanted == "dark" ? ThemeMode::Dark : ThemeMode::Light);
    return;
  }
  FollowDesktopScheme(application, ofDesktop,
                      [](bool dark) { SetMode(dark ? ThemeMode::Dark : ThemeMode::Light); });
}

void Theme::SetMode(ThemeMode mode) {
  CurrentMode() = mode;
  QApplication::setPalette(PaletteOf(IsDark() ? kDark : kLight));
}

ThemeMode Theme::Mode() { return CurrentMode(); }

QColor Theme::Background(std::string_view hex) {
  constexpr float kSaturation = 0.4F;
  constexpr float kLightness = 0.24F;
  if (hex.empty() || hex == core::kNeutralColor) {
    return {};
  }
  const QColor color = ColorOf(hex);
  return IsDark() ? WithLightness(color, kSaturation, kLightness) : color;
}

QColor Theme::Foreground(std::string_view hex) {
  constexpr float kLightness = 0.72F;
  if (hex.empty()) {
    return {};
  }
  const QColor color = ColorOf(hex);
  return IsDark() ? WithLightness(color, 1, kLightness) : color;
}

QColor Theme::Red() { return Foreground(core::kRed); }
QColor Theme::Label() { return Foreground(kLabelColor); }
QColor Theme::Muted() { return Foreground(kMutedColor); }

QFont Theme::HeadingFont() {
  constexpr double kStep = 1.2;
  QFont font = QApplication::font();
  font.setPointSizeF(font.pointSizeF() * kStep);
  font.setWeight(QFont::DemiBold);
  return font;
}

QString Theme::Name(const QColor& color) { return color.name(QColor::HexRgb); }

}  // namespace orvex::ui
