#include "ui/base/message_boxes.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include "ui/base/qt_text.h"

namespace orvex::ui {

namespace {

QMessageBox::Icon IconOf(core::MessageIcon icon) {
  switch (icon) {
    case core::MessageIcon::Stop:
      return QMessageBox::Critical;
    case core::MessageIcon::Question:
      return QMessageBox::Question;
    case core::MessageIcon::Information:
      return QMessageBox::Information;
    case core::MessageIcon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

}  // namespace

core::MessageAnswer MessageBoxes::ShowMessage(const std::string& text, core::MessageButtons buttons,
                                              core::MessageIcon icon) {
  QMessageBox box(QApplication::activeWindow());
  box.setObjectName("messageBox");
  box.setWindowTitle(core::kMessageTitle);
  box.setTextFormat(Qt::PlainText);
  box.setText(Shown(text));
  box.setIcon(IconOf(icon));
  if (buttons == core::MessageButtons::Ok) {
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
    return core::MessageAnswer::Ok;
  }
  box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  // A stroke of the Enter key destroys nothing.
  box.setDefaultButton(QMessageBox::No);
  box.setEscapeButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes ? core::MessageAnswer::Yes : core::MessageAnswer::No;
}

bool MessageBoxes::ChooseFirst(const std::string& question, const std::string& first,
                               const std::string& second) {
  QMessageBox box(QApplication::activeWindow());
  box.setObjectName("messageBox");
  box.setWindowTitle(core::kMessageTitle);
  box.setTextFormat(Qt::PlainText);
  box.setText(Shown(question));
  box.setIcon(QMessageBox::Question);
  QPushButton* chosen = box.addButton(Shown(first), QMessageBox::YesRole);
  QPushButton* other = box.addButton(Shown(second), QMessageBox::NoRole);
  box.setDefaultButton(chosen);
  box.setEscapeButton(other);
  box.exec();
  return box.clickedButton() == chosen;
}

void Inform(core::Messages& messages, const std::string& text) {
  messages.ShowMessage(text, core::MessageButtons::Ok, core::MessageIcon::Information);
}

void Complain(core::Messages& messages, const std::string& text) {
  messages.ShowMessage(text, core::MessageButtons::Ok, core::MessageIcon::Stop);
}

bool Ask(core::Messages& messages, const std::string& question) {
  return messages.ShowMessage(question, core::MessageButtons::YesNo, core::MessageIcon::Question) ==
         core::MessageAnswer::Yes;
}

}  // namespace orvex::ui
