// The list of cities in three views with its search box.
#pragma once

#include <QTimer>
#include <QWidget>

#include "ui/base/table_view.h"
#include "ui/base/workplace.h"

class QLineEdit;
class QTabBar;

namespace orvex::ui {

class CityList final : public QWidget {
  Q_OBJECT

 public:
  enum View { PreviouslyUsed, AllCities, SearchResults };

  CityList(Workplace& place, QWidget* parent = nullptr);

  void ShowView(View view);
  bool SelectCity(std::int32_t cityId);

  // The id of the selected row; 0 for none.
  std::int32_t SelectedCity() const;
  const core::Row* SelectedRow() const;

  // Writes the name into the search box and runs the search.
  void SearchFor(const QString& name);

 signals:
  void ViewChanged();
  void FilterTyped();
  void CityChosen(std::int32_t cityId);
  void CityActivated(std::int32_t cityId);

 private:
  void Build();
  void Connect();
  void LoadView(int view);
  void FilterOrSearch();

  Workplace& place_;
  QTabBar* views_;
  QLineEdit* search_;
  TableView* list_;
  QTimer searchPause_;
};

}  // namespace orvex::ui
