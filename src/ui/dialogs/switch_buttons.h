// One choice of a few as buttons side by side.
#pragma once

#include <QString>
#include <vector>

class QButtonGroup;
class QHBoxLayout;
class QObject;

namespace orvex::ui {

struct SwitchChoice {
  const char* Name;
  QString Text;
};

// Buttons with the ids 0, 1, ... of which one is checked, the first one to begin with.
QButtonGroup* MakeSwitch(QObject* owner, const std::vector<SwitchChoice>& choices);

// The buttons of a switch in a row, what room is left at the right.
QHBoxLayout* SwitchLayout(const QButtonGroup& choices);

}  // namespace orvex::ui
