// The keys that mean the same in every list: Enter opens, F2 edits, Del deletes, Ctrl+C copies,
// Escape leaves. Each list is clicked first, as a hand does.
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QTimer>

#include "judgement/matters.h"
#include "practice/client_list.h"
#include "practice/groups.h"
#include "ui/dialogs/cities_dialog.h"
#include "ui/dialogs/matters_dialog.h"
#include "ui/dialogs/pick_city_dialog.h"
#include "ui/main_window_home.h"
#include "ui/transit/transit_details_dialog.h"

namespace orvex::ui {
namespace {

class ListKeys : public MainWindowTest {
 protected:
  ListKeys() {
    practice::AddGroup(*session_, "Students");
    AddClient("Asha Rao", "1990-11-24 14:30:00");
    AddClient("Ravi Iyer", "1981-11-24 06:10:00");
    messages_.AnswerOthers([this](const std::string& text) {
      asked_ = text;
      return core::MessageAnswer::No;
    });
  }

  void Turn(int page) {
    ComeBack();
    QTest::keyClick(window_.get(), static_cast<Qt::Key>(Qt::Key_0 + page), Qt::ControlModifier);
    QCoreApplication::processEvents();
  }

  // Presses a key where the keys go, and gives the name of the dialog that it opened, the question
  // that it asked, or "horoscope".
  QString Effect(Qt::Key key, QWidget& window) {
    asked_.clear();
    opened_.clear();
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, qApp, [this, &window] {
      QWidget* open = QApplication::activeModalWidget();
      if (open != nullptr && open != &window) {
        opened_ = open->objectName();
        QTest::keyClick(open, Qt::Key_Escape);
      }
    });
    look.start(0);
    window.activateWindow();
    QCoreApplication::processEvents();
    QTest::keyClick(window.focusWidget(), key);
    QCoreApplication::processEvents();
    if (!session_->State.OpenHoroscopes.empty()) {
      DeleteOpenWindows();
      return "horoscope";
    }
    return asked_.empty() ? opened_ : Shown(asked_).section('\n', 0, 0);
  }

  static QString FirstCaption(const TableView& list) {
    QHeaderView& header = *list.horizontalHeader();
    for (int column = 0; column < header.count(); ++column) {
      if (!list.isColumnHidden(column)) {
        return list.Model().headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
      }
    }
    return {};
  }

  // Every table in sight of a window copies itself, with its captions.
  static void ExpectCopies(QWidget& window) {
    for (TableView* list : window.findChildren<TableView*>()) {
      if (!list->isVisible() || list->Model().rowCount() == 0 ||
          list->focusPolicy() == Qt::NoFocus) {
        continue;
      }
      QApplication::clipboard()->clear();
      list->setFocus();
      QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
      const QString copied = QApplication::clipboard()->text();
      EXPECT_TRUE(copied.startsWith(FirstCaption(*list))) << Typed(list->objectName());
      EXPECT_EQ(copied.count('\n'), list->Model().rowCount() + 1) << Typed(list->objectName());
    }
  }

  std::string asked_;
  QString opened_;
};

TEST_F(ListKeys, ListsOfTheMainWindow) {
  Open();
  window_->resize(1366, 768);  // wide enough for the list of groups
  struct Case {
    int Page;
    const char* List;
    const char* Enter;
    const char* Edit;
    const char* Delete;
  };
  for (const Case& each : std::vector<Case>{
           {1, "clientList", "horoscope", "clientDialog", practice::kDeleteClientQuestion},
           {2, "searchResults", "horoscope", "clientDialog", practice::kDeleteClientQuestion},
           {5, "birthdayList", "horoscope", "clientDialog", practice::kDeleteClientQuestion},
           {3, "grid", "transitDetails", "", ""},
           {1, "groupList", "", "groupDialog", practice::kDeleteGroupQuestion}}) {
    SCOPED_TRACE(each.List);
    Turn(each.Page);
    if (each.Page == 2) {
      Press(*window_, "search");
    }
    TableView& list = List(each.List);
    ASSERT_TRUE(QTest::qWaitFor([&list] { return list.Model().rowCount() > 0; }));
    const int row = each.Page == 1 && list.objectName() == "groupList"
                        ? list.Model().RowOfTag("1").value_or(0)
                        : 0;
    // A click opens a cell of the month; the others are chosen by it.
    if (each.Page == 3) {
      list.setFocus();
    } else {
      ClickRow(list, row);
    }
    EXPECT_EQ(Effect(Qt::Key_F2, *window_), each.Edit);
    list.setFocus();
    EXPECT_EQ(Effect(Qt::Key_Delete, *window_), each.Delete);
    list.setFocus();
    EXPECT_EQ(Effect(Qt::Key_Return, *window_), each.Enter);
    if (list.objectName() == "groupList") {
      EXPECT_EQ(FocusName(*window_), "clientList");  // where Enter on a group leads
    }
    ExpectCopies(*window_);
  }
}

TEST_F(ListKeys, TablesOfThePagesAreCopied) {
  Open();
  for (int page = 1; page <= 5; ++page) {
    SCOPED_TRACE(page);
    Turn(page);
    QTest::qWait(150);
    ExpectCopies(*window_);
  }
}

TEST_F(ListKeys, ListsOfTheDialogs) {
  Open();
  struct Case {
    std::function<QDialog*()> Make;
    const char* List;
    const char* Enter;  // "" leaves the dialog, with what was chosen
    const char* Edit;
    const char* Delete;
  };
  const std::vector<Case> cases = {
      {[this] { return new CitiesDialog(place_); }, "cityList", "cityDialog", "cityDialog", ""},
      {[this] { return new MattersDialog(place_, 0); }, "matterList", "matterDialog",
       "matterDialog", judgement::kDeleteMatterQuestion},
      {[this] { return new PickCityDialog(place_); }, "cityList", "", "", ""},
      {[this] {
         return new TransitDetailsDialog(place_, transit::Planet::Moon, session_->Time.Today());
       },
       "hours", "", "", ""}};
  for (const Case& each : cases) {
    const std::unique_ptr<QDialog> dialog(each.Make());
    SCOPED_TRACE(Typed(dialog->objectName()));
    dialog->setModal(true);
    Show(*dialog);
    auto& list = Find<TableView>(*dialog, each.List);
    ASSERT_GT(list.Model().rowCount(), 0);
    list.setFocus();
    list.SelectFirst();
    EXPECT_EQ(Effect(Qt::Key_F2, *dialog), each.Edit);
    list.setFocus();
    EXPECT_EQ(Effect(Qt::Key_Delete, *dialog), each.Delete);
    ExpectCopies(*dialog);
    list.setFocus();
    EXPECT_EQ(Effect(Qt::Key_Return, *dialog), each.Enter);
    if (dialog->isVisible()) {
      QTest::keyClick(dialog->focusWidget(), Qt::Key_Escape);
    }
    EXPECT_FALSE(dialog->isVisible());
  }
}

}  // namespace
}  // namespace orvex::ui
