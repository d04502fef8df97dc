// The cities of the practice: looked up, added, changed.
#pragma once

#include <QDialog>

#include "ui/base/workplace.h"

class QLineEdit;
class QPushButton;

namespace orvex::ui {

class TableView;

class CitiesDialog final : public QDialog {
  Q_OBJECT

 public:
  explicit CitiesDialog(Workplace& place, QWidget* parent = nullptr);

 private:
  void Build();
  void Connect();
  void Load(std::int32_t selected);
  void AddCity();
  void EditCity();

  Workplace& place_;
  QLineEdit* search_;
  TableView* list_;
  QPushButton* edit_;
  QPushButton* add_;
};

}  // namespace orvex::ui
