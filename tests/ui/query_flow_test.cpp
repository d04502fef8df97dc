// A query from its number to the page on which it is judged.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <memory>

#include "support/ui_desk.h"
#include "ui/base/open_windows.h"
#include "ui/dialogs/client_dialog.h"
#include "ui/dialogs/number_table.h"
#include "ui/horoscope/horoscope_window.h"
#include "ui/main/main_window.h"

namespace orvex::ui {
namespace {

class QueryFlowTest : public test::DeskTest {
 protected:
  ~QueryFlowTest() override { DeleteOpenWindows(); }

  static HoroscopeWindow* OpenOne() {
    HoroscopeWindow* found = nullptr;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      auto* window = qobject_cast<HoroscopeWindow*>(widget);
      found = window != nullptr && window->isVisible() ? window : found;
    }
    return found;
  }

  static QString PageOf(QWidget& window) {
    return Find<QListWidget>(window, "pages").currentItem()->text();
  }
};

TEST_F(QueryFlowTest, ANumberIsLookedUpInTheTableAndTakenByDoubleClickOrEnter) {
  const std::unique_ptr<ClientDialog> dialog(ClientDialog::ForNew(place_, 1));
  Show(*dialog);
  EXPECT_FALSE(Find<QLabel>(*dialog, "whoseMoment").isVisible());
  Press(*dialog, "horary");
  EXPECT_TRUE(Find<QLabel>(*dialog, "whoseMoment").isVisible());
  EXPECT_TRUE(Find<QLabel>(*dialog, "whoseMoment").text().contains("yours, the astrologer's"));
  auto& number = Find<QComboBox>(*dialog, "horaryNumber");
  number.setEditText("108");
  for (const bool byKey : {false, true}) {
    Press(*dialog, "numberTableLink");
    const QPointer<NumberTable> table = &Find<NumberTable>(*dialog, "numberTable");
    auto& list = Find<TableView>(*table, "numberList");
    EXPECT_EQ(list.Model().rowCount(), 249);
    EXPECT_EQ(list.SelectedTag(), byKey ? "55" : "108") << "the number of the dialog is marked";
    if (byKey) {
      Type(*table, "numberSearch", "173");
      QTest::keyClick(&Find<QWidget>(*table, "numberSearch"), Qt::Key_Return);
    } else {
      ClickRow(list, 54, true);
    }
    EXPECT_TRUE(table == nullptr || !table->isVisible());
    EXPECT_EQ(number.currentText(), byKey ? "173" : "55");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

TEST_F(QueryFlowTest, AQueryThatIsSavedStandsOnThePageOfItsMatterAndABirthOnThatOfItsChart) {
  for (const bool query : {false, true}) {
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
    MainWindow window(place_);
    Show(window);
    WhenOpen("clientDialog", [query](QWidget& dialog) {
      Type(dialog, "fullName", query ? "The lost ring" : "Asha Rao");
      if (query) {
        Press(dialog, "horary");
        Find<QComboBox>(dialog, "horaryNumber").setEditText("108");
        Type(dialog, "horaryQuestion", "Will it be?");
      }
      Press(dialog, "action");
    });
    QTest::keyClick(&window, Qt::Key_N, Qt::ControlModifier);
    HoroscopeWindow* opened = OpenOne();
    ASSERT_NE(opened, nullptr);
    QCoreApplication::processEvents();
    EXPECT_EQ(PageOf(*opened), query ? "Matter" : "Chart");
    if (query) {
      EXPECT_EQ(opened->focusWidget(), &Find<QWidget>(*opened, "matterName"));
      EXPECT_EQ(Find<QLabel>(*opened, "HoraryQuestion").text(), "Will it be?");
    }
    opened->close();
    QCoreApplication::sendPostedEvents(opened, QEvent::DeferredDelete);
  }
}

}  // namespace
}  // namespace orvex::ui
