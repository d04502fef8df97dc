#include "ui/base/segments.h"

#include <QHBoxLayout>
#include <QPushButton>

#include "ui/base/calm_style.h"
#include "ui/base/theme.h"

namespace orvex::ui {

Segments::Segments(const std::vector<Part>& parts) : group_(new QButtonGroup(this)) {
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  int id = 0;
  for (const Part& part : parts) {
    auto* button = new QPushButton(part.Text);
    button->setObjectName(part.Name);
    button->setCheckable(true);
    button->setAutoDefault(false);
    button->setProperty(kSegmentButton, true);
    button->setFixedHeight(height::kSmallField);
    button->setMinimumWidth(0);
    const QString bare = QString(part.Text).remove('&');
    button->setFixedWidth(button->fontMetrics().horizontalAdvance(bare) + 2 * space::kS + 2);
    group_->addButton(button, id++);
    layout->addWidget(button);
  }
  // The keys come to the part that is chosen, however it came to be, and the arrows to the others.
  connect(group_, &QButtonGroup::idToggled, this, [this](int part, bool chosen) {
    group_->button(part)->setFocusPolicy(chosen ? Qt::StrongFocus : Qt::ClickFocus);
  });
  for (QAbstractButton* button : group_->buttons()) {
    button->setFocusPolicy(Qt::ClickFocus);
  }
  group_->buttons().constFirst()->setChecked(true);
  connect(group_, &QButtonGroup::idToggled, this, [this](int part, bool chosen) {
    if (chosen) {
      emit ChosenChanged(part);
    }
  });
}

void Segments::Choose(int part) { group_->button(part)->setChecked(true); }

}  // namespace orvex::ui
