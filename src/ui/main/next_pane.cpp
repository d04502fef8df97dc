#include "ui/main/next_pane.h"

#include <QWidget>

namespace orvex::ui {

namespace {

bool TakesKeys(const QWidget& widget) {
  return widget.isVisible() && widget.isEnabled() &&
         (static_cast<unsigned>(widget.focusPolicy()) & Qt::TabFocus) != 0;
}

// The first in the order of the Tab key.
QWidget* FirstThatTakesKeys(QWidget& pane) {
  if (TakesKeys(pane)) {
    return &pane;
  }
  for (QWidget* next = pane.nextInFocusChain(); next != &pane; next = next->nextInFocusChain()) {
    if (pane.isAncestorOf(next) && TakesKeys(*next)) {
      return next;
    }
  }
  return nullptr;
}

}  // namespace

void FocusNextPane(const QWidget& window, const std::vector<QWidget*>& panes) {
  const QWidget* focus = window.focusWidget();
  std::vector<QWidget*> firsts;
  std::size_t next = 0;
  for (QWidget* pane : panes) {
    QWidget* first = pane->isVisible() ? FirstThatTakesKeys(*pane) : nullptr;
    if (first != nullptr) {
      firsts.push_back(first);
      const bool has = focus != nullptr && (pane == focus || pane->isAncestorOf(focus));
      next = has ? firsts.size() : next;
    }
  }
  if (!firsts.empty()) {
    firsts[next % firsts.size()]->setFocus(Qt::TabFocusReason);
  }
}

}  // namespace orvex::ui
