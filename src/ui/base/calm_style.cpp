#include "ui/base/calm_style.h"

#include <QAbstractItemView>
#include <QHeaderView>
#include <QPainter>
#include <QPlainTextEdit>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTableView>

#include "ui/base/cell_painting.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

bool Has(const QWidget* widget, const char* property) {
  return widget != nullptr && widget->property(property).toBool();
}

// A frame of whole pixels with round corners.
void DrawBox(QPainter& painter, const QRect& rect, const QColor& ground, const QColor& edge,
             int width) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(width > 0 ? QPen(edge, width) : QPen(Qt::NoPen));
  painter.setBrush(ground.isValid() ? QBrush(ground) : QBrush(Qt::NoBrush));
  const double inset = width / 2.0;
  painter.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), radius::kField,
                          radius::kField);
  painter.restore();
}

// The rule above, the hairline below; the head of a table with the keys says so by its rule.
void DrawHeadSection(QPainter& painter, const QStyleOption& option, const QWidget* widget) {
  const Tokens& t = Theme::Now();
  painter.fillRect(option.rect, t.Sheet);
  const auto* header = qobject_cast<const QHeaderView*>(widget);
  if (header != nullptr && header->orientation() == Qt::Vertical) {
    return;
  }
  const QWidget* table = header != nullptr ? header->parentWidget() : nullptr;
  QRect rule = option.rect;
  rule.setHeight(line::kHead);
  painter.fillRect(rule, table != nullptr && table->hasFocus() ? t.Accent : t.HeadRule);
  QRect hair = option.rect;
  hair.setTop(hair.bottom());
  painter.fillRect(hair, t.Rule2);
}

// The ground of a row and the bar that marks the chosen one at its first cell.
void DrawRowGround(QPainter& painter, const QStyleOptionViewItem& option) {
  const Tokens& t = Theme::Now();
  const bool chosen = option.state.testFlag(QStyle::State_Selected);
  if (chosen) {
    painter.fillRect(option.rect, t.Sel);
  } else if (option.backgroundBrush.style() != Qt::NoBrush) {
    painter.fillRect(option.rect, option.backgroundBrush);
  }
  // Tables do not say where in its row a cell stands.
  const auto* table = qobject_cast<const QTableView*>(option.widget);
  const bool first = table != nullptr
                         ? table->horizontalHeader()->visualIndex(option.index.column()) == 0
                         : option.viewItemPosition != QStyleOptionViewItem::Middle &&
                               option.viewItemPosition != QStyleOptionViewItem::End;
  if (chosen && first) {
    QRect bar = option.rect;
    bar.setWidth(line::kChosen);
    painter.fillRect(bar, t.Accent);
  }
}

QColor ButtonGround(const QStyleOption& option, bool filled) {
  const Tokens& t = Theme::Now();
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
  const bool byDefault =
      button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton);
  if (filled) {
    return t.Accent;
  }
  if (byDefault || (option.state & (QStyle::State_On | QStyle::State_Sunken)) != 0) {
    return t.Sel;
  }
  const QStyle::State over = QStyle::State_Enabled | QStyle::State_MouseOver;
  return (option.state & over) == over ? t.Sunk : t.Sheet;
}

void DrawButton(QPainter& painter, const QStyleOption& option, const QWidget* widget) {
  const Tokens& t = Theme::Now();
  const QStyle::State state = option.state;
  const bool enabled = state.testFlag(QStyle::State_Enabled);
  const bool filled = enabled && Has(widget, kFilledButton);
  const bool focus = state.testFlag(QStyle::State_HasFocus);
  DrawBox(painter, option.rect, ButtonGround(option, filled),
          focus || filled ? t.Accent
          : enabled       ? t.Edge
                          : t.Rule2,
          focus ? line::kFocus : line::kHair);
  if (focus && filled) {
    DrawBox(painter, option.rect.adjusted(2, 2, -2, -2), {}, t.OnAccent, line::kHair);
  }
  if (state.testFlag(QStyle::State_On) && Has(widget, kSegmentButton)) {
    painter.fillRect(QRect(option.rect.left() + 1, option.rect.bottom() - line::kHead,
                           option.rect.width() - 2, line::kHead),
                     t.Accent);
  }
}

void DrawToolButton(QPainter& painter, const QStyleOption& option) {
  const Tokens& t = Theme::Now();
  const QStyle::State state = option.state;
  const bool over =
      state.testFlag(QStyle::State_Enabled) && state.testFlag(QStyle::State_MouseOver);
  const bool on = state.testFlag(QStyle::State_On) || state.testFlag(QStyle::State_Sunken);
  if (on || over) {
    DrawBox(painter, option.rect, on ? t.Sel : t.Sheet, t.Rule2, over && !on ? line::kHair : 0);
  }
  if (state.testFlag(QStyle::State_HasFocus)) {
    DrawBox(painter, option.rect, {}, t.Accent, line::kFocus);
  }
}

void DrawField(QPainter& painter, const QStyleOption& option, const QWidget* widget) {
  const Tokens& t = Theme::Now();
  const QStyle::State state = option.state;
  const bool enabled = state.testFlag(QStyle::State_Enabled);
  const bool focus = enabled && state.testFlag(QStyle::State_HasFocus);
  DrawBox(painter, option.rect, enabled ? t.Sheet : t.Ground, focus ? t.Accent : t.Edge,
          focus ? line::kFocus : line::kHair);
  if (Has(widget, kRefusedField)) {
    DrawBox(painter, option.rect, {}, t.Now, line::kHair);
    painter.fillRect(QRect(option.rect.left(), option.rect.top() + 1, line::kChosen + 1,
                           option.rect.height() - 2),
                     t.Now);
  }
}

