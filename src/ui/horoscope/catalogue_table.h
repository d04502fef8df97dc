// A table of the catalogue under its title.
#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;

#include "horoscope/catalogue.h"
#include "ui/base/export_table.h"
#include "ui/base/labels.h"
#include "ui/base/table_plan.h"
#include "ui/horoscope/horoscope_document.h"

namespace orvex::ui {

class ElidedLabel;

class CatalogueTable final : public QWidget {
  Q_OBJECT

 public:
  // The entry of that name; its view has the name as object name. std::out_of_range for a name that
  // the catalogue does not have.
  CatalogueTable(HoroscopeDocument& document, const char* name);

  void ShowModel();

  // Shows another table of the same columns in its place, until the model is shown again.
  void ShowTable(const core::Table& table);

  TableView& View() { return *view_; }

  // Shows first what the plan names. Its chips choose the planet of the document and wear its ring.
  TablePlan& SetPlan(std::vector<ColumnPlan> columns, RowBounds rows = {});
  TablePlan* Plan() { return plan_; }

  // Shows first what the plans of the catalogue's tables say, with the marks of planets.
  TablePlan& PlanAsUsual();

  // What the columns of the usual plan like to have, in pixels at the usual text size.
  int WidthFirstRead() const;

  // A few quiet words behind the title; "" for none.
  void SetNote(const QString& note);

  // The line with the title, for what stands at its right.
  QHBoxLayout& TitleLine() { return *titleLine_; }
  QLabel& Title() { return *title_; }

  // The height in pixels of what stands above the rows.
  int HeightOfHead() const;

  // The order of the rows has a meaning: a click on a header changes nothing.
  void KeepOrder() { view_->setSortingEnabled(false); }

 signals:
  // A cell that names a planet, or a row that begins with one, was picked; its row in the planet
  // table.
  void PlanetActivated(std::size_t row);

 private:
  void Activate(const QModelIndex& index);

  HoroscopeDocument& document_;
  const horoscope::TableEntry& entry_;
  QLabel* title_;
  QHBoxLayout* titleLine_;
  TableView* view_;
  ElidedLabel* note_ = nullptr;
  TablePlan* plan_ = nullptr;
  bool usualPlan_ = false;
};

// The row of the planet that a text begins with, by name or code: "Venus (8 1)", "VE (8 1)", "VE*";
// nothing for any other text.
std::optional<std::size_t> PlanetOfText(const chart::HoroscopeModel& model, const QString& text);

}  // namespace orvex::ui
