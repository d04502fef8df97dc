// Walks of a hand over the main window, drawn by a seed. Whatever is clicked, typed and pressed:
// what a command would act on is what is marked, and the store holds what was saved.
#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QStackedWidget>
#include <array>
#include <functional>
#include <map>
#include <random>

#include "chart/client_saving.h"
#include "practice/groups.h"
#include "support/ui_desk.h"
#include "ui/base/open_windows.h"
#include "ui/main/main_window.h"

namespace orvex::ui {
namespace {

class RandomWalkTest : public test::DeskTest {
 protected:
  using Names = std::map<std::int32_t, std::string>;

  RandomWalkTest() {
    messages_.AnswerOthers([this](const std::string& text) {
      asked_ = text;
      return agrees_ ? core::MessageAnswer::Yes : core::MessageAnswer::No;
    });
    for (const char* group : {"Family", "Work"}) {
      practice::AddGroup(*session_, group);
    }
    for (int client = 0; client < 30; ++client) {
      AddClient("Client " + std::to_string(client), 1 + client % 3);
    }
    saved_ = StoredNames();
  }
  ~RandomWalkTest() override { DeleteOpenWindows(); }

  void AddClient(const std::string& name, std::int32_t group) {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    chart::SelectCity(*session_, 1, form);
    form.FullName = name;
    form.Birth = test::Moment("1990-07-05 14:30:00");
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
    EXPECT_FALSE(chart::SaveNewClient(*session_, form, group).Refused);
  }

  Names StoredNames() const {
    Names names;
    for (core::Result row =
             session_->StoreConnection.Query("Select id, fullname from client_master");
         !row.AtEnd(); row.Next()) {
      names[static_cast<std::int32_t>(row.Integer("id"))] = row.Text("fullname");
    }
    return names;
  }

  int Draw(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
  QStackedWidget& Pages() { return Find<QStackedWidget>(*window_, "pages"); }
  bool OnSearch() { return Pages().currentIndex() == 1; }
  TableView& List() {
    return Find<TableView>(*window_, OnSearch() ? "searchResults" : "clientList");
  }
  bool CanDo(const char* action) { return window_->findChild<QAction*>(action)->isEnabled(); }

  // The id of the marked row, 0 without one.
  std::int32_t Marked() {
    const QModelIndexList rows = List().selectionModel()->selectedRows();
    EXPECT_LE(rows.size(), 1);
    return rows.isEmpty() ? 0 : std::stoi(List().Model().TagOf(rows.constFirst().row()));
  }

  void Key(int key, Qt::KeyboardModifiers modifiers = {}) {
    QWidget* focus = window_->focusWidget();
    QTest::keyClick(focus == nullptr ? window_.get() : focus, static_cast<Qt::Key>(key), modifiers);
    QCoreApplication::processEvents();
  }

  void ClickInto(TableView& list) {
    if (list.Model().rowCount() == 0) {
      return;
    }
    const QModelIndex index = list.Model().index(Draw(list.Model().rowCount()), 0);
    list.scrollTo(index);
    QTest::mouseClick(list.viewport(), Qt::LeftButton,
                      Draw(3) == 0 ? Qt::ControlModifier : Qt::NoModifier,
                      list.visualRect(index).center());
  }

  void ClickHeader() {
    QHeaderView& header = *List().horizontalHeader();
    const int column = Draw(3);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                      {header.sectionViewportPosition(column) + 8, header.height() / 2});
  }

  void TurnPage() { Press(*window_, Draw(2) == 0 ? "showClientsButton" : "showSearchButton"); }

  void TypeFilter() {
    static constexpr std::array kTexts = {" ", "client 1", "2", "nobody"};
    Key(Qt::Key_F, Qt::ControlModifier);
    Type(*window_, "clientFilter", kTexts.at(static_cast<std::size_t>(Draw(4))));
    if (Draw(2) == 0) {
      Key(Qt::Key_A, Qt::ControlModifier);
      Key(Qt::Key_Delete);
    }
  }

  void Search() {
    Key(Qt::Key_K, Qt::ControlModifier);
    Key(Qt::Key_K, Qt::ControlModifier);
    Key(Qt::Key_Return);
  }

