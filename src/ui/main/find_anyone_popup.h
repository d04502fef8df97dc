// What drops down below "Find anyone": who fits, by where the text was found, and below them the
// ways to a new birth or query of that name.
#pragma once

#include <QFrame>

#include "practice/find_anyone.h"

class QListWidget;
class QPushButton;

namespace orvex::ui {

class ElidedLabel;

class FindAnyonePopup final : public QFrame {
  Q_OBJECT

 public:
  enum class Mark { Client, NewBirth, NewQuery };

  // Lies over the contents of a window and never has the focus.
  explicit FindAnyonePopup(QWidget* window);

  // Who was found for a text; the first one is marked, without anyone the new birth.
  void ShowFound(const practice::FindAnyone::Result& found, const QString& typed);
  void DropBelow(const QWidget& field);

  Mark Marked() const { return mark_; }
  std::int32_t MarkedClient() const;  // 0 where a new one is marked
  // Moves the mark by a row, past the captions and down to the new ones.
  void MoveMark(int by);

 signals:
  // Something was clicked, and is marked now.
  void Clicked();

 private:
  void AddCaption(practice::FoundIn where);
  void AddClient(const practice::FoundAnyone& client);
  QPushButton* MakeNew(const char* name, const char* icon, Mark mark);
  void Take(Mark mark, int row);
  std::vector<int> ClientRows() const;

  QListWidget* list_;
  QPushButton* birth_;
  QPushButton* query_;
  ElidedLabel* hint_;
  Mark mark_ = Mark::Client;
};

}  // namespace orvex::ui
