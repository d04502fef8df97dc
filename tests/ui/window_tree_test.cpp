// Walks of the tree of the main window: what a screen reader is told, which letters open what, and
// what a small window cuts.
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>
#include <map>
#include <set>

#include "practice/groups.h"
#include "practice/remedies.h"
#include "ui/base/elided_label.h"
#include "ui/base/theme.h"
#include "ui/main_window_home.h"

namespace orvex::ui {
namespace {

class WindowTreeTest : public MainWindowTest {
 protected:
  WindowTreeTest() {
    const std::int32_t client =
        AddClient("Asha Rao with a name that is longer than any column", "1990-11-24 14:30:00");
    AddClient("Ravi Iyer", "1981-02-01 06:10:00");
    practice::SaveNewRemedy(*session_, {2, "No rest", "Pearl", home_.Clock.Now()}, client);
    practice::AddGroup(*session_, "A group of 20 letter");
    Open();
    Press(*window_, "showClientsButton");
    window_->findChild<TableView*>("groupList")->SelectTag("1");
    QTest::qWait(250);  // the card follows a choice that has rested
  }
  ~WindowTreeTest() override { Theme::SetTextSize(100); }

  void Turn(int page) {
    QTest::keyClick(window_.get(), static_cast<Qt::Key>(Qt::Key_1 + page), Qt::ControlModifier);
    const auto* month = window_->findChild<QPushButton*>("monthTitle");
    EXPECT_TRUE(
        QTest::qWaitFor([month] { return !month->isVisible() || !month->text().isEmpty(); }));
    QCoreApplication::processEvents();
  }

  std::vector<QWidget*> InSight() {
    std::vector<QWidget*> widgets;
    for (QWidget* widget : window_->findChildren<QWidget*>()) {
      if (widget->isVisible()) {
        widgets.push_back(widget);
      }
    }
    return widgets;
  }

  static std::string NameOf(const QWidget& widget) {
    return Typed(QString("%1 \"%2\" of %3")
                     .arg(widget.metaObject()->className(), widget.objectName(),
                          widget.parentWidget()->objectName()));
  }

  static bool IsControl(const QWidget& widget) {
    const bool part = qobject_cast<QLineEdit*>(widget.parentWidget()) != nullptr ||
                      qobject_cast<QAbstractSpinBox*>(widget.parentWidget()) != nullptr ||
                      qobject_cast<QAbstractItemView*>(widget.parentWidget()) != nullptr;
    return !part && (qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
                     qobject_cast<const QLineEdit*>(&widget) != nullptr ||
                     qobject_cast<const QComboBox*>(&widget) != nullptr ||
                     qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
                     qobject_cast<const QAbstractItemView*>(&widget) != nullptr);
  }

  // The text that a widget shows in one line; "" where it shows none, or cuts it and tells it.
  static QString LineOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
      const bool tells = qobject_cast<const ElidedLabel*>(&widget) != nullptr ||
                         !label->toolTip().isEmpty() || label->wordWrap();
      return tells || label->textFormat() == Qt::RichText ? QString() : label->text();
    }
    const auto* button = qobject_cast<const QPushButton*>(&widget);
    return button == nullptr || button->toolTip().contains(button->text().remove('&'))
               ? QString()
               : button->text();
  }
};

TEST_F(WindowTreeTest, EveryControlHasANameForThoseWhoDoNotSeeIt) {
  for (int page = 0; page < 5; ++page) {
    Turn(page);
    for (QWidget* widget : InSight()) {
      if (IsControl(*widget)) {
        const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(told, nullptr) << NameOf(*widget);
        EXPECT_FALSE(told->text(QAccessible::Name).trimmed().isEmpty())
            << "page " << page << ": " << NameOf(*widget);
      }
    }
  }
}

TEST_F(WindowTreeTest, ALetterWithAltIsOneThing) {
  for (int page = 0; page < 5; ++page) {
    Turn(page);
    std::map<QString, std::string> taken;
    const auto take = [&](const QKeySequence& key, const std::string& by) {
      const QString letter = key.toString(QKeySequence::PortableText);
      if (!letter.isEmpty()) {
        EXPECT_TRUE(taken.emplace(letter, by).second)
            << "page " << page << ": " << Typed(letter) << " is " << by << " and " << taken[letter];
      }
    };
    for (const QShortcut* key : window_->findChildren<QShortcut*>()) {
      const QString text = key->key().toString(QKeySequence::PortableText);
      if (text.startsWith("Alt+") && text.size() == 5) {
        take(key->key(), "a menu");
      }
    }
    EXPECT_EQ(taken.size(), 5U);
    for (QWidget* widget : InSight()) {
      const auto* button = qobject_cast<QAbstractButton*>(widget);
      const auto* label = qobject_cast<QLabel*>(widget);
      if (button != nullptr && qobject_cast<QToolButton*>(widget) == nullptr) {
        take(QKeySequence::mnemonic(button->text()), NameOf(*widget));
      } else if (label != nullptr && label->buddy() != nullptr) {
        take(QKeySequence::mnemonic(label->text()), NameOf(*widget));
      }
    }
  }
}

