// The bar above the pages: the search over all clients, and the buttons for new ones.
#pragma once

#include <QWidget>
#include <vector>

#include "ui/base/workplace.h"

class QAction;
class QHBoxLayout;
class QPushButton;

namespace orvex::ui {

class FindAnyoneBox;

class TopBar final : public QWidget {
  Q_OBJECT

 public:
  explicit TopBar(Workplace& place);

  FindAnyoneBox& Find() { return *find_; }

  // A button with an icon and a word of its own for an action.
  QPushButton* AddButton(QAction* action, const QString& word, const char* icon);

  // Without the words where the window is narrow.
  void SetNarrow(bool narrow);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  struct WordButton {
    QPushButton* Button;
    QString Word;
  };

  FindAnyoneBox* find_;
  QHBoxLayout* line_;
  std::vector<WordButton> buttons_;
};

}  // namespace orvex::ui