// The mark of a radio button or a check box: an edge that stands out on every ground, and what is
// chosen filled.
void DrawIndicator(QPainter& painter, const QStyleOption& option, bool round) {
  const Tokens& t = Theme::Now();
  const bool enabled = option.state.testFlag(QStyle::State_Enabled);
  const bool on = option.state.testFlag(QStyle::State_On);
  const QColor mark = enabled ? t.Accent : t.Ink3;
  const int side = std::min(option.rect.width(), option.rect.height());
  QRectF box(0, 0, side - 1, side - 1);
  box.moveCenter(QRectF(option.rect).center());
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(on || option.state.testFlag(QStyle::State_HasFocus) ? mark : t.Edge, 1));
  painter.setBrush(on && !round ? mark : enabled ? t.Sheet : t.Ground);
  const double corner = round ? side / 2.0 : radius::kChip;
  painter.drawRoundedRect(box, corner, corner);
  if (on && round) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(mark);
    painter.drawEllipse(box.center(), side / 4.0, side / 4.0);
  } else if (on) {
    painter.setPen(QPen(t.OnAccent, 1.6));
    painter.drawPolyline(QPolygonF{{QPointF(box.left() + side * 0.22, box.center().y()),
                                    QPointF(box.left() + side * 0.42, box.bottom() - side * 0.24),
                                    QPointF(box.right() - side * 0.18, box.top() + side * 0.24)}});
  }
  painter.restore();
}

}  // namespace

CalmStyle::CalmStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}

int CalmStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                           const QWidget* widget) const {
  switch (metric) {
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
    case PM_SplitterWidth:
      return space::kS;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

QSize CalmStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
  QSize wanted = QProxyStyle::sizeFromContents(type, option, size, widget);
  if (type == CT_HeaderSection) {
    wanted.setHeight(std::max(wanted.height(), option->fontMetrics.height() + space::kS));
  }
  if (type == CT_LineEdit) {
    wanted.setHeight(std::max(wanted.height(), height::kSmallField));
  }
  return wanted;
}

// Texts of fields keep some air from their frames.
QRect CalmStyle::subElementRect(SubElement element, const QStyleOption* option,
                                const QWidget* widget) const {
  const QRect rect = QProxyStyle::subElementRect(element, option, widget);
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
  return element == SE_LineEditContents && frame != nullptr && frame->lineWidth > 0
             ? rect.adjusted(space::kXs, 0, -space::kXs, 0)
             : rect;
}

int CalmStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* result) const {
  // Popups are there at once.
  if (hint == SH_Widget_Animation_Duration || hint == SH_Widget_Animate) {
    return 0;
  }
  return QProxyStyle::styleHint(hint, option, widget, result);
}

void CalmStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
  if (element == CE_HeaderSection) {
    DrawHeadSection(*painter, *option, widget);
    return;
  }
  if (element == CE_HeaderEmptyArea) {
    DrawHeadSection(*painter, *option, widget);
    return;
  }
  // A caption begins where the texts of its column do.
  if (const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option);
      element == CE_HeaderLabel && header != nullptr &&
      header->textAlignment.testFlag(Qt::AlignLeft)) {
    QStyleOptionHeader moved = *header;
    moved.rect.translate(kCellPad - space::kXs / 2, 0);
    QProxyStyle::drawControl(element, &moved, painter, widget);
    return;
  }
  if (element == CE_PushButtonLabel && Has(widget, kFilledButton)) {
    QStyleOptionButton filled = *qstyleoption_cast<const QStyleOptionButton*>(option);
    filled.palette.setColor(QPalette::ButtonText, Theme::Now().OnAccent);
    QProxyStyle::drawControl(element, &filled, painter, widget);
    return;
  }
  if (element == CE_ProgressBarContents) {
    QStyleOptionProgressBar bar = *qstyleoption_cast<const QStyleOptionProgressBar*>(option);
    bar.palette.setColor(QPalette::Highlight, Theme::Now().Accent);
    QProxyStyle::drawControl(element, &bar, painter, widget);
    return;
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

void CalmStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const {
  switch (element) {
    case PE_PanelItemViewItem:
      if (const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option)) {
        DrawRowGround(*painter, *item);
        return;
      }
      break;
    case PE_PanelItemViewRow:
      return;  // the cells draw their own ground
    case PE_PanelButtonCommand: {
      const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
      if (button != nullptr && button->features.testFlag(QStyleOptionButton::Flat)) {
        DrawToolButton(*painter, *option);
      } else {
        DrawButton(*painter, *option, widget);
      }
      return;
    }
    case PE_IndicatorRadioButton:
      DrawIndicator(*painter, *option, true);
      return;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
      DrawIndicator(*painter, *option, false);
      return;
    case PE_PanelButtonTool:
      DrawToolButton(*painter, *option);
      return;
    case PE_PanelLineEdit:
      if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
          frame != nullptr && frame->lineWidth > 0) {
        DrawField(*painter, *option, widget);
        return;
      }
      break;
    case PE_Frame:
      if (qobject_cast<const QPlainTextEdit*>(widget) != nullptr) {
        DrawBox(*painter, option->rect, {}, Theme::Now().Edge, line::kHair);
        return;
      }
      break;
    case PE_FrameFocusRect:
      // Buttons and fields draw their own ring, tables mark their head.
      if (widget != nullptr &&
          (widget->inherits("QPushButton") || widget->inherits("QToolButton") ||
           qobject_cast<const QAbstractItemView*>(widget) != nullptr)) {
        return;
      }
      DrawBox(*painter, option->rect, {}, Theme::Now().Accent, line::kFocus);
      return;
    default:
      break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

}  // namespace orvex::ui
