// The horary query and the choice of the Ascendant: one excludes the other.
#pragma once

#include <QGroupBox>
#include <QRandomGenerator>

#include "chart/client_saving.h"
#include "ui/base/workplace.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace orvex::ui {

class QueryFields final : public QWidget {
  Q_OBJECT

 public:
  QueryFields(Workplace& place, QWidget* parent = nullptr);

  void Fill(const chart::ClientForm& form);
  void CopyInto(chart::ClientForm& form) const;

 signals:
  // The flag was switched on by hand: the moment of the query is now.
  void HoraryStarted();

 private:
  void Build();
  void Connect();
  void FollowHorary(bool horary);
  void RefuseLetters(const QString& text);

  Workplace& place_;
  QRandomGenerator numbers_;
  QCheckBox* horary_;
  QComboBox* number_;
  QPushButton* random_;
  QLineEdit* question_;
  QRadioButton* computed_;
  QRadioButton* byHand_;
  QLineEdit* degree_;
};

}  // namespace orvex::ui
