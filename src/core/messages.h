// Every message of the program goes through ShowMessage. What shows it is the edge's: a message box
// in the workbench, standard error in the command line, a recorder in tests.
#pragma once

#include <string>
#include <vector>

namespace orvex::core {

inline constexpr const char* kMessageTitle = "Orvex+";

enum class MessageIcon { None = 0, Stop = 16, Question = 32, Information = 64 };
enum class MessageButtons { Ok = 0, YesNo = 4 };
enum class MessageAnswer { Ok, Yes, No };

class Messages {
 public:
  Messages() = default;
  Messages(const Messages&) = delete;
  Messages& operator=(const Messages&) = delete;
  virtual ~Messages() = default;

  // Shows the text under kMessageTitle and gives the button pressed.
  virtual MessageAnswer ShowMessage(const std::string& text, MessageButtons buttons,
                                    MessageIcon icon) = 0;

  // Asks which of two deeds to do and gives whether it is the first one. Where there are no buttons
  // for them, yes stands for the first.
  virtual bool ChooseFirst(const std::string& question, const std::string& /*first*/,
                           const std::string& /*second*/) {
    return ShowMessage(question, MessageButtons::YesNo, MessageIcon::Question) ==
           MessageAnswer::Yes;
  }
};

// Keeps what was shown and answers yes or no as told.
class RecordedMessages final : public Messages {
 public:
  struct Shown {
    std::string Text;
    MessageButtons Buttons;
    MessageIcon Icon;
  };

  explicit RecordedMessages(MessageAnswer toQuestions = MessageAnswer::No)
      : toQuestions_(toQuestions) {}

  MessageAnswer ShowMessage(const std::string& text, MessageButtons buttons,
                            MessageIcon icon) override {
    shown_.push_back({text, buttons, icon});
    return buttons == MessageButtons::YesNo ? toQuestions_ : MessageAnswer::Ok;
  }

  const std::vector<Shown>& All() const { return shown_; }

 private:
  MessageAnswer toQuestions_;
  std::vector<Shown> shown_;
};

}  // namespace orvex::core
