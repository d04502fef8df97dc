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

class QueryFields final : public QObject {
  Q_OBJECT

 public:
  QueryFields(Workplace& place, QObject* owner);

  // To be laid out by the dialog.
  QComboBox* Number() const { return number_; }
  QWidget* NumberRow() const { return numberRow_; }
  QLineEdit* Question() const { return question_; }
  QLabel* Count() const { return count_; }

  void Fill(const chart::ClientForm& form);
  void CopyInto(chart::ClientForm& form) const;

 signals:
  // A letter was typed into the number.
  void Refused(const core::Refusal& refusal);

 private:
  void Build();
  void RefuseLetters(const QString& text);
  void CountQuestion();

  QRandomGenerator numbers_;
  QComboBox* number_;
  QPushButton* random_;
  QWidget* numberRow_;
  QLineEdit* question_;
  QLabel* count_;
};

}  // namespace orvex::ui
