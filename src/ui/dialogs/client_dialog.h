// Adds a client or changes one: a birth or a horary query; who, when and where.
#pragma once

#include <memory>

#include "chart/client_saving.h"
#include "ui/base/form_dialog.h"

class QButtonGroup;
class QComboBox;
class QLineEdit;
class QPlainTextEdit;

namespace orvex::ui {

class AscendantFields;
class CityField;
class FormRows;
class MomentFields;
class PlaceFields;
class QueryFields;
class RefusalLine;

class ClientDialog final : public FormDialog {
  Q_OBJECT

 public:
  ~ClientDialog() override;

  // A new client of a group; another group may be chosen in the dialog.
  static ClientDialog* ForNew(Workplace& place, std::int32_t groupId, QWidget* parent = nullptr);

  // A stored one; null where it is gone, after the program's message.
  static ClientDialog* ForEdit(Workplace& place, std::int32_t clientId, QWidget* parent = nullptr);

  // Begins a new client with a name, as a birth or as a query of now.
  void Begin(const QString& name, bool query);

  // Fills in another birth time and adds a line to the comments. To be called before the dialog is
  // shown; nothing of it is saved until the user saves.
  void ProposeBirth(core::DateTime birth, const QString& comment);

  // The group that a new client goes to.
  std::int32_t GroupId() const;

 private:
  ClientDialog(Workplace& place, QWidget* parent);
  void Build(const QString& title, const QString& action);
  QLayout* BuildHead();
  QWidget* BuildBody();
  void AddPersonRows();
  void AddQueryRows();
  void AddPlaceRows();
  void AddContactRows();
  void FillGroups(std::int32_t groupId);
  void Connect();
  void Fill(const chart::ClientForm& form);
  chart::ClientForm Form() const;
  void FollowKind();
  void ShowMoment();
  void ShowCast();
  void AddCity();
  void PickFromAll();
  void SettleOffset(chart::ClientForm& form);
  void ShowRefusal(const core::Refusal& refusal) override;
  void Save() override;

  std::int32_t clientId_ = 0;  // of a stored one
  chart::ClientForm opened_;   // as the dialog opened
  QButtonGroup* kinds_;        // 0 a birth, 1 a query
  QComboBox* group_;
  std::unique_ptr<FormRows> rows_;
  QLineEdit* name_;
  QButtonGroup* genders_;
  QueryFields* query_;
  MomentFields* moment_;
  CityField* city_;
  PlaceFields* place_;
  QLineEdit* mobile_;
  QLineEdit* email_;
  QPlainTextEdit* comments_;
  AscendantFields* ascendant_;
  RefusalLine* refusal_;
};

}  // namespace orvex::ui
