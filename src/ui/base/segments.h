// A row of buttons of which one is chosen.
#pragma once

#include <QButtonGroup>
#include <QWidget>
#include <vector>

namespace orvex::ui {

class Segments final : public QWidget {
  Q_OBJECT

 public:
  struct Part {
    const char* Name;  // object name of the button
    QString Text;
  };

  explicit Segments(const std::vector<Part>& parts);

  int Chosen() const { return group_->checkedId(); }
  void Choose(int part);

 signals:
  // The user, or Choose, turned to another part.
  void ChosenChanged(int part);

 private:
  QButtonGroup* group_;
};

}  // namespace orvex::ui
