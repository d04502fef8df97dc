// The search for clients or remedies: filters above, what was found below.
#pragma once

#include <QWidget>

#include "core/table.h"
#include "practice/client_search.h"
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
  // Clients have changed: what was found is looked for again, and the chosen client stays so.
  void Reload();
  TableView& Results() { return *results_; }

 private:
  void Build();
  void Connect();
  void Search();
  // False where it was refused, after the message. Chooses the row of a tag, else the first.
  bool Run(const practice::SearchFilter& filter, const std::string& chosen);
  void Clear();
  void Show(const practice::SearchFilter& filter, std::vector<practice::FoundRow> rows,
            const QString& caption, const std::string& chosen);
  void Export(const core::Table& table);

  Workplace& place_;
  SearchForm* form_;
  QPushButton* search_;
  QPushButton* export_;
  QLabel* caption_;
  TableView* results_;
  std::optional<practice::SearchFilter> found_;  // what the results were found by
};

}  // namespace orvex::ui
