// A session with windows: messages are answered from a queue, files are chosen from one.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>
#include <optional>
#include <string>

#include "support/test_home.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_view.h"
#include "ui/base/workplace.h"

namespace orvex::test {

// Every box must be awaited, with its text; one that is not fails the test.
class AwaitedMessages final : public core::Messages {
 public:
  void Await(const std::string& text, core::MessageAnswer answer = core::MessageAnswer::Ok) {
    awaited_.push_back({text, answer});
  }
  bool AllCame() const { return awaited_.empty(); }
  // Answers the boxes that nobody awaits.
  void AnswerOthers(std::function<core::MessageAnswer(const std::string&)> answer) {
    others_ = std::move(answer);
  }

  core::MessageAnswer ShowMessage(const std::string& text, core::MessageButtons /*buttons*/,
                                  core::MessageIcon /*icon*/) override {
    if (awaited_.empty() && others_) {
      return others_(text);
    }
    if (awaited_.empty() || awaited_.front().Text != text) {
      ADD_FAILURE() << "unexpected message: " << text;
      return core::MessageAnswer::No;
    }
    const core::MessageAnswer answer = awaited_.front().Answer;
    awaited_.pop_front();
    return answer;
  }

 private:
  struct Awaited {
    std::string Text;
    core::MessageAnswer Answer;
  };
  std::deque<Awaited> awaited_;
  std::function<core::MessageAnswer(const std::string&)> others_;
};

class ChosenFiles final : public ui::FileDialogs {
 public:
  std::optional<std::filesystem::path> ChooseFolder(QWidget* /*parent*/,
                                                    const std::string& /*title*/,
                                                    const std::filesystem::path&) override {
    return Chosen;
  }
  std::vector<std::filesystem::path> ChooseFilesToRead(QWidget* /*parent*/,
                                                       const std::string& /*title*/,
                                                       const std::string& /*filter*/) override {
    return ToRead;
  }
  std::optional<std::filesystem::path> ChooseFileToWrite(QWidget* /*parent*/,
                                                         const std::string& /*title*/,
                                                         const std::filesystem::path& /*start*/,
                                                         const std::string& /*filter*/) override {
    return Chosen;
  }
  bool OpenWithDesktop(const std::filesystem::path& file) override {
    Opened = file;
    return true;
  }

  std::filesystem::path Chosen;
  std::filesystem::path Opened;
  std::vector<std::filesystem::path> ToRead;
};

class DeskTest : public testing::Test {
 protected:
  DeskTest()
      : session_(core::RunStartup(home_.Plan(), home_.Clock, messages_, home_.Ephemeris)),
        layout_(home_.Place.Folder / "windows.ini"),
        place_{*session_, files_, layout_} {}

  ~DeskTest() override { EXPECT_TRUE(messages_.AllCame()) << "an awaited message did not come"; }

  // A widget of a window by its object name.
  template <typename Widget>
  static Widget& Find(QWidget& window, const char* name) {
    auto* found = window.findChild<Widget*>(name);
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }

  static void Type(QWidget& window, const char* field, const QString& text) {
    auto& widget = Find<QWidget>(window, field);
    widget.setFocus();
    QTest::keySequence(&widget, QKeySequence::SelectAll);
    QTest::keyClicks(&widget, text);
  }

  static void Press(QWidget& window, const char* button) {
    auto& widget = Find<QWidget>(window, button);
    EXPECT_TRUE(widget.isEnabled()) << button;
    QTest::mouseClick(&widget, Qt::LeftButton);
  }

  static void Show(QWidget& window) {
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.activateWindow();
    QCoreApplication::processEvents();
  }

  static QString FocusName(const QWidget& window) {
    return window.focusWidget() == nullptr ? QString() : window.focusWidget()->objectName();
  }

  static void ClickRow(ui::TableView& table, int row, bool twice = false) {
    const QModelIndex index = table.Model().index(row, 0);
    table.scrollTo(index);
    const QPoint at = table.visualRect(index).center();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, at);
    if (twice) {
      QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, at);
    }
    QCoreApplication::processEvents();
  }

  // What is done when the modal dialog of that name stands open.
  template <typename Deed>
  static void WhenOpen(const char* dialog, Deed deed) {
    QTimer::singleShot(0, qApp, [dialog, deed] {
      QWidget* open = QApplication::activeModalWidget();
      if (open == nullptr || open->objectName() != dialog) {
        WhenOpen(dialog, deed);
        return;
      }
      deed(*open);
    });
  }

  // The first field of the first row of a statement.
  std::string Stored(const std::string& statement, const std::string& field) {
    return session_->StoreConnection.Query(statement).Text(field);
  }

  TestHome home_;
  AwaitedMessages messages_;
  ChosenFiles files_;
  std::unique_ptr<core::Session> session_;
  ui::LayoutMemory layout_;
  ui::Workplace place_;
};

}  // namespace orvex::test
