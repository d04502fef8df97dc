#include "ui/dialogs/client_dialog.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <memory>

#include "practice/groups.h"
#include "support/ui_desk.h"
#include "ui/base/message_boxes.h"
#include "ui/base/theme.h"

namespace orvex::ui {
namespace {

class ClientDialogTest : public test::DeskTest {
 protected:
  std::int32_t AddClient(std::int32_t cityId = 1) {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    chart::SelectCity(*session_, cityId, form);
    form.FullName = "Asha Rao";
    form.Birth = test::Moment("1990-07-05 14:30:00");
    return chart::SaveNewClient(*session_, form, 1).Id;
  }

  std::unique_ptr<ClientDialog> OpenNew() {
    std::unique_ptr<ClientDialog> dialog(ClientDialog::ForNew(place_, 1));
    Show(*dialog);
    return dialog;
  }

  static QString Field(QWidget& dialog, const char* name) {
    return Find<QLineEdit>(dialog, name).text();
  }

  // The refusal that stands in the dialog, checked to lie under the field that has the focus.
  static QString Refusal(QWidget& dialog) {
    auto& label = Find<QLabel>(dialog, "refusal");
    const QWidget* field = dialog.focusWidget();
    const int top = label.mapTo(&dialog, QPoint(0, 0)).y();
    const int bottom = field->mapTo(&dialog, QPoint(0, field->height())).y();
    EXPECT_TRUE(!label.isVisible() || (top >= bottom && top - bottom < 4 * label.height()));
    return label.isVisible() ? label.text() : QString();
  }

  static bool IsRed(QWidget& dialog, const char* field) {
    return Find<QLineEdit>(dialog, field).palette().color(QPalette::Text) == Theme::Red();
  }

  static void TypeMoment(QWidget& dialog, const QString& date, const QString& time) {
    Type(dialog, "birth", date);
    Type(dialog, "birthTime", time);
  }

