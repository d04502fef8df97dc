#include "ui/horoscope/matter_box.h"

#include <QCompleter>
#include <QFocusEvent>
#include <QLineEdit>
#include <QToolTip>
#include <algorithm>

#include "judgement/matters.h"
#include "ui/base/qt_text.h"

namespace orvex::ui {

MatterBox::MatterBox(Workplace& place) : place_(place) {
  setObjectName("matterName");
  setEditable(true);
  setInsertPolicy(NoInsert);
  auto* completer = new QCompleter(model(), this);
  completer->setFilterMode(Qt::MatchContains);
  completer->setCaseSensitivity(Qt::CaseInsensitive);
  completer->setCompletionMode(QCompleter::PopupCompletion);
  setCompleter(completer);
  connect(this, &QComboBox::activated, this, &MatterBox::Take);
  connect(lineEdit(), &QLineEdit::returnPressed, this, &MatterBox::TakeTyped);
  connect(lineEdit(), &QLineEdit::editingFinished, this, [this] {
    // What was left half typed gives way to the matter that is shown.
    const int entry = findData(chosen_);
    if (entry >= 0 && lineEdit()->text() != itemText(entry)) {
      setCurrentIndex(entry);
      setEditText(itemText(entry));
    }
  });
}

void MatterBox::Load(std::int32_t id) {
  const QSignalBlocker quiet(this);
  clear();
  for (const core::Row& row : judgement::LoadMatters(place_.Session).Rows) {
    addItem(Shown(row.Cells.front().Text), IdOfTag(row.Tag).value_or(0));
  }
  setCurrentIndex(std::max(0, findData(id)));
  chosen_ = currentData().toInt();
}

// The name that is typed, else the first that begins with it, else the first that holds it.
int MatterBox::EntryOf(const QString& text) const {
  for (const Qt::MatchFlags how : {Qt::MatchFixedString, Qt::MatchStartsWith, Qt::MatchContains}) {
    if (const int entry = findText(text, how); entry >= 0 && !text.isEmpty()) {
      return entry;
    }
  }
  return -1;
}

void MatterBox::TakeTyped() {
  const int entry = EntryOf(lineEdit()->text().trimmed());
  if (entry >= 0) {
    Take(entry);
    return;
  }
  lineEdit()->selectAll();
  QToolTip::showText(mapToGlobal(QPoint(0, height())), tr("No matter has that in its name."), this);
}

void MatterBox::Take(int entry) {
  setCurrentIndex(entry);
  setEditText(itemText(entry));
  lineEdit()->selectAll();
  const std::int32_t id = itemData(entry).toInt();
  if (id != chosen_) {
    chosen_ = id;
    emit MatterChosen(id);
  }
}

void MatterBox::focusInEvent(QFocusEvent* event) {
  QComboBox::focusInEvent(event);
  if (event->reason() != Qt::PopupFocusReason) {
    lineEdit()->selectAll();
  }
}

}  // namespace orvex::ui
