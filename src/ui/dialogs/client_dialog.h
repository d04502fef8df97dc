// Adds a client or changes one: who, when, where, and the query of a horary chart.
#pragma once

#include <QRandomGenerator>

#include "chart/client_saving.h"
#include "ui/base/form_dialog.h"

class QButtonGroup;
class QDateTimeEdit;
class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace orvex::ui {

class CityList;
class PlaceFields;
class QueryFields;

class ClientDialog final : public FormDialog {
  Q_OBJECT

 public:
  // A new client of a group.
  static ClientDialog* ForNew(Workplace& place, std::int32_t groupId, QWidget* parent = nullptr);

  // A stored one; null where it is gone, after the program's message.
  static ClientDialog* ForEdit(Workplace& place, std::int32_t clientId, QWidget* parent = nullptr);

 private:
  ClientDialog(Workplace& place, QWidget* parent);
  void Build(const QString& title, const QString& action);
  QLayout* BuildPerson();
  QLayout* BuildGenders();
  QLayout* BuildMoment();
  QLayout* BuildPlace();
  void Connect();
  void Fill(const chart::ClientForm& form);
  void FillPlace(const chart::ClientForm& form);
  chart::ClientForm Form() const;
  void ShowMoment();
  void SetNow();
  void AddCity();
  void Save() override;

  std::int32_t groupId_ = 0;   // of a new client
  std::int32_t clientId_ = 0;  // of a stored one
  std::int32_t cityId_ = 0;
  QLineEdit* name_;
  QLineEdit* email_;
  QLineEdit* mobile_;
  QPlainTextEdit* comments_;
  QButtonGroup* genders_;
  QDateTimeEdit* birth_;
  QLabel* weekday_;
  QLabel* now_;
  QLabel* addCity_;
  QueryFields* query_;
  CityList* cities_;
  PlaceFields* place_;
};

}  // namespace orvex::ui