  void Edit() {
    const std::int32_t client = Marked();
    if (!CanDo("editClient")) {
      return;
    }
    const bool saves = agrees_ = Draw(2) == 0;
    const std::string name = "Renamed " + std::to_string(++renamed_);
    bool opened = false;
    WhenOpen("clientDialog", [saves, &name, &opened](QWidget& dialog) {
      opened = true;
      if (saves) {
        Type(dialog, "fullName", Shown(name));
      }
      QTest::keyClick(dialog.focusWidget(), saves ? Qt::Key_Return : Qt::Key_Escape);
    });
    // In the list of groups the key means the group.
    if (window_->focusWidget() == &Find<TableView>(*window_, "groupList")) {
      List().setFocus(Qt::TabFocusReason);
    }
    Key(Qt::Key_F2);
    ASSERT_TRUE(opened);
    // A desktop hands the focus back to the window; the platform of the tests does not.
    window_->activateWindow();
    if (saves) {
      saved_[client] = name;
    }
  }

  void Delete() {
    const std::int32_t client = Marked();
    if (!CanDo("deleteClient")) {
      return;
    }
    agrees_ = Draw(2) == 0;
    Key(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(asked_, "Are you sure you want to delete the selected Client?\n\n" + saved_[client]);
    if (agrees_) {
      deleted_.emplace_back(client, saved_[client]);
      saved_.erase(client);
    }
  }

  void Undo() {
    // In a field the key takes back what was typed there.
    List().setFocus(Qt::TabFocusReason);
    Key(Qt::Key_Z, Qt::ControlModifier);
    if (!deleted_.empty()) {
      saved_.insert(deleted_.back());
      deleted_.pop_back();
    }
  }

  void Step() {
    static constexpr std::array kKeys = {Qt::Key_Home, Qt::Key_End,     Qt::Key_Up,
                                         Qt::Key_Down, Qt::Key_Backtab, Qt::Key_Tab};
    const std::array<std::function<void()>, 12> steps = {
        [this] { ClickInto(List()); },
        [this] { ClickInto(List()); },
        [this] {
          ClickInto(Find<TableView>(*window_, OnSearch() ? "searchResults" : "groupList"));
        },
        [this] { ClickHeader(); },
        [this] { TurnPage(); },
        [this] { TypeFilter(); },
        [this] { Search(); },
        [this] { Edit(); },
        [this] { Delete(); },
        [this] { Undo(); },
        [this] { Key(kKeys.at(static_cast<std::size_t>(Draw(6)))); },
        [this] { Key(kKeys.at(static_cast<std::size_t>(Draw(6)))); }};
    step_ = Draw(static_cast<int>(steps.size()));
    steps.at(static_cast<std::size_t>(step_))();
    QCoreApplication::processEvents();
  }

  void ExpectMarkedIsChosen() {
    const std::int32_t marked = Marked();
    const QModelIndex current = List().currentIndex();
    ASSERT_EQ(current.isValid(), marked != 0);
    if (marked != 0) {
      ASSERT_EQ(std::stoi(List().Model().TagOf(current.row())), marked);
    }
    for (const char* action : {"viewHoroscope", "editClient", "deleteClient", "moveClient"}) {
      ASSERT_EQ(CanDo(action), marked != 0) << action;
    }
    if (!OnSearch()) {
      const QString caption = Find<QLabel>(*window_, "remedyCaption").text();
      ASSERT_EQ(caption.section(": ", 1), marked == 0 ? QString() : Shown(saved_[marked]));
    }
  }

  std::mt19937 random_{20261125};
  std::unique_ptr<MainWindow> window_;
  std::string asked_;
  bool agrees_ = true;
  int renamed_ = 0;
  int step_ = 0;
  Names saved_;
  std::vector<std::pair<std::int32_t, std::string>> deleted_;
};

TEST_F(RandomWalkTest, WhatIsMarkedIsWhatACommandActsOnAndTheStoreHoldsWhatWasSaved) {
  constexpr int kWalks = 200;
  constexpr int kSteps = 8;
  constexpr int kWalksOfAWindow = 20;
  for (int walk = 0; walk < kWalks; ++walk) {
    if (walk % kWalksOfAWindow == 0) {
      window_.reset();
      deleted_.clear();
      window_ = std::make_unique<MainWindow>(place_);
      Show(*window_);
    }
    for (int step = 0; step < kSteps; ++step) {
      Step();
      ExpectMarkedIsChosen();
      ASSERT_EQ(StoredNames(), saved_);
      ASSERT_FALSE(HasFailure()) << "walk " << walk << ", step " << step << ": " << step_;
    }
  }
}

}  // namespace
}  // namespace orvex::ui
