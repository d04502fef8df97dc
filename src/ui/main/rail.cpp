#include "ui/main/rail.h"

#include <QAction>
#include <QPainter>
#include <QStyleOptionToolButton>
#include <QVBoxLayout>

#include "ui/base/icon.h"
#include "ui/base/keys.h"
#include "ui/base/named.h"
#include "ui/base/scaled.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr int kRailWidth = 76;
constexpr int kButtonHeight = 58;
constexpr int kHeadHeight = 52;

QFont WordFont(bool chosen) {
  return Theme::Text(type::kHead, chosen ? QFont::DemiBold : QFont::Normal);
}

}  // namespace

RailButton::RailButton(QAction* action, const QString& word, const char* icon)
    : word_(word), icon_(icon) {
  setObjectName(action->objectName() + "Button");
  setDefaultAction(action);
  setAccessibleName(word);
  setToolTip(WithKeys(word, action->shortcut()));
  setFocusPolicy(Qt::TabFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

QSize RailButton::sizeHint() const { return {Scaled(kRailWidth), Scaled(kButtonHeight)}; }

QSize RailButton::minimumSizeHint() const {
  return {Scaled(kRailWidth), kRailIcon + QFontMetrics(WordFont(true)).height() + space::kS};
}

void RailButton::paintEvent(QPaintEvent* /*event*/) {
  const Tokens& t = Theme::Now();
  QPainter painter(this);
  if (isChecked()) {
    painter.fillRect(rect(), t.Sheet);
    painter.fillRect(QRect(0, 0, line::kChosen, height()), t.Accent);
  } else if (underMouse()) {
    painter.fillRect(rect().adjusted(0, 0, -1, 0), t.Ground);
  }
  painter.setFont(WordFont(isChecked()));
  const int word = painter.fontMetrics().height();
  const int top = (height() - kRailIcon - space::kXs - word) / 2;
  Icon(icon_, isChecked() ? IconInk::Text : IconInk::Quiet)
      .paint(&painter, QRect((width() - kRailIcon) / 2, top, kRailIcon, kRailIcon));
  painter.setPen(isChecked() ? t.Ink : t.Ink2);
  painter.drawText(QRect(0, top + kRailIcon + space::kXs, width(), word), Qt::AlignCenter, word_);
  if (hasFocus()) {
    painter.setPen(QPen(t.Accent, line::kFocus));
    painter.drawRect(rect().adjusted(1, 1, -2, -1));
  }
}

Rail::Rail()
    : menu_(Named(new QToolButton, "menuButton")), pages_(new QVBoxLayout), foot_(new QVBoxLayout) {
  setObjectName("rail");
  menu_->setIcon(Icon("menu", IconInk::Quiet));
  menu_->setIconSize({kRailIcon, kRailIcon});
  menu_->setAutoRaise(true);
  menu_->setFixedSize(height::kField + space::kS, height::kField);
  menu_->setFocusPolicy(Qt::TabFocus);
  auto* head = new QHBoxLayout;
  head->addWidget(menu_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addLayout(head);
  layout->addSpacing(kHeadHeight - height::kField - 2 * space::kS);
  for (QVBoxLayout* part : {pages_, foot_}) {
    part->setSpacing(0);
  }
  head->setContentsMargins(0, space::kS + 2, 0, space::kS - 2);
  layout->addLayout(pages_);
  layout->addStretch(1);
  layout->addLayout(foot_);
  setFixedWidth(Scaled(kRailWidth));
}

void Rail::Add(QAction* action, const QString& word, const char* icon) {
  pages_->addWidget(new RailButton(action, word, icon));
}

void Rail::AddAtFoot(QAction* action, const QString& word, const char* icon) {
  foot_->addWidget(new RailButton(action, word, icon));
}

void Rail::paintEvent(QPaintEvent* /*event*/) {
  const Tokens& t = Theme::Now();
  QPainter painter(this);
  painter.fillRect(rect(), t.Bar);
  painter.fillRect(QRect(width() - line::kHair, 0, line::kHair, height()), t.Rule2);
}

}  // namespace orvex::ui