  static QStringList Choices(QWidget& dialog) {
    QStringList texts;
    auto& list = Find<QListWidget>(dialog, "cityChoices");
    for (int row = 0; list.isVisible() && row < list.count(); ++row) {
      texts << list.item(row)->text();
    }
    return texts;
  }
};

TEST_F(ClientDialogTest, AFieldThatGetsTheFocusMarksItsTextByKeyMouseAndRefusal) {
  const std::unique_ptr<ClientDialog> dialog(ClientDialog::ForEdit(place_, AddClient()));
  Show(*dialog);
  const auto marked = [&dialog](const char* field) {
    return Find<QLineEdit>(*dialog, field).selectedText();
  };
  EXPECT_EQ(marked("fullName"), "Asha Rao");
  Type(*dialog, "offset", "28");
  auto& name = Find<QLineEdit>(*dialog, "fullName");
  const QPoint middle(name.width() / 2, name.height() / 2);
  QTest::mouseClick(&name, Qt::LeftButton, {}, middle);
  EXPECT_EQ(name.selectedText(), "Asha Rao");
  QTest::mouseClick(&name, Qt::LeftButton, {}, middle);
  EXPECT_EQ(name.selectedText(), "") << "a second click sets the cursor";

  auto& comments = Find<QPlainTextEdit>(*dialog, "comments");
  QTest::keyClicks(&comments, "two words");
  QTest::mouseClick(comments.viewport(), Qt::LeftButton, {}, {20, 10});
  EXPECT_EQ(comments.textCursor().selectedText(), "two words");

  Press(*dialog, "action");
  EXPECT_EQ(FocusName(*dialog), "offset");
  EXPECT_EQ(marked("offset"), "28");
}

TEST_F(ClientDialogTest, ABirthIsAddedWithKeysAlone) {
  const auto dialog = OpenNew();
  EXPECT_EQ(dialog->windowTitle(), "Add Client");
  EXPECT_EQ(FocusName(*dialog), "fullName");
  QTest::keyClicks(dialog->focusWidget(), "O'Brien");
  TypeMoment(*dialog, "05071990", "2:30p");
  EXPECT_EQ(Find<QLabel>(*dialog, "birthEcho").text(), "Thursday, 5 July 1990");
  EXPECT_EQ(Find<QLabel>(*dialog, "birthTimeEcho").text(), "02:30:00 PM");
  Type(*dialog, "city", "bombay");
  QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(Field(*dialog, "city"), "Mumbai, IN");
  QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
  ASSERT_NE(dialog->SavedId(), 0);
  EXPECT_EQ(Stored("Select * from client_master", "fullname"), "O'Brien");
  EXPECT_EQ(Stored("Select * from client_master", "birthdate"), "1990-07-05 14:30:00");
  EXPECT_EQ(Stored("Select * from client_master", "cityid"), "1");
}

TEST_F(ClientDialogTest, RefusalsStandUnderTheirFieldWordForWordOneAtATime) {
  const auto dialog = OpenNew();
  const auto press = [&dialog] { QTest::keyClick(dialog.get(), Qt::Key_Return); };
  press();
  EXPECT_EQ(Refusal(*dialog), "Client Name is a mandatory field.");
  EXPECT_EQ(FocusName(*dialog), "fullName");
  Type(*dialog, "fullName", "Ravi");
  TypeMoment(*dialog, "31.2.1990", "14:30");
  press();
  EXPECT_EQ(FocusName(*dialog), "birth");
  EXPECT_TRUE(Find<QLineEdit>(*dialog, "birth").hasSelectedText());
  QTest::keyClicks(dialog->focusWidget(), "5.7.1990");
  Press(*dialog, "ascendantByHand");
  Type(*dialog, "ascendantDegree", "361");
  press();
  EXPECT_EQ(Refusal(*dialog), "Please enter a value between 0 to 360.");
  Press(*dialog, "ascendantComputed");
  Type(*dialog, "city", "qqqq");
  QTest::keyClick(dialog->focusWidget(), Qt::Key_Escape);
  press();
  EXPECT_EQ(Refusal(*dialog), "Please select a City from the list.");
  EXPECT_EQ(FocusName(*dialog), "city");
  QTest::keyClicks(dialog->focusWidget(), "dubai");
  QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
  for (const auto& [offset, text] : {std::pair("x", "Please enter a numeric value."),
                                     std::pair("28", "Incorrect Offset Value entered.")}) {
    Type(*dialog, "offset", offset);
    press();
    EXPECT_EQ(Refusal(*dialog), text);
    EXPECT_EQ(Find<QLineEdit>(*dialog, "offset").selectedText(), offset);
  }
  Type(*dialog, "offset", "4");
  Type(*dialog, "longitude", "72,5");
  press();
  EXPECT_EQ(Refusal(*dialog), "Longitude is a numeric field.");
  EXPECT_EQ(Stored("Select count(id) as cnt from client_master", "cnt"), "0");
}

TEST_F(ClientDialogTest, TheMarkedCityIsTakenByEnterTabAndClick) {
  AddClient(2);
  for (const char* how : {"enter", "tab", "click"}) {
    SCOPED_TRACE(how);
    const auto dialog = OpenNew();
    Type(*dialog, "city", "hyderabad");
    EXPECT_EQ(Field(*dialog, "offset"), "0");
    EXPECT_FALSE(Find<QWidget>(*dialog, "offset").isEnabled());
    EXPECT_EQ(Field(*dialog, "latitude"), "");
    auto& list = Find<QListWidget>(*dialog, "cityChoices");
    ASSERT_GE(list.count(), 2);
    EXPECT_EQ(list.currentRow(), 0);
    const QString second = list.item(1)->text();
    if (std::string(how) == "click") {
      QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                        list.visualItemRect(list.item(1)).center());
    } else {
      QTest::keyClick(dialog->focusWidget(), Qt::Key_Down);
      QTest::keyClick(dialog->focusWidget(),
                      std::string(how) == "enter" ? Qt::Key_Return : Qt::Key_Tab);
    }
    EXPECT_FALSE(list.isVisible());
    EXPECT_TRUE(second.startsWith(Field(*dialog, "city"))) << Typed(second);
    EXPECT_TRUE(Find<QWidget>(*dialog, "offset").isEnabled());
    EXPECT_NE(Field(*dialog, "latitude"), "");
    EXPECT_EQ(FocusName(*dialog), std::string(how) == "tab" ? "latitude" : "city");
  }
}

TEST_F(ClientDialogTest, CitiesStandWithTheirUseTheirPlaceAndTheirClocks) {
  AddClient(2);
  const auto dialog = OpenNew();
  TypeMoment(*dialog, "5 may 1943", "14:30");
  Type(*dialog, "city", "delh");
  ASSERT_FALSE(Choices(*dialog).isEmpty());
  EXPECT_EQ(Choices(*dialog).first(),
            "Delhi, IN used by 1 client 28.65 N 77.23 E +6:30 then, city +5:30");
  QTest::keyClick(dialog->focusWidget(), Qt::Key_Escape);
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_TRUE(Choices(*dialog).isEmpty());
}

TEST_F(ClientDialogTest, TheOffsetOfTheClocksIsAskedForOnceBeforeASave) {
  const char* question =
      "Clocks in Asia/Kolkata showed 6.5 (+0630) then.\n\n"
      "With 6.5 the chart is cast for 5 May 1943 08:00 UT,\n"
      "with 5.5 for 5 May 1943 09:00 UT.";
  for (const bool use : {true, false}) {
    const auto dialog = OpenNew();
    Type(*dialog, "fullName", "Vasant");
    TypeMoment(*dialog, "5.5.1943", "1430");
    Type(*dialog, "city", "mumbai");
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(Find<QLabel>(*dialog, "zoneClocks").text(),
              "Clocks in Asia/Kolkata showed 6.5 (+0630) then. "
              "The chart is cast for 5 May 1943 09:00 UT.");
    messages_.Await(question, use ? core::MessageAnswer::Yes : core::MessageAnswer::No);
    Press(*dialog, "action");
    EXPECT_EQ(Stored("Select * from client_master order by id desc", "offset"),
              use ? "6.5" : "5.5");
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
  }
  // What an edit leaves as it was is not asked again.
  const auto last = static_cast<std::int32_t>(
      session_->StoreConnection.Query("Select * from client_master order by id desc")
          .Integer("id"));
  const std::unique_ptr<ClientDialog> edit(ClientDialog::ForEdit(place_, last));
  Show(*edit);
  Type(*edit, "comments", "Knew it.");
  Press(*edit, "action");
  EXPECT_EQ(Stored("Select * from client_master order by id desc", "comments"), "Knew it.");
}

// Enter takes the first one, which the question offers; Escape leaves things as they are.
TEST_F(ClientDialogTest, TheButtonsOfTheQuestionSayWhatTheyDo) {
  MessageBoxes boxes;
  const auto answer = [&boxes](auto deed) {
    WhenOpen("messageBox", deed);
    return boxes.ChooseFirst("Clocks?", "Use -4", "Keep -5");
  };
  const auto click = [](const char* caption) {
    return [caption](QWidget& box) {
      for (auto* button : box.findChildren<QPushButton*>()) {
        if (button->text() == caption) {
          QTest::mouseClick(button, Qt::LeftButton);
        }
      }
    };
  };
  const auto press = [](Qt::Key key) {
    return [key](QWidget& box) { QTest::keyClick(&box, key); };
  };
  EXPECT_TRUE(answer(click("Use -4")));
  EXPECT_FALSE(answer(click("Keep -5")));
  EXPECT_TRUE(answer(press(Qt::Key_Return)));
  EXPECT_FALSE(answer(press(Qt::Key_Escape)));
}

TEST_F(ClientDialogTest, AnHourThatCameTwiceIsWarnedOf) {
  const auto dialog = OpenNew();
  TypeMoment(*dialog, "14.10.1945", "23:30");
  Type(*dialog, "city", "mumbai");
  QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
  EXPECT_TRUE(Find<QLabel>(*dialog, "zoneWarning").text().startsWith("This time came twice"));
  Press(*dialog, "takeOffset");
  EXPECT_EQ(Field(*dialog, "offset"), "6.5");
  EXPECT_TRUE(IsRed(*dialog, "offset"));
}

TEST_F(ClientDialogTest, CoordinatesAreTakenAsMapsWriteThem) {
  const auto dialog = OpenNew();
  Type(*dialog, "fullName", "Ravi");
  Type(*dialog, "latitude", "18N31");
  QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(Field(*dialog, "latitude"), "18.51667");
  EXPECT_TRUE(IsRed(*dialog, "latitude"));
  Type(*dialog, "longitude", "73°52'E");
  QTest::keyClick(dialog.get(), Qt::Key_Return);
  ASSERT_NE(dialog->SavedId(), 0);
  EXPECT_EQ(Stored("Select * from client_master", "latitude"), "18.51667");
  EXPECT_EQ(Stored("Select * from client_master", "longitude"), "73.86667");
}

TEST_F(ClientDialogTest, AQueryTakesTheMomentOfNowANumberAndAQuestion) {
  const auto dialog = OpenNew();
  TypeMoment(*dialog, "5.7.1990", "14:30");
  EXPECT_FALSE(Find<QWidget>(*dialog, "horaryNumber").isVisible());
  Press(*dialog, "horary");
  EXPECT_FALSE(Find<QWidget>(*dialog, "ascendantByHand").isVisible());
  EXPECT_EQ(Field(*dialog, "birth"), "24 Nov 2026");
  EXPECT_EQ(Field(*dialog, "birthTime"), "10:00:00");

  auto& number = Find<QComboBox>(*dialog, "horaryNumber");
  EXPECT_EQ(number.currentText(), "1");
  Press(*dialog, "random");
  EXPECT_GE(number.currentText().toInt(), 1);
  EXPECT_LE(number.currentText().toInt(), 249);
  number.lineEdit()->setFocus();
  number.lineEdit()->selectAll();
  QTest::keyClicks(number.lineEdit(), "x");
  EXPECT_EQ(Find<QLabel>(*dialog, "refusal").text(),
            "Only a numeric value is accepted in this field.");
  QTest::keyClicks(number.lineEdit(), "250");
  Type(*dialog, "fullName", "Ravi");
  Press(*dialog, "action");
  EXPECT_EQ(Refusal(*dialog), "Please enter a value between 1 to 249.");
  QTest::keyClicks(dialog->focusWidget(), "249");
  Press(*dialog, "action");
  EXPECT_EQ(Refusal(*dialog), "Horary Question is a mandatory field.");
  Type(*dialog, "horaryQuestion", " When? ");
  EXPECT_EQ(Find<QLabel>(*dialog, "questionCount").text(), "5 of 100");
  Press(*dialog, "action");
  EXPECT_EQ(Stored("Select * from client_master", "horaryno"), "249");
  EXPECT_EQ(Stored("Select * from client_master", "birthdate"), "2026-11-24 10:00:00");
}

TEST_F(ClientDialogTest, TheGroupIsNamedAndChosenForANewClientOnly) {
  const core::SaveResult family = practice::AddGroup(*session_, "Family");
  const auto dialog = OpenNew();
  auto& group = Find<QComboBox>(*dialog, "group");
  EXPECT_EQ(group.currentText(), "General");
  group.setFocus();
  QTest::keyClicks(&group, "Fam");
  Type(*dialog, "fullName", "Ravi");
  Press(*dialog, "action");
  EXPECT_EQ(Stored("Select * from client_master", "groupid"), Typed(WholeText(family.Id)));
  EXPECT_EQ(dialog->GroupId(), family.Id);

  const std::unique_ptr<ClientDialog> edit(ClientDialog::ForEdit(place_, dialog->SavedId()));
  EXPECT_EQ(Find<QComboBox>(*edit, "group").currentText(), "Family");
  EXPECT_FALSE(Find<QComboBox>(*edit, "group").isEnabled());
}

TEST_F(ClientDialogTest, AnEditShowsInRedWhatDiffersFromTheCityAndKeepsIt) {
  const std::int32_t id = AddClient();
  session_->StoreConnection.Execute("Update client_master set latitude = 19.5");
  const std::unique_ptr<ClientDialog> dialog(ClientDialog::ForEdit(place_, id));
  Show(*dialog);
  EXPECT_EQ(dialog->windowTitle(), "Edit Client");
  EXPECT_EQ(Find<QPushButton>(*dialog, "action").text(), "&Save");
  EXPECT_EQ(Field(*dialog, "birth"), "5 Jul 1990");
  EXPECT_TRUE(IsRed(*dialog, "latitude"));
  EXPECT_FALSE(IsRed(*dialog, "longitude"));
  Type(*dialog, "comments", "Moved house.");
  Press(*dialog, "action");
  EXPECT_EQ(Stored("Select * from client_master", "latitude"), "19.5");
  EXPECT_EQ(Stored("Select * from client_master", "birthdate"), "1990-07-05 14:30:00");
  EXPECT_EQ(Stored("Select * from client_master", "comments"), "Moved house.");

  messages_.Await("The record you are trying to edit could not be retrieved.");
  EXPECT_EQ(ClientDialog::ForEdit(place_, 99), nullptr);
}

TEST_F(ClientDialogTest, EscapeAsksAndCancelDoesNotAndBothWriteNothing) {
  for (const char* how : {"escape", "cancel"}) {
    const auto dialog = OpenNew();
    Type(*dialog, "fullName", "Nobody");
    if (std::string(how) == "escape") {
      messages_.Await("What was typed here is not saved. Do you want to throw it away?",
                      core::MessageAnswer::Yes);
      QTest::keyClick(dialog.get(), Qt::Key_Escape);
    } else {
      Press(*dialog, "cancel");
    }
    EXPECT_FALSE(dialog->isVisible());
  }
  EXPECT_EQ(Stored("Select count(id) as cnt from client_master", "cnt"), "0");
}

TEST_F(ClientDialogTest, ItFitsIntoASmallScreen) {
  const auto dialog = OpenNew();
  dialog->resize(630, 640);
  QCoreApplication::processEvents();
  EXPECT_LE(dialog->width(), 640);
  EXPECT_LE(dialog->height(), 640);
  for (const char* name : {"fullName", "birth", "city", "offset", "email", "action"}) {
    auto& field = Find<QWidget>(*dialog, name);
    const QRect at(field.mapTo(dialog.get(), QPoint(0, 0)), field.size());
    EXPECT_TRUE(dialog->rect().contains(at)) << name;
  }
}

}  // namespace
}  // namespace orvex::ui
