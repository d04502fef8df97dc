// Fields for a date and for a time of day, typed as people write them. What a text means is told by
// core/typed_moment; the fields show it, and refuse in red what it can't read.
#pragma once

#include <QLineEdit>

#include "core/typed_moment.h"

class QFrame;
class QLabel;

namespace orvex::ui {

// What both share. Up and Down, and the wheel while the field has the focus, step the part at the
// cursor.
class MomentEdit : public QLineEdit {
  Q_OBJECT

 public:
  // A label that tells in words what is understood, or why nothing is. The caller lays it out.
  QLabel* MakeEcho();

  // What the label tells.
  QString Words() const { return words_; }
  bool IsUnderstood() const { return understood_; }

 signals:
  // The text means something else than before, or nothing.
  void Changed();

 protected:
  explicit MomentEdit(const QString& objectName);

  struct Reading {
    bool Understood = false;
    std::string Words;
  };
  virtual Reading Read() = 0;
  virtual std::optional<core::SteppedText> Stepped(const std::string& text, std::size_t cursor,
                                                   int steps) const = 0;

  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

  // Reads the text again; for constructors, which have their readers by then.
  void Follow();

 private:
  void Step(int steps);
  void ShowEcho(QLabel& echo) const;

  QString words_;
  bool understood_ = false;
};

class DateEdit final : public MomentEdit {
  Q_OBJECT

 public:
  explicit DateEdit(const QString& objectName);

  // Midnight of the date; nothing while the text is none.
  std::optional<core::DateTime> Date() const { return date_; }
  void SetDate(core::DateTime date);

  // Drops down a calendar; a click on a day takes it.
  void OpenCalendar();

 signals:
  // A day was taken from the calendar.
  void DayPicked();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  Reading Read() override;
  std::optional<core::SteppedText> Stepped(const std::string& text, std::size_t cursor,
                                           int steps) const override;

  std::optional<core::DateTime> date_;
};

class TimeEdit final : public MomentEdit {
  Q_OBJECT

 public:
  enum class Shows { Seconds, Minutes };

  explicit TimeEdit(const QString& objectName, Shows shows = Shows::Seconds);

  std::optional<core::TimeOfDay> Time() const { return time_; }
  void SetTime(core::TimeOfDay time);

 private:
  Reading Read() override;
  std::optional<core::SteppedText> Stepped(const std::string& text, std::size_t cursor,
                                           int steps) const override;

  Shows shows_;
  std::optional<core::TimeOfDay> time_;
};

}  // namespace orvex::ui