TEST_F(WindowTreeTest, NoMenuHasALetterTwice) {
  for (const QMenu* menu : window_->findChildren<QMenu*>()) {
    std::set<QString> taken;
    for (const QAction* action : menu->actions()) {
      const QString letter = QKeySequence::mnemonic(action->text()).toString();
      EXPECT_TRUE(letter.isEmpty() || !action->isVisible() || taken.insert(letter).second)
          << Typed(menu->title()) << ": " << Typed(action->text());
    }
  }
}

TEST_F(WindowTreeTest, TheWindowFitsSmallScreensAndCutsNothingThatItDoesNotTell) {
  for (const int textSize : {100, 130}) {
    Theme::SetTextSize(textSize);
    window_ = std::make_unique<MainWindow>(place_);
    Show(*window_);
    for (const QSize size : {QSize(960, 540), QSize(1280, 720), QSize(1366, 768)}) {
      for (int page = 0; page < 5; ++page) {
        Turn(page);
        window_->resize(size);
        QCoreApplication::processEvents();
        EXPECT_EQ(window_->size(), size) << "page " << page;
        for (QWidget* widget : InSight()) {
          const int needed = widget->fontMetrics().horizontalAdvance(LineOf(*widget).remove('&'));
          EXPECT_LE(needed, std::max(1, widget->width()))
              << size.width() << ", " << textSize << " %, page " << page << ": " << NameOf(*widget)
              << " cuts " << Typed(LineOf(*widget));
        }
      }
    }
  }
}

TEST_F(WindowTreeTest, WhatANarrowWindowLeavesOut) {
  struct Case {
    int Width;
    bool Words;
    bool Sky;
    bool Groups;
    bool Card;
  };
  for (const Case& one : std::vector<Case>{{1366, true, true, true, true},
                                           {1179, true, false, true, true},
                                           {1099, false, false, true, true},
                                           {999, false, false, false, true},
                                           {1366, true, true, true, true}}) {
    window_->resize(one.Width, 720);
    QCoreApplication::processEvents();
    EXPECT_EQ(!Find<QPushButton>(*window_, "addClientButton").text().isEmpty(), one.Words);
    EXPECT_EQ(Find<QWidget>(*window_, "nowPlanets").isVisible(), one.Sky) << one.Width;
    EXPECT_EQ(Find<QWidget>(*window_, "groupColumn").isVisible(), one.Groups) << one.Width;
    EXPECT_EQ(Find<QWidget>(*window_, "groupBox").isVisible(), !one.Groups) << one.Width;
    EXPECT_EQ(Find<QWidget>(*window_, "clientCard").isVisible(), one.Card) << one.Width;
  }
  // Larger text needs the room of the card; the sky is opened by hand all the same.
  Theme::SetTextSize(130);
  window_ = std::make_unique<MainWindow>(place_);
  Show(*window_);
  window_->resize(1100, 720);
  QCoreApplication::processEvents();
  EXPECT_FALSE(Find<QWidget>(*window_, "clientCard").isVisible());
  QTest::keyClick(window_.get(), Qt::Key_F8);
  EXPECT_TRUE(Find<QWidget>(*window_, "nowPlanets").isVisible());
}

TEST_F(WindowTreeTest, TheSkyKeepsItsWidthOnEveryPageAndFoldsToAStrip) {
  window_->resize(1366, 768);
  QCoreApplication::processEvents();
  auto& sky = Find<QWidget>(*window_, "skyPanel");
  const int width = sky.width();
  for (int page = 0; page < 5; ++page) {
    Turn(page);
    EXPECT_EQ(sky.width(), width) << page;
    EXPECT_EQ(sky.geometry().right(), sky.parentWidget()->rect().right()) << page;
  }
  Press(*window_, "foldSkyButton");
  EXPECT_EQ(sky.width(), 34);
  Press(*window_, "unfoldSkyButton");
  EXPECT_EQ(sky.width(), width);
  // What was folded is so at the next start.
  QTest::keyClick(window_.get(), Qt::Key_F8);
  window_ = std::make_unique<MainWindow>(place_);
  window_->resize(1366, 768);
  Show(*window_);
  EXPECT_EQ(Find<QWidget>(*window_, "skyPanel").width(), 34);
}

}  // namespace
}  // namespace orvex::ui
