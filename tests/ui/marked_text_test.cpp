#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>

#include "chart/client_saving.h"
#include "practice/remedies.h"
#include "support/ui_desk.h"
#include "ui/dialogs/city_dialog.h"
#include "ui/dialogs/group_dialog.h"
#include "ui/dialogs/remedy_dialog.h"
#include "ui/dialogs/settings_dialog.h"

namespace orvex::ui {
namespace {

class MarkedTextTest : public test::DeskTest {
 protected:
  MarkedTextTest() {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    chart::SelectCity(*session_, 1, form);
    form.FullName = "Asha Rao";
    form.Birth = test::Moment("1990-07-05 14:30:00");
    const std::int32_t client = chart::SaveNewClient(*session_, form, 1).Id;
    remedy_ =
        practice::SaveNewRemedy(*session_, {2, "No rest", "Pearl", home_.Clock.Now()}, client).Id;
  }

  static QString Marked(const QWidget& field) {
    if (const auto* text = qobject_cast<const QPlainTextEdit*>(&field)) {
      return text->textCursor().selectedText();
    }
    const auto* line = qobject_cast<const QLineEdit*>(&field);
    return line == nullptr ? QString() : line->selectedText();
  }

  static QWidget& Under(QWidget& field) {
    auto* text = qobject_cast<QPlainTextEdit*>(&field);
    return text == nullptr ? field : *text->viewport();
  }

  std::int32_t remedy_ = 0;
};

TEST_F(MarkedTextTest, AFieldThatIsEnteredMarksItsTextInEveryDialog) {
  session_->StoreConnection.Execute("Update settings set astrologername = 'K. Iyer'");
  struct Case {
    const char* Field;
    QString Text;
    std::function<QDialog*()> Make;
    int Page = -1;
  };
  const std::vector<Case> cases = {
      {"groupName", "General", [this] { return new GroupDialog(place_, 1, "General"); }},
      {"cityName", "Mumbai", [this] { return CityDialog::ForEdit(place_, 1); }},
      {"problem", "No rest", [this] { return RemedyDialog::ForEdit(place_, remedy_); }},
      {"remedy", "Pearl", [this] { return RemedyDialog::ForEdit(place_, remedy_); }},
      {"AstrologerName", "K. Iyer", [this] { return new SettingsDialog(place_); }, 2},
      {"Orbit_60", "5", [this] { return new SettingsDialog(place_); }, 1},
  };
  for (const Case& one : cases) {
    SCOPED_TRACE(one.Field);
    const std::unique_ptr<QDialog> dialog(one.Make());
    Show(*dialog);
    if (one.Page >= 0) {
      auto& pages = Find<QListWidget>(*dialog, "option");
      QTest::mouseClick(pages.viewport(), Qt::LeftButton, {},
                        pages.visualItemRect(pages.item(one.Page)).center());
    }
    auto& field = Find<QWidget>(*dialog, one.Field);
    Find<QWidget>(*dialog, "cancel").setFocus(Qt::TabFocusReason);
    QTest::mouseClick(&Under(field), Qt::LeftButton, {}, {6, 6});
    EXPECT_EQ(Marked(field), one.Text) << "by the mouse";
    QTest::mouseClick(&Under(field), Qt::LeftButton, {}, {6, 6});
    EXPECT_EQ(Marked(field), "") << "a second click sets the cursor";
    QTest::keyClick(&field, Qt::Key_Tab);
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(FocusName(*dialog), one.Field);
    EXPECT_EQ(Marked(field), one.Text) << "by the keys";
  }
}

TEST_F(MarkedTextTest, ARefusedFieldIsInSightAndMarkedSoThatTypingReplacesIt) {
  const QString tooLong(51, 'n');
  SettingsDialog dialog(place_);
  Show(dialog);
  Find<QLineEdit>(dialog, "AstrologerName").setText(tooLong);
  QString seen;
  messages_.AnswerOthers([&](const std::string& text) {
    EXPECT_EQ(text, "Name cannot exceed 50 characters.");
    seen = Find<QWidget>(dialog, "AstrologerName").isVisible() ? dialog.windowTitle() : "hidden";
    return core::MessageAnswer::Ok;
  });
  Press(dialog, "action");
  EXPECT_EQ(seen, "Settings - Profile") << "the page is in sight before its message";
  EXPECT_EQ(Marked(*dialog.focusWidget()), tooLong);
  QTest::keyClicks(dialog.focusWidget(), "Iyer");
  Press(dialog, "action");
  EXPECT_EQ(session_->State.AstrologerName, "Iyer");
}

}  // namespace
}  // namespace orvex::ui
