// The search for clients or remedies: filters above, what was found below.
#pragma once

#include <QWidget>

#include "core/table.h"
#include "ui/base/workplace.h"

class QLabel;
class QPushButton;

namespace orvex::ui {

class SearchForm;
class TableView;

class SearchPage final : public QWidget {
  Q_OBJECT

 public:
  explicit SearchPage(Workplace& place, QWidget* parent = nullptr);

  // The groups have changed; all are ticked again.
  void LoadGroups();
  // Gives the focus to the search text.
  void FocusText();

 private:
  void Build();
  void Connect();
  void Search();
  void Clear();
  void Show(core::Table results, const QString& caption);
  void Export(const core::Table& table);

  Workplace& place_;
  SearchForm* form_;
  QPushButton* search_;
  QPushButton* export_;
  QLabel* caption_;
  TableView* results_;
};

}  // namespace orvex::ui
