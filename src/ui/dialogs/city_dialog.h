// Adds a city or changes one.
#pragma once

#include "practice/cities.h"
#include "ui/base/form_dialog.h"

class QLineEdit;

namespace orvex::ui {

class TableView;

class CityDialog final : public FormDialog {
  Q_OBJECT

 public:
  // Null where there is no zone to choose or the city is gone, after the program's message.
  static CityDialog* ForNew(Workplace& place, QWidget* parent = nullptr);
  static CityDialog* ForEdit(Workplace& place, std::int32_t cityId, QWidget* parent = nullptr);

  // The name that was saved.
  QString SavedName() const;

 private:
  CityDialog(Workplace& place, std::int32_t cityId, QWidget* parent);
  void Build(const QString& title, const QString& action);
  void TakeOffset();
  void Fill(const practice::CityForm& form);
  void Save() override;

  std::int32_t cityId_;  // 0: a new one
  QLineEdit* name_;
  TableView* zones_;
  QLineEdit* latitude_;
  QLineEdit* longitude_;
  QLineEdit* offset_;
};

}  // namespace orvex::ui
