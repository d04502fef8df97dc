#include "ui/main/top_bar.h"

#include <QAction>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>

#include "ui/base/icon.h"
#include "ui/base/keys.h"
#include "ui/base/named.h"
#include "ui/base/theme.h"
#include "ui/main/find_anyone_box.h"

namespace orvex::ui {

namespace {

constexpr int kHeight = 52;
constexpr int kFindWidth = 430;
constexpr int kLeastFind = 180;

}  // namespace

TopBar::TopBar(Workplace& place) : find_(new FindAnyoneBox(place)), line_(new QHBoxLayout(this)) {
  setObjectName("topBar");
  setFixedHeight(kHeight);
  find_->setMinimumWidth(kLeastFind);
  find_->setMaximumWidth(kFindWidth * Theme::TextSize() / 100);
  line_->setContentsMargins(space::kM, 0, space::kM, 0);
  line_->addWidget(find_, 1);
  line_->addStretch(1);
}

QPushButton* TopBar::AddButton(QAction* action, const QString& word, const char* icon) {
  QPushButton* button = MakeButton("", word);
  button->setObjectName(action->objectName() + "Button");
  button->setAccessibleName(word);
  button->setToolTip(WithKeys(word, action->shortcut()));
  button->setIcon(Icon(icon));
  button->setIconSize({kWordIcon, kWordIcon});
  button->setMinimumHeight(height::kField);
  button->setFont(Theme::Text(type::kText, QFont::DemiBold));
  connect(button, &QPushButton::clicked, action, &QAction::trigger);
  const auto follow = [action, button] { button->setEnabled(action->isEnabled()); };
  connect(action, &QAction::changed, button, follow);
  line_->addWidget(button);
  buttons_.push_back({button, word});
  return button;
}

void TopBar::SetNarrow(bool narrow) {
  for (const WordButton& button : buttons_) {
    button.Button->setText(narrow ? QString() : button.Word);
    button.Button->setMinimumWidth(0);
    button.Button->setMinimumWidth(button.Button->sizeHint().width() + 2 * space::kS);
  }
}

void TopBar::paintEvent(QPaintEvent* /*event*/) {
  const Tokens& t = Theme::Now();
  QPainter painter(this);
  painter.fillRect(rect(), t.Ground);
  painter.fillRect(QRect(0, height() - line::kHair, width(), line::kHair), t.Rule2);
}

}  // namespace orvex::ui
