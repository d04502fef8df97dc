// A table of the page of a matter under its heading.
#pragma once

#include <QWidget>

#include "judgement/matters.h"
#include "ui/base/table_plan.h"
#include "ui/horoscope/horoscope_document.h"

class QHBoxLayout;
class QLabel;

namespace orvex::ui {

class ElidedLabel;
class HouseHeader;

class MatterTable final : public QWidget {
  Q_OBJECT

 public:
  // The view has the name as object name, `title` as accessible name and in exported files.
  MatterTable(HoroscopeDocument& document, const char* name, const QString& title,
              std::vector<ColumnPlan> columns, RowBounds rows);

  // Shows a table; houses stand by their role in the matter, the fruitful planets in a ring.
  void ShowTable(const core::Table& table, const judgement::Matter& matter,
                 const std::set<QString>& fruitful);

  // What stands behind the title, in quiet letters.
  void SetNote(const QString& note);
  void SetTitle(const QString& title);

  TableView& View() { return *view_; }
  TablePlan& Plan() { return *plan_; }
  QHBoxLayout& TitleLine() { return *titleLine_; }
  // The line itself, for a page that puts it elsewhere.
  QWidget& TitleRow() { return *titleRow_; }

  // The height in pixels of what stands above the rows.
  int HeightOfHead() const;

 private:
  QWidget* titleRow_;
  QLabel* title_;
  ElidedLabel* note_;
  QHBoxLayout* titleLine_;
  TableView* view_;
  HouseHeader* header_;
  TablePlan* plan_;
};

}  // namespace orvex::ui
