#include "ui/main/find_anyone_box.h"

#include <QAction>
#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>

#include "ui/base/icon.h"
#include "ui/base/keys.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/main/find_anyone_popup.h"

namespace orvex::ui {

namespace {

constexpr int kPause = 30;  // milliseconds
constexpr std::size_t kMost = 50;

bool IsEnter(int key) { return key == Qt::Key_Return || key == Qt::Key_Enter; }

}  // namespace

FindAnyoneBox::FindAnyoneBox(Workplace& place) : place_(place) {
  setObjectName("findAnyone");
  setAccessibleName(tr("Find anyone"));
  setPlaceholderText(tr("Find anyone"));
  setToolTip(WithKeys(tr("Find anyone in all groups"), KeysOf(kMainWindow, "findAnyone")));
  addAction(Icon("search", IconInk::Quiet), QLineEdit::LeadingPosition);
  setFixedHeight(height::kField);
  pause_.setSingleShot(true);
  pause_.setInterval(kPause);
  connect(&pause_, &QTimer::timeout, this, &FindAnyoneBox::Search);
  connect(this, &QLineEdit::textEdited, &pause_, qOverload<>(&QTimer::start));
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget* from, QWidget* to) {
    if (to == this && from != this) {
      before_ = from;
    }
  });
  setTextMargins(0, 0, HintBox().width() + space::kS, 0);
}

FindAnyonePopup& FindAnyoneBox::Popup() {
  if (popup_ == nullptr) {
    popup_ = new FindAnyonePopup(window());
    connect(popup_, &FindAnyonePopup::Clicked, this, [this] { Act({}); });
  }
  return *popup_;
}

bool FindAnyoneBox::IsOpen() const { return popup_ != nullptr && popup_->isVisible(); }

void FindAnyoneBox::Begin() {
  setFocus(Qt::ShortcutFocusReason);
  selectAll();
}

void FindAnyoneBox::TakeKeysOf(QWidget& list) { list.installEventFilter(this); }

// A letter or a figure; a blank chooses in lists.
bool FindAnyoneBox::eventFilter(QObject* watched, QEvent* event) {
  if (watched != this && event->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool plain = (key->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
    const QString text = key->text();
    if (plain && !text.isEmpty() && text.front().isPrint() && !text.front().isSpace()) {
      BeginWith(text);
      return true;
    }
  }
  return QLineEdit::eventFilter(watched, event);
}

void FindAnyoneBox::BeginWith(const QString& typed) {
  setFocus(Qt::ShortcutFocusReason);
  setText(typed);
  pause_.start();
}

// The clients are read when a search begins and let go when the field is left: nobody else has to
// tell of a change.
void FindAnyoneBox::Search() {
  pause_.stop();
  if (text().trimmed().isEmpty() || !hasFocus()) {
    Popup().hide();
    return;
  }
  if (!search_) {
    search_ = std::make_unique<practice::FindAnyone>(place_.Session);
  }
  Popup().ShowFound(search_->Find(Typed(text()), kMost), text());
  Popup().DropBelow(*this);
}

// Back to where the keys were.
void FindAnyoneBox::Leave() {
  clear();
  Popup().hide();
  if (before_ && before_->isVisible()) {
    before_->setFocus(Qt::OtherFocusReason);
  }
}

// What a key meant is what stands in the field, also where the pause is not over.
void FindAnyoneBox::Act(Qt::KeyboardModifiers modifiers) {
  if (pause_.isActive()) {
    Search();
  }
  if (!IsOpen()) {
    return;
  }
  const FindAnyonePopup::Mark mark = popup_->Marked();
  const std::int32_t client = popup_->MarkedClient();
  const QString name = text().trimmed();
  Leave();
  if (mark != FindAnyonePopup::Mark::Client) {
    emit NewWanted(name, mark == FindAnyonePopup::Mark::NewQuery);
  } else if (modifiers.testFlag(Qt::ControlModifier)) {
    emit EditWanted(client);
  } else {
    emit OpenWanted(client);
  }
}

void FindAnyoneBox::ShowMarked() {
  const std::int32_t client = popup_->MarkedClient();
  if (client != 0) {
    Leave();
    emit ShowWanted(client);
  }
}

// The keys of the window wait while somebody is being looked for.
bool FindAnyoneBox::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool own =
        key->key() == Qt::Key_Escape || key->key() == Qt::Key_F2 || IsEnter(key->key());
    if (own && !text().isEmpty()) {
      event->accept();
      return true;
    }
  }
  return QLineEdit::event(event);
}

void FindAnyoneBox::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (IsEnter(key)) {
    Act(event->modifiers());
  } else if (key == Qt::Key_Escape) {
    Leave();
  } else if (key == Qt::Key_F2 && IsOpen()) {
    ShowMarked();
  } else if (key == Qt::Key_Down || key == Qt::Key_Up) {
    if (pause_.isActive() || !IsOpen()) {
      Search();
    } else {
      popup_->MoveMark(key == Qt::Key_Down ? 1 : -1);
    }
  } else {
    QLineEdit::keyPressEvent(event);
  }
}

void FindAnyoneBox::focusInEvent(QFocusEvent* event) {
  if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) {
    search_.reset();
  }
  QLineEdit::focusInEvent(event);
}

void FindAnyoneBox::focusOutEvent(QFocusEvent* event) {
  if (IsOpen()) {
    popup_->hide();
  }
  QLineEdit::focusOutEvent(event);
}

// The key that leads here, and once it has, the one that leads back.
QString FindAnyoneBox::Hint() const {
  return hasFocus() ? tr("Esc")
                    : KeysOf(kMainWindow, "findAnyone").toString(QKeySequence::NativeText);
}

QRect FindAnyoneBox::HintBox() const {
  const QFontMetrics metrics(Theme::Text(type::kHead));
  const QSize size(metrics.horizontalAdvance(Hint()) + 2 * space::kXs + 2,
                   metrics.height() + space::kXs);
  return {QPoint(width() - size.width() - space::kS, (height() - size.height()) / 2), size};
}

void FindAnyoneBox::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  const Tokens& t = Theme::Now();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(t.Rule2);
  painter.setBrush(t.Sunk);
  painter.drawRoundedRect(QRectF(HintBox()).adjusted(0.5, 0.5, -0.5, -0.5), radius::kChip,
                          radius::kChip);
  painter.setFont(Theme::Text(type::kHead));
  painter.setPen(t.Ink3);
  painter.drawText(HintBox(), Qt::AlignCenter, Hint());
}

}  // namespace orvex::ui
