// A horoscope's window over a client of a session of its own.
#pragma once

#include "ui/horoscope/horoscope_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QStatusBar>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <chrono>
#include <fstream>
#include <functional>
#include <iostream>

#include "chart/aspects.h"
#include "chart/client_saving.h"
#include "support/test_home.h"
#include "ui/base/chart_view.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_view.h"
#include "ui/base/theme.h"
#include "ui/horoscope/planet_sheet_dialog.h"
#include "vedic/vastu.h"

namespace orvex::ui {

// Opens nothing and writes down what it was asked to open.
class RecordedFiles final : public FileDialogs {
 public:
  std::optional<std::filesystem::path> ChooseFileToWrite(QWidget* /*parent*/,
                                                         const std::string& /*title*/,
                                                         const std::filesystem::path& /*start*/,
                                                         const std::string& /*filter*/) override {
    return Chosen;
  }

  bool OpenWithDesktop(const std::filesystem::path& file) override {
    Opened.push_back(file);
    return true;
  }

  std::filesystem::path Chosen;
  std::vector<std::filesystem::path> Opened;
};

class HoroscopeWindowTest : public testing::Test {
 protected:
  HoroscopeWindowTest()
      : session_(home_.Start()),
        layout_(home_.Place.Folder / "windows.ini"),
        place_{*session_, files_, layout_} {
    client_ = AddClient();
  }

  ~HoroscopeWindowTest() override { delete window_; }

  std::int32_t AddClient() {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    chart::SelectCity(*session_, 1, form);
    form.CityId = 1;
    form.FullName = "Asha Rao";
    form.Birth = test::Moment("1990-07-05 14:30:00");
    const core::SaveResult saved = chart::SaveNewClient(*session_, form, 1);
    EXPECT_FALSE(saved.Refused) << saved.Refused->Text;
    return saved.Id;
  }

  HoroscopeWindow& Open() {
    window_ = OpenHoroscope(place_, client_);
    EXPECT_TRUE(QTest::qWaitForWindowExposed(window_));
    Resize(QSize(1280, 720));
    return *window_;
  }

  // The screen of the tests is small; a user may drag a window beyond its own.
  void Resize(const QSize& size) {
    QCoreApplication::processEvents();  // the first look at the room of the screen
    window_->resize(size);
    QCoreApplication::processEvents();
  }

  // A click of the right button at a point of a widget, with what is done when the menu is open.
  void RightClick(QWidget& widget, const QPoint& at, const std::function<void(QMenu&)>& choose) {
    WhenMenuOpen(choose);
    QTest::mouseClick(widget.window()->windowHandle(), Qt::RightButton, {},
                      widget.mapTo(widget.window(), at));
    QCoreApplication::processEvents();
  }

  void WhenMenuOpen(const std::function<void(QMenu&)>& choose) {
    QTimer::singleShot(0, window_, [this, choose] {
      if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
        choose(*menu);
      } else {
        WhenMenuOpen(choose);
      }
    });
  }

  template <typename Widget>
  Widget& Find(const char* name) {
    auto* found = window_->findChild<Widget*>(name);
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }

  // Turns to a page by its title, with the keys.
  void Turn(const char* title) {
    auto& pages = Find<QListWidget>("pages");
    pages.setFocus();
    QTest::keyClicks(&pages, title);
    EXPECT_EQ(pages.currentItem()->text(), title);
  }

  QAction& MenuEntry(const char* menu, const QString& text) {
    for (QAction* action : Find<QMenu>(menu).actions()) {
      if (action->text() == text) {
        return *action;
      }
    }
    ADD_FAILURE() << menu << " has no " << text.toStdString();
    return *Find<QMenu>(menu).actions().constFirst();
  }

  std::string Text(const char* table, int row, int column) {
    return Typed(Find<TableView>(table).Model().index(row, column).data().toString());
  }

  void ClickCell(const char* table, int row, int column, bool twice = false) {
    auto& view = Find<TableView>(table);
    const QModelIndex index = view.Model().index(row, column);
    view.scrollTo(index);
    const QPoint at = view.visualRect(index).center();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, at);
    if (twice) {
      QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, at);
    }
    QCoreApplication::processEvents();
  }

  // What is told when the modal dialog of that name stands open.
  template <typename Deed>
  void WhenOpen(const char* dialog, Deed deed) {
    QTimer::singleShot(0, [this, dialog, deed] {
      QWidget* open = QApplication::activeModalWidget();
      if (open == nullptr || open->objectName() != dialog) {
        WhenOpen(dialog, deed);
        return;
      }
      deed(*static_cast<QDialog*>(open));
    });
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_;
  RecordedFiles files_;
  LayoutMemory layout_;
  Workplace place_;
  std::int32_t client_ = 0;
  HoroscopeWindow* window_ = nullptr;
};

}  // namespace orvex::ui
