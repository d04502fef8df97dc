// The page of the clients: groups, the list, and the card of the chosen client side by side. Where
// the window is narrow the groups become a box over the list, and then the card goes.
#pragma once

#include <QWidget>

#include "ui/base/workplace.h"

class QSplitter;

namespace orvex::ui {

class ClientCardPanel;
class ClientLists;
class GroupColumn;

class ClientsPage final : public QWidget {
  Q_OBJECT

 public:
  explicit ClientsPage(Workplace& place);

  GroupColumn& Groups() { return *groups_; }
  ClientLists& Lists() { return *lists_; }
  ClientCardPanel& Card() { return *card_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Arrange();
  void ShareWidth();

  GroupColumn* groups_;
  ClientLists* lists_;
  ClientCardPanel* card_;
  QSplitter* columns_;
  bool byHand_ = false;  // the user has given the columns their widths
  bool all_ = false;     // the list shows all its columns and has the card's room
};

}  // namespace orvex::ui
