// The number and the question of a horary query.
#pragma once

#include <QObject>
#include <QRandomGenerator>

#include "chart/client_saving.h"
#include "ui/base/workplace.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

namespace orvex::ui {

class LinkButton;
class NumberTable;

class QueryFields final : public QObject {
  Q_OBJECT

 public:
  QueryFields(Workplace& place, QObject* owner);

  // To be laid out by the dialog.
  QComboBox* Number() const { return number_; }
  QWidget* NumberRow() const { return numberRow_; }
  QLineEdit* Question() const { return question_; }
  QLabel* Count() const { return count_; }
  // Whose moment and place the fields below take.
  QLabel* Whose() const { return whose_; }

  void Fill(const chart::ClientForm& form);
  void CopyInto(chart::ClientForm& form) const;

 signals:
  // A letter was typed into the number.
  void Refused(const core::Refusal& refusal);

 private:
  void Build();
  void RefuseLetters(const QString& text);
  void CountQuestion();
  void ShowTable();

  Workplace& place_;
  QRandomGenerator numbers_;
  QComboBox* number_;
  QPushButton* random_;
  LinkButton* tableLink_;
  QWidget* numberRow_;
  QLineEdit* question_;
  QLabel* count_;
  QLabel* whose_;
};

}  // namespace orvex::ui
