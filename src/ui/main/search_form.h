// The filters of the client search.
#pragma once

#include <QWidget>

#include "practice/client_search.h"

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QRadioButton;

namespace orvex::ui {

class DateEdit;

class SearchForm final : public QWidget {
  Q_OBJECT

 public:
  explicit SearchForm(const core::Session& session, QWidget* parent = nullptr);

  // Reads the groups again and ticks them all.
  void LoadGroups();

  practice::SearchMode Mode() const;
  practice::SearchFilter Filter() const;

  // The date in use whose text could not be read; null where all were.
  DateEdit* UnreadDate() const;

  void FocusText();
  void FocusGroups();

 signals:
  void ModeChanged();
  // The Enter key in a field.
  void SearchRequested();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Build();
  QWidget* BuildModes();
  QWidget* BuildGroups();
  void BuildFields(QGridLayout& grid);
  QWidget* BuildDates();
  QWidget* BuildDateWords();
  void FillChoices();
  void Connect();
  void FollowMode();
  void FollowRanges();
  void TickAll(Qt::CheckState state);
  std::vector<std::int32_t> TickedGroups() const;

  const core::Session& session_;
  QRadioButton* clients_;
  QRadioButton* remedies_;
  QRadioButton* allGroups_;
  QRadioButton* selectedGroups_;
  QListWidget* groups_;
  QComboBox* gender_;
  QComboBox* ascendant_;
  QComboBox* retrograde_;
  QLabel* planetCaption_;
  QComboBox* forPlanet_;
  QLineEdit* name_;
  QLabel* textCaption_;
  QLineEdit* text_;
  QLabel* dateCaption_;
  QComboBox* dateRange_;
  DateEdit* from_;
  QLabel* toCaption_;
  DateEdit* to_;
};

}  // namespace orvex::ui
