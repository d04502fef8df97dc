// The monthly grid: where the planets stand on each day of a month, at one time of day in one city.
#pragma once

#include <QTimer>
#include <QWidget>

#include "transit/find_transit_tool.h"
#include "transit/monthly_grid.h"
#include "ui/base/workplace.h"

class QComboBox;
class QHBoxLayout;
class QLabel;
class QModelIndex;
class QPushButton;
class QStackedWidget;

namespace orvex::ui {

class LinkButton;
class MonthChanges;
class MonthGraphView;
class TableView;
class TimeEdit;

// Follows the user city until another one is chosen here. The city and the time of day chosen stay
// for as long as the page lives. The month is computed anew whenever the page comes into sight.
class TransitGridPage final : public QWidget {
  Q_OBJECT

 public:
  explicit TransitGridPage(Workplace& place);

  // A month, 1 to 12, of the years 1500 to 2500.
  void CreateGrid(int month, int year);

  // The month of a found transit with its cell marked and selected.
  void HighlightCell(const transit::GridMark& mark);

  // Computes the month in sight anew, where the settings have changed.
  void Refresh();

  // Asks for a transit; one that was found and wanted is shown in the grid.
  void FindTransit();

  QSize sizeHint() const override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  enum class View { Table, Graph, Changes };

  void LayOut();
  QHBoxLayout* BuildMonths();
  QHBoxLayout* BuildChoices();
  QWidget* BuildGraph();
  void FillLists();
  void Connect();
  void FollowUserCity();
  void Rebuild();
  void ShowGrid(transit::MonthGrid month);
  std::optional<transit::CellPlace> ShowMark();
  void SelectCell(int row, int column);
  void GoToTag(const std::string& tag);
  void ChangeCity();
  void TurnTo(View view);
  void OpenDetails(const QModelIndex& cell);

  Workplace& place_;
  transit::GridView view_;
  bool ownCity_ = false;
  bool opened_ = false;  // it has been in sight
  std::optional<transit::GridMark> mark_;
  int month_;
  int year_;
  std::string nextTag_;
  std::string previousTag_;
  std::string thisMonthTag_;
  QTimer build_;
  QPushButton* previous_;
  QLabel* monthLabel_;
  QPushButton* next_;
  LinkButton* thisMonth_;
  QPushButton* find_;
  QComboBox* months_;
  QComboBox* years_;
  QPushButton* go_;
  TimeEdit* time_;
  QPushButton* city_;
  QLabel* title_;
  QPushButton* showGraph_;
  QPushButton* showChanges_;
  TableView* grid_;
  MonthGraphView* graph_;
  MonthChanges* changes_;
  QStackedWidget* views_;
};

}  // namespace orvex::ui
