// The matters with their house groups and sources: looked up, added, changed, deleted.
#pragma once

#include <QDialog>

#include "ui/base/workplace.h"

class QPushButton;

namespace orvex::ui {

class TableView;

class MattersDialog final : public QDialog {
  Q_OBJECT

 public:
  // Begins on the matter of an id, else on the first.
  MattersDialog(Workplace& place, std::int32_t chosen, QWidget* parent = nullptr);

  // The id of the row that is chosen; 0 without one.
  std::int32_t Chosen() const;

 private:
  void Build();
  void Connect();
  void Load(std::int32_t chosen);
  void Add();
  void Edit();
  void Delete();

  Workplace& place_;
  TableView* list_;
  QPushButton* add_;
  QPushButton* edit_;
  QPushButton* delete_;
};

}  // namespace orvex::ui
