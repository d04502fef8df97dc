// The messages of the workbench: message boxes over the window in front.
#pragma once

#include "core/messages.h"

namespace orvex::ui {

class MessageBoxes final : public core::Messages {
 public:
  core::MessageAnswer ShowMessage(const std::string& text, core::MessageButtons buttons,
                                  core::MessageIcon icon) override;
  bool ChooseFirst(const std::string& question, const std::string& first,
                   const std::string& second) override;
};

// The shown forms that windows use most.
void Inform(core::Messages& messages, const std::string& text);
void Complain(core::Messages& messages, const std::string& text);
bool Ask(core::Messages& messages, const std::string& question);

}  // namespace orvex::ui
