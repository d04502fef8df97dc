// The remedies of the chosen client under their caption: what was given, for which planet, and
// when.
#pragma once

#include <QWidget>

#include "ui/base/workplace.h"

class QAbstractItemDelegate;

namespace orvex::ui {

class ElidedLabel;
class LinkButton;
class TablePlan;
class TableView;

class RemedyList final : public QWidget {
  Q_OBJECT

 public:
  explicit RemedyList(Workplace& place);

  // The remedies of a client under its name; 0 and "": none, under `caption`.
  void ShowRemedies(std::int32_t clientId, const QString& caption);

 private:
  void ShowAll(bool all);
  void TakeHeight();

  Workplace& place_;
  ElidedLabel* caption_;
  TableView* remedies_;
  TablePlan* plan_;
  QAbstractItemDelegate* twoLines_;
  LinkButton* all_;  // turns to the whole table and back
};

}  // namespace orvex::ui
