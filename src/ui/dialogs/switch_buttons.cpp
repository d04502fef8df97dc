#include "ui/dialogs/switch_buttons.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPushButton>

#include "ui/base/calm_style.h"
#include "ui/base/named.h"
#include "ui/base/theme.h"

namespace orvex::ui {

QButtonGroup* MakeSwitch(QObject* owner, const std::vector<SwitchChoice>& choices) {
  auto* group = new QButtonGroup(owner);
  for (const SwitchChoice& choice : choices) {
    QPushButton* button = MakeButton(choice.Name, choice.Text);
    button->setCheckable(true);
    button->setProperty(kSegmentButton, true);
    const QString bare = QString(choice.Text).remove('&');
    button->setFixedWidth(button->fontMetrics().horizontalAdvance(bare) + space::kXl);
    button->setFixedHeight(height::kSmallField);
    group->addButton(button, static_cast<int>(group->buttons().size()));
  }
  group->button(0)->setChecked(true);
  return group;
}

QHBoxLayout* SwitchLayout(const QButtonGroup& choices) {
  auto* row = new QHBoxLayout;
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  for (QAbstractButton* button : choices.buttons()) {
    row->addWidget(button);
  }
  row->addStretch();
  return row;
}

}  // namespace orvex::ui
