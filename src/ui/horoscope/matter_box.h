// The matter that is judged, chosen by typing a piece of its name.
#pragma once

#include <QComboBox>

#include "ui/base/workplace.h"

namespace orvex::ui {

class MatterBox final : public QComboBox {
  Q_OBJECT

 public:
  explicit MatterBox(Workplace& place);

  // Reads the matters again; the one of that id is chosen, else the first. Tells nothing.
  void Load(std::int32_t id);

  // The id of the chosen matter; 0 where there is none.
  std::int32_t Chosen() const { return chosen_; }

 signals:
  void MatterChosen(std::int32_t id);

 protected:
  void focusInEvent(QFocusEvent* event) override;

 private:
  void TakeTyped();
  void Take(int entry);
  int EntryOf(const QString& text) const;

  Workplace& place_;
  std::int32_t chosen_ = 0;
};

}  // namespace orvex::ui
