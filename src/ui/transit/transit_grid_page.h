// The page of a month: where the planets stand on each of its days, at one time of day in one city,
// as a grid, as a graph, or both with their rows beside each other.
#pragma once

#include <QTimer>
#include <QWidget>

#include "transit/find_transit_tool.h"
#include "transit/monthly_grid.h"
#include "ui/base/workplace.h"
#include "ui/transit/month_bar.h"

class QModelIndex;
class QStackedWidget;

namespace orvex::ui {

class DayGraphView;
class MonthChanges;
class MonthGraphView;
class MonthLegend;
class MonthTable;

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

  // "Planetary Transit in Dubai at 10:00"; "" before the first month stands.
  const QString& Title() const { return title_; }

  // Gives the keys to the view in sight.
  void FocusMonth();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void TitleChanged(const QString& title);
  // Something is done that the status line tells.
  void Done(const QString& text);

 protected:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void LayOut();
  QWidget* BuildGrid();
  QWidget* BuildGraph();
  void Connect();
  void ConnectTables();
  void FollowUserCity();
  void Rebuild();
  void ShowGrid(transit::MonthGrid month);
  std::optional<transit::CellPlace> ShowMark();
  void SelectCell(int row, int column);
  void GoToToday();
  bool IsThisMonth() const;
  void ChangeCity();
  void TurnTo(MonthView view);
  void ShareRoom();
  void FollowRows();
  void SaveToCalendar();
  void Print();
  void OpenDetails(const QModelIndex& cell);

  Workplace& place_;
  transit::GridView view_;
  bool ownCity_ = false;
  bool opened_ = false;  // it has been in sight
  std::optional<transit::GridMark> mark_;
  int month_;
  int year_;
  QString title_;
  MonthView wanted_ = MonthView::Both;
  QTimer build_;
  MonthBar* bar_;
  MonthTable* grid_;
  DayGraphView* beside_;
  MonthGraphView* graph_;
  MonthChanges* changes_;
  QStackedWidget* views_;
  MonthLegend* legend_;
};

}  // namespace orvex::ui
