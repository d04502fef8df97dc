// The three pages of the settings dialog. Fields go by the names of their columns.
#pragma once

#include <QWidget>
#include <array>

#include "core/settings.h"
#include "ui/base/workplace.h"

class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace orvex::ui {

class GeneralPage final : public QWidget {
  Q_OBJECT

 public:
  explicit GeneralPage(Workplace& place, QWidget* parent = nullptr);
  void Fill(const core::SettingsForm& form);
  void CopyInto(core::SettingsForm& form) const;

 private:
  void Build();
  void FillGroups();
  QWidget* BuildChartPath();
  QWidget* BuildCity();
  QLabel* BuildMomentWords();
  void ChooseChartPath();
  void ChooseCity();

  Workplace& place_;
  QComboBox* nodes_;
  QComboBox* chartType_;
  QComboBox* degree_;
  QComboBox* sort_;
  QComboBox* birthMoment_;
  QComboBox* group_;
  QLineEdit* chartPath_;
  QLabel* city_;
  std::int32_t cityId_ = 0;
};

class OrbitsPage final : public QWidget {
  Q_OBJECT

 public:
  explicit OrbitsPage(Workplace& place, QWidget* parent = nullptr);
  void Fill(const core::SettingsForm& form);
  void CopyInto(core::SettingsForm& form) const;

 signals:
  // An orb was refused after its page was left; its field is to be in sight again.
  void FieldWanted(const QString& name);

 protected:
  // Checks an orb as its field is left.
  bool eventFilter(QObject* field, QEvent* event) override;

 private:
  void CheckOrb(std::size_t aspect);
  bool TurnsBack() const;
  void ResetOrbs();

  Workplace& place_;
  std::array<QLineEdit*, core::kAspectCount> orbs_{};
  std::array<QLabel*, core::kAspectCount> captions_{};
  bool isAsking_ = false;
};

class ProfilePage final : public QWidget {
  Q_OBJECT

 public:
  explicit ProfilePage(QWidget* parent = nullptr);
  void Fill(const core::SettingsForm& form);
  void CopyInto(core::SettingsForm& form) const;

 private:
  QLineEdit* name_;
  QLineEdit* organization_;
  QPlainTextEdit* contact_;
};

}  // namespace orvex::ui
