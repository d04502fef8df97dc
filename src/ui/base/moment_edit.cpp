#include "ui/base/moment_edit.h"

#include <QAction>
#include <QCalendarWidget>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "ui/base/icon.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

// Room for what the longest text of such a field takes.
void WidenFor(QLineEdit& field, const QString& text) {
  constexpr int kFrameAndButton = 6 * kGrid;
  field.setMinimumWidth(field.fontMetrics().horizontalAdvance(text) + kFrameAndButton);
  field.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

}  // namespace

MomentEdit::MomentEdit(const QString& objectName) {
  setObjectName(objectName);
  connect(this, &QLineEdit::textChanged, this, &MomentEdit::Follow);
}

void MomentEdit::Follow() {
  const Reading reading = Read();
  understood_ = reading.Understood;
  words_ = Shown(reading.Words);
  if (understood_) {
    setPalette({});
  } else {
    QPalette refused = palette();
    refused.setColor(QPalette::Text, Theme::Red());
    setPalette(refused);
  }
  setAccessibleDescription(words_);
  emit Changed();
}

QLabel* MomentEdit::MakeEcho() {
  auto* echo = new QLabel;
  echo->setObjectName(objectName() + "Echo");
  echo->setTextFormat(Qt::PlainText);
  echo->setWordWrap(true);
  connect(this, &MomentEdit::Changed, echo, [this, echo] { ShowEcho(*echo); });
  ShowEcho(*echo);
  return echo;
}

void MomentEdit::ShowEcho(QLabel& echo) const {
  echo.setText(words_);
  QPalette colors;
  if (!understood_) {
    colors.setColor(QPalette::WindowText, Theme::Red());
  }
  echo.setPalette(colors);
}

void MomentEdit::Step(int steps) {
  const auto stepped =
      Stepped(Typed(text()), static_cast<std::size_t>(std::max(0, cursorPosition())), steps);
  if (stepped && !isReadOnly()) {
    setText(Shown(stepped->Text));
    setCursorPosition(static_cast<int>(stepped->Begin));
  }
}

void MomentEdit::keyPressEvent(QKeyEvent* event) {
  const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  if (plain && (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)) {
    Step(event->key() == Qt::Key_Up ? 1 : -1);
    return;
  }
  QLineEdit::keyPressEvent(event);
}

// Who turns the wheel to scroll a page changes nothing in it.
void MomentEdit::wheelEvent(QWheelEvent* event) {
  const int turn = event->angleDelta().y();
  if (!hasFocus() || turn == 0) {
    event->ignore();
    return;
  }
  Step(turn > 0 ? 1 : -1);
  event->accept();
}

DateEdit::DateEdit(const QString& objectName) : MomentEdit(objectName) {
  WidenFor(*this, "28 Sept 2000");
  QAction* calendar = addAction(Icon("calendar", IconInk::Quiet), QLineEdit::TrailingPosition);
  calendar->setObjectName("calendar");
  calendar->setToolTip(tr("Calendar (Alt+Down)"));
  connect(calendar, &QAction::triggered, this, &DateEdit::OpenCalendar);
  Follow();
}

MomentEdit::Reading DateEdit::Read() {
  core::TypedReading<core::DateTime> reading = core::ReadTypedDate(Typed(text()));
  date_ = reading.Understood;
  return {date_.has_value(), std::move(reading.Words)};
}

std::optional<core::SteppedText> DateEdit::Stepped(const std::string& text, std::size_t cursor,
                                                   int steps) const {
  return core::StepTypedDate(text, cursor, steps);
}

void DateEdit::SetDate(core::DateTime date) { setText(Shown(core::DateFieldText(date))); }

void DateEdit::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Down && event->modifiers() == Qt::AltModifier) {
    OpenCalendar();
    return;
  }
  MomentEdit::keyPressEvent(event);
}

void DateEdit::OpenCalendar() {
  constexpr int kFirstYear = 100;
  constexpr int kLastYear = 9999;
  auto* popup = new QFrame(this, Qt::Popup);
  popup->setObjectName("calendarPopup");
  popup->setAttribute(Qt::WA_DeleteOnClose);
  popup->setFrameShape(QFrame::StyledPanel);
  auto* calendar = new QCalendarWidget(popup);
  calendar->setDateRange(QDate(kFirstYear, 1, 1), QDate(kLastYear, 12, 31));
  calendar->setSelectedDate(date_ ? ToField(*date_).date() : QDate::currentDate());
  auto* layout = new QVBoxLayout(popup);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(calendar);
  const auto take = [this, popup](const QDate& day) {
    SetDate(FromField(QDateTime(day, QTime(0, 0), Qt::UTC)));
    popup->close();
    setFocus(Qt::PopupFocusReason);
    emit DayPicked();
  };
  connect(calendar, &QCalendarWidget::clicked, this, take);
  connect(calendar, &QCalendarWidget::activated, this, take);
  popup->move(mapToGlobal(QPoint(0, height())));
  popup->show();
  calendar->setFocus();
}

TimeEdit::TimeEdit(const QString& objectName, Shows shows) : MomentEdit(objectName), shows_(shows) {
  WidenFor(*this, "00:00:00 am");
  Follow();
}

MomentEdit::Reading TimeEdit::Read() {
  core::TypedReading<core::TimeOfDay> reading = core::ReadTypedTime(Typed(text()));
  time_ = reading.Understood;
  return {time_.has_value(), std::move(reading.Words)};
}

std::optional<core::SteppedText> TimeEdit::Stepped(const std::string& text, std::size_t cursor,
                                                   int steps) const {
  return core::StepTypedTime(text, cursor, steps, shows_ == Shows::Seconds);
}

void TimeEdit::SetTime(core::TimeOfDay time) {
  setText(
      Shown(shows_ == Shows::Seconds ? core::TimeFieldText(time) : core::MinutesFieldText(time)));
}

}  // namespace orvex::ui
