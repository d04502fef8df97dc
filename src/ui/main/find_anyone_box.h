// "Find anyone": a field that searches all clients of all groups while it is typed into.
#pragma once

#include <QLineEdit>
#include <QPointer>
#include <QTimer>
#include <memory>

#include "practice/find_anyone.h"
#include "ui/base/workplace.h"

namespace orvex::ui {

class FindAnyonePopup;

class FindAnyoneBox final : public QLineEdit {
  Q_OBJECT

 public:
  explicit FindAnyoneBox(Workplace& place);

  // Takes the keys; what stands in the field is marked.
  void Begin();
  // What is typed in a list from now on begins a search.
  void TakeKeysOf(QWidget& list);

 signals:
  void OpenWanted(std::int32_t clientId);
  void EditWanted(std::int32_t clientId);
  void ShowWanted(std::int32_t clientId);
  void NewWanted(const QString& name, bool query);

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  FindAnyonePopup& Popup();
  bool IsOpen() const;
  void BeginWith(const QString& typed);
  void Search();
  void Leave();
  void Act(Qt::KeyboardModifiers modifiers);
  void ShowMarked();
  QString Hint() const;
  QRect HintBox() const;

  Workplace& place_;
  QTimer pause_;  // after the last key
  std::unique_ptr<practice::FindAnyone> search_;
  FindAnyonePopup* popup_ = nullptr;
  QPointer<QWidget> before_;  // what had the keys
};

}  // namespace orvex::ui
