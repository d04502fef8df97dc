#include "ui/transit/month_picker.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>

#include "transit/month_name.h"
#include "transit/monthly_grid.h"
#include "ui/base/calm_style.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr int kMonthsOfYear = 12;
constexpr int kAcross = 3;

QString NameOfMonth(int month) {
  return Shown(transit::MonthName(core::MakeDateTime({transit::kFirstGridYear, month, 1}).value()));
}

}  // namespace

MonthPicker::MonthPicker(int month, int year, QWidget& parent)
    : QFrame(&parent, Qt::Popup),
      years_(Named(new QSpinBox, "years")),
      months_(new QButtonGroup(this)) {
  setObjectName("monthPicker");
  setAttribute(Qt::WA_DeleteOnClose);
  setFrameShape(QFrame::StyledPanel);
  years_->setAccessibleName(tr("Year"));
  years_->setRange(transit::kFirstGridYear, transit::kLastGridYear);
  years_->setValue(year);
  years_->installEventFilter(this);
  Build(month);
}

void MonthPicker::Build(int month) {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(space::kM, space::kM, space::kM, space::kM);
  grid->setSpacing(space::kXs);
  grid->addWidget(years_, 0, 0, 1, kAcross);
  for (int each = 1; each <= kMonthsOfYear; ++each) {
    QPushButton* button = MakeButton("month", NameOfMonth(each));
    button->setCheckable(true);
    button->setFlat(true);
    button->setMinimumHeight(height::kField);
    button->installEventFilter(this);
    months_->addButton(button, each);
    grid->addWidget(button, 1 + (each - 1) / kAcross, (each - 1) % kAcross);
  }
  months_->button(month)->setChecked(true);
  connect(months_, &QButtonGroup::idClicked, this, &MonthPicker::Pick);
}

void MonthPicker::OpenUnder(const QWidget& button) {
  adjustSize();
  QPoint at = button.mapToGlobal(QPoint(0, button.height() + 2));
  if (const QScreen* on = button.screen()) {
    at.setX(std::min(at.x(), on->availableGeometry().right() - width()));
  }
  move(at);
  show();
  months_->checkedButton()->setFocus(Qt::PopupFocusReason);
}

void MonthPicker::Step(int by) {
  QAbstractButton* next =
      months_->button(months_->id(qobject_cast<QAbstractButton*>(focusWidget())) + by);
  if (next != nullptr) {
    next->setFocus(Qt::TabFocusReason);
  }
}

void MonthPicker::Pick(int month) {
  years_->interpretText();
  emit Picked(month, years_->value());
  close();
}

bool MonthPicker::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) {
    return QFrame::eventFilter(watched, event);
  }
  const int key = static_cast<QKeyEvent*>(event)->key();
  const bool enters = key == Qt::Key_Return || key == Qt::Key_Enter;
  if (key == Qt::Key_PageUp || key == Qt::Key_PageDown) {
    years_->stepBy(key == Qt::Key_PageUp ? -1 : 1);
    return true;
  }
  if (watched == years_) {
    if (enters) {
      Pick(months_->checkedId());
    }
    return enters;
  }
  const std::pair<int, int> steps[] = {
      {Qt::Key_Left, -1}, {Qt::Key_Right, 1}, {Qt::Key_Up, -kAcross}, {Qt::Key_Down, kAcross}};
  for (const auto& [arrow, by] : steps) {
    if (key == arrow) {
      Step(by);
      return true;
    }
  }
  if (enters) {
    Pick(months_->id(qobject_cast<QAbstractButton*>(watched)));
    return true;
  }
  return QFrame::eventFilter(watched, event);
}

}  // namespace orvex::ui
