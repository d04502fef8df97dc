// The style of all windows: ruled heads of tables, a bar beside the chosen row, flat buttons, a
// ring around what has the keys. Combo boxes, scroll bars and menus stay those of Fusion.
#pragma once

#include <QProxyStyle>

namespace orvex::ui {

// Properties by which a button asks for another look.
inline constexpr const char* kFilledButton = "filled";    // the one main action of a page
inline constexpr const char* kSegmentButton = "segment";  // one of a row of which one is chosen

// Property of a field whose text was refused.
inline constexpr const char* kRefusedField = "refused";

class CalmStyle final : public QProxyStyle {
 public:
  CalmStyle();

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override;
  QRect subElementRect(SubElement element, const QStyleOption* option,
                       const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* result) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace orvex::ui
