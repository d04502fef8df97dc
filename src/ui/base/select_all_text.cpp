#include "ui/base/select_all_text.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QFocusEvent>
#include <QHash>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>

namespace orvex::ui {

namespace {

bool HasSelection(const QWidget& field) {
  if (const auto* text = qobject_cast<const QPlainTextEdit*>(&field)) {
    return text->textCursor().hasSelection();
  }
  const auto* line = qobject_cast<const QLineEdit*>(&field);
  return line != nullptr && line->hasSelectedText();
}

// A press on text that is still marked would begin to drag it and unmark it when it ends.
void Unmark(QWidget& field) {
  if (auto* text = qobject_cast<QPlainTextEdit*>(&field)) {
    QTextCursor cursor = text->textCursor();
    cursor.clearSelection();
    text->setTextCursor(cursor);
  }
}

class TextMarker final : public QObject {
 public:
  explicit TextMarker(QWidget& window) : QObject(&window) {
    for (auto* line : window.findChildren<QLineEdit*>()) {
      // A date marks the part under the cursor; the line of a spin box gets its focus from the box.
      if (qobject_cast<QDateTimeEdit*>(line->parentWidget()) == nullptr) {
        Watch(*line, line->focusProxy() == nullptr ? *line : *line->focusProxy());
        Watch(*line, *line);
      }
    }
    for (auto* text : window.findChildren<QPlainTextEdit*>()) {
      Watch(*text, *text);
      Watch(*text, *text->viewport());
    }
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    QWidget& field = *fields_.value(watched);
    if (event->type() == QEvent::FocusIn) {
      Enter(field, static_cast<QFocusEvent*>(event)->reason());
    } else if (event->type() == QEvent::MouseButtonRelease && clicked_ == &field) {
      clicked_ = nullptr;
      if (!HasSelection(field)) {
        SelectAllText(field);
      }
    }
    return false;
  }

 private:
  void Watch(QWidget& field, QWidget& watched) {
    fields_.insert(&watched, &field);
    watched.installEventFilter(this);
  }

  void Enter(QWidget& field, Qt::FocusReason reason) {
    const bool isBack = last_ == &field &&
                        (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason);
    last_ = &field;
    clicked_ = reason == Qt::MouseFocusReason ? &field : nullptr;
    if (clicked_ != nullptr) {
      Unmark(field);
    } else if (!isBack) {
      SelectAllText(field);
    }
  }

  QHash<QObject*, QWidget*> fields_;
  QWidget* last_ = nullptr;
  QWidget* clicked_ = nullptr;  // got the focus by a press that is not over yet
};

}  // namespace

void SelectAllText(QWidget& field) {
  if (auto* line = qobject_cast<QLineEdit*>(&field)) {
    line->selectAll();
  } else if (auto* text = qobject_cast<QPlainTextEdit*>(&field)) {
    text->selectAll();
  } else if (auto* box = qobject_cast<QSpinBox*>(&field)) {
    box->selectAll();
  } else if (auto* list = qobject_cast<QComboBox*>(&field); list && list->lineEdit()) {
    list->lineEdit()->selectAll();
  }
}

void SelectAllTextOnFocus(QWidget& window) { new TextMarker(window); }

}  // namespace orvex::ui
