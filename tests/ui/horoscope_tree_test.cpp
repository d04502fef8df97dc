// Walks of the tree of the horoscope's window and of its dialogs: bars, names for those who do not
// see, letters, and what is cut.
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QDialogButtonBox>
#include <QScrollArea>
#include <QShortcut>
#include <QSplitter>
#include <map>
#include <set>

#include "practice/remedies.h"
#include "ui/base/elided_label.h"
#include "ui/base/table_plan.h"
#include "ui/dialogs/remedy_dialog.h"
#include "ui/horoscope/divisional_dialog.h"
#include "ui/horoscope/life_event_dialog.h"
#include "ui/horoscope_window_home.h"

namespace orvex::ui {
namespace {

class HoroscopeTreeTest : public HoroscopeWindowTest {
 protected:
  HoroscopeTreeTest() {
    practice::SaveNewRemedy(*session_, {2, "No rest", "Pearl", home_.Clock.Now()}, client_);
  }
  ~HoroscopeTreeTest() override { Theme::SetTextSize(100); }

  // Turns through all pages with the keys, and tells of each.
  template <typename Deed>
  void OnEachPage(Deed deed) {
    auto& pages = Find<QListWidget>("pages");
    constexpr int kPages = 17;
    std::set<QString> turned;
    for (int page = 0; page < kPages; ++page) {
      QCoreApplication::processEvents();
      turned.insert(pages.currentItem()->text());
      deed(Typed(pages.currentItem()->text()));
      EXPECT_TRUE(window_->isActiveWindow()) << Typed(pages.currentItem()->text());
      QTest::keyClick(window_, Qt::Key_PageDown, Qt::ControlModifier);
    }
    EXPECT_EQ(turned.size(), std::size_t{kPages});
  }

  static std::vector<QWidget*> InSight(QWidget& window) {
    std::vector<QWidget*> widgets;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
      if (widget->isVisible() && widget->window() == &window) {
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
    const QWidget* in = widget.parentWidget();
    const bool part = qobject_cast<const QLineEdit*>(in) != nullptr ||
                      qobject_cast<const QAbstractSpinBox*>(in) != nullptr ||
                      qobject_cast<const QComboBox*>(in) != nullptr ||
                      qobject_cast<const QAbstractItemView*>(in) != nullptr;
    return !part && (qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
                     qobject_cast<const QLineEdit*>(&widget) != nullptr ||
                     qobject_cast<const QComboBox*>(&widget) != nullptr ||
                     qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
                     qobject_cast<const QPlainTextEdit*>(&widget) != nullptr ||
                     qobject_cast<const ChartView*>(&widget) != nullptr ||
                     qobject_cast<const QAbstractItemView*>(&widget) != nullptr);
  }

  static void ExpectNames(QWidget& window, const std::string& where) {
    for (QWidget* widget : InSight(window)) {
      if (!IsControl(*widget)) {
        continue;
      }
      const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(widget);
      ASSERT_NE(told, nullptr) << NameOf(*widget);
      EXPECT_FALSE(told->text(QAccessible::Name).trimmed().isEmpty())
          << where << ": " << NameOf(*widget);
      const auto* table = qobject_cast<const TableView*>(widget);
      for (int column = 0; table != nullptr && column < table->model()->columnCount(); ++column) {
        const bool captioned =
            !table->model()->headerData(column, Qt::Horizontal).toString().trimmed().isEmpty();
        EXPECT_TRUE(captioned || table->isColumnHidden(column) ||
                    table->horizontalHeader()->isHidden())
            << where << ": " << NameOf(*widget) << ", column " << column;
      }
    }
  }

  // The letters that Alt presses; a menu's are its own.
  static void ExpectLettersOnce(QWidget& window, const std::string& where) {
    std::map<QString, std::string> taken;
    const auto take = [&](const QKeySequence& key, const std::string& by) {
      const QString letter = key.toString(QKeySequence::PortableText);
      if (!letter.isEmpty()) {
        EXPECT_TRUE(taken.emplace(letter, by).second)
            << where << ": " << Typed(letter) << " is " << by << " and " << taken[letter];
      }
    };
    for (QWidget* widget : InSight(window)) {
      const auto* button = qobject_cast<QAbstractButton*>(widget);
      const auto* label = qobject_cast<QLabel*>(widget);
      if (button != nullptr) {
        take(QKeySequence::mnemonic(button->text()), NameOf(*widget));
      } else if (label != nullptr && label->buddy() != nullptr) {
        take(QKeySequence::mnemonic(label->text()), NameOf(*widget));
      }
    }
    for (const QMenu* menu : window.findChildren<QMenu*>()) {
      std::set<QString> letters;
      for (const QAction* action : menu->actions()) {
        const QString letter = QKeySequence::mnemonic(action->text()).toString();
        EXPECT_TRUE(letter.isEmpty() || !action->isVisible() || letters.insert(letter).second)
            << Typed(menu->objectName()) << ": " << Typed(action->text());
      }
    }
  }

  // No key does two things at once.
  static void ExpectKeysOnce(QWidget& window, const std::string& where) {
    std::map<QString, int> taken;
    for (const QAction* action : window.actions()) {
      for (const QKeySequence& key : action->shortcuts()) {
        ++taken[key.toString(QKeySequence::PortableText)];
      }
    }
    for (const QShortcut* shortcut : window.findChildren<QShortcut*>()) {
      const auto* owner = qobject_cast<QWidget*>(shortcut->parent());
      const bool everywhere = shortcut->context() == Qt::WindowShortcut;
      if (owner != nullptr && owner->isVisible() && everywhere) {
        ++taken[shortcut->key().toString(QKeySequence::PortableText)];
      }
    }
    for (const auto& [key, times] : taken) {
      EXPECT_EQ(times, 1) << where << ": " << Typed(key);
    }
  }

  // The text that a widget shows in one line; "" where it shows none, or cuts it and tells it.
  static QString LineOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
      const bool tells = qobject_cast<const ElidedLabel*>(&widget) != nullptr ||
                         !label->toolTip().isEmpty() || label->wordWrap();
      return tells || label->textFormat() == Qt::RichText ? QString()
                                                          : label->text().section('\n', 0, 0);
    }
    const auto* button = qobject_cast<const QPushButton*>(&widget);
    return button == nullptr || button->toolTip().contains(button->text().remove('&'))
               ? QString()
               : button->text();
  }

  static void ExpectNothingCut(QWidget& window, const std::string& where) {
    for (QWidget* widget : InSight(window)) {
      const int needed = widget->fontMetrics().horizontalAdvance(LineOf(*widget).remove('&'));
      EXPECT_LE(needed, std::max(1, widget->width()))
          << where << ": " << NameOf(*widget) << " cuts " << Typed(LineOf(*widget));
    }
  }

  static void ExpectNoBar(QWidget& window, const std::string& where) {
    for (QWidget* widget : InSight(window)) {
      if (const auto* table = qobject_cast<const TableView*>(widget)) {
        EXPECT_EQ(table->horizontalScrollBar()->maximum(), 0) << where << ": " << NameOf(*widget);
      }
      if (const auto* area = qobject_cast<const QScrollArea*>(widget)) {
        EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << where << ": " << NameOf(*widget);
      }
    }
  }
};

TEST_F(HoroscopeTreeTest, NoPageHasABarAcrossAtTheSizesOfSmallScreens) {
  Open();
  for (const QSize size : {QSize(1280, 720), QSize(1366, 768), QSize(1920, 1080)}) {
    Resize(size);
    OnEachPage([&](const std::string& page) {
      EXPECT_EQ(window_->size(), size) << page;
      ExpectNoBar(*window_, page + " at " + std::to_string(size.width()));
      for (QScrollArea* area : window_->findChildren<QScrollArea*>()) {
        EXPECT_TRUE(!area->isVisible() || area->verticalScrollBar()->maximum() == 0)
            << page << " at " << size.width();
      }
    });
  }
  // As small as it goes, the summaries of the periods stand one at a time.
  Resize(QSize(960, 540));
  window_->Turn("dasha");
  for (const char* summary : {"houseCount", "selectedPeriods"}) {
    QTest::mouseClick(&Find<QPushButton>(summary), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(Find<TableView>("DBAHouseCount").isVisible(), summary == std::string("houseCount"));
    EXPECT_EQ(Find<TableView>("DBAPeriods").isVisible(), summary == std::string("selectedPeriods"));
    ExpectNoBar(*window_, summary);
  }
}

// What is read in a sitting stands on a small screen, two columns of one caption among it.
TEST_F(HoroscopeTreeTest, TheFirstColumnsOfEachPageStandAt1280) {
  Open();
  const std::map<std::string, int> shown = {
      {"PlanetLevels", 8},  {"NadiTable", 3},  {"FourStepRows", 5}, {"PlanetAspectList", 5},
      {"AspectGrid", 13},   {"TransitNow", 5}, {"BnnTable", 5},     {"KarakaTable", 3},
      {"DashaList", 3},     {"BhuktiList", 3}, {"AntaraList", 3},   {"DBAPeriods", 5},
      {"DBAHouseCount", 13}};
  std::map<std::string, int> found;
  OnEachPage([&](const std::string& /*page*/) {
    for (QWidget* widget : InSight(*window_)) {
      const auto* table = qobject_cast<const TableView*>(widget);
      const std::string name = widget->objectName().toStdString();
      if (table != nullptr && shown.contains(name)) {
        for (int column = 0; column < table->model()->columnCount(); ++column) {
          found[name] += table->isColumnHidden(column) ? 0 : 1;
        }
      }
    }
  });
  EXPECT_EQ(found, shown);
}

TEST_F(HoroscopeTreeTest, AllColumnsOfEveryPlannedTableAreOneKeyAway) {
  Open();
  const auto hidden = [](const TableView& table) {
    int columns = 0;
    for (int column = 0; column < table.model()->columnCount(); ++column) {
      columns += table.isColumnHidden(column) ? 1 : 0;
    }
    return columns;
  };
  int shortened = 0;
  OnEachPage([&](const std::string& page) {
    std::vector<std::pair<TableView*, int>> tables;
    for (QWidget* widget : InSight(*window_)) {
      auto* table = qobject_cast<TableView*>(widget);
      if (table != nullptr && table->findChild<TablePlan*>() != nullptr && hidden(*table) > 0) {
        tables.emplace_back(table, hidden(*table));
      }
    }
    const bool button = [&] {
      for (const auto* found : window_->findChildren<QPushButton*>("allColumns")) {
        if (found->isVisible()) {
          return true;
        }
      }
      return false;
    }();
    if (!button) {
      return;
    }
    QTest::keyClick(window_, Qt::Key_F4);
    for (const auto& [table, before] : tables) {
      int asked = 0;
      for (const core::Column& column : table->Table().Columns) {
        asked += column.Width == 0 ? 1 : 0;
      }
      EXPECT_EQ(hidden(*table), asked) << page << ": " << table->objectName().toStdString();
      ++shortened;
    }
    QTest::keyClick(window_, Qt::Key_F4);
    for (const auto& [table, before] : tables) {
      EXPECT_EQ(hidden(*table), before) << page << ": " << table->objectName().toStdString();
    }
  });
  EXPECT_GT(shortened, 3);
}

TEST_F(HoroscopeTreeTest, EveryPageTellsNamesAndHeadersAndHasEachLetterAndKeyOnce) {
  Open();
  for (const QSize size : {QSize(1280, 720), QSize(960, 540)}) {
    Resize(size);
    OnEachPage([&](const std::string& page) {
      ExpectNames(*window_, page);
      ExpectLettersOnce(*window_, page);
      ExpectKeysOnce(*window_, page);
    });
  }
  Resize(QSize(1700, 1000));
  window_->ShowPlanetSheet(2);
  ExpectNames(*window_, "sheet");
  ExpectKeysOnce(*window_, "sheet");
}

TEST_F(HoroscopeTreeTest, NothingIsCutThatIsNotTold) {
  for (const int textSize : {100, 130}) {
    Theme::SetTextSize(textSize);
    delete window_;
    Open();
    EXPECT_LE(window_->minimumWidth(), 1000);
    EXPECT_LE(window_->minimumHeight(), 600);
    for (const QSize size : {QSize(960, 540), QSize(1280, 720), QSize(1366, 768)}) {
      Resize(size);
      OnEachPage([&](const std::string& page) {
        EXPECT_EQ(window_->size(), size) << page;
        ExpectNothingCut(*window_, page + " at " + std::to_string(size.width()) + ", " +
                                       std::to_string(textSize) + " %");
      });
    }
  }
}

TEST_F(HoroscopeTreeTest, EachDialogTellsNamesHasEachLetterOnceAndFitsSmallScreens) {
  Open();
  const auto look = [](QDialog& dialog, const std::string& name) {
    EXPECT_LE(dialog.minimumSizeHint().width(), 1000) << name;
    EXPECT_LE(dialog.minimumSizeHint().height(), 600) << name;
    ExpectNames(dialog, name);
    ExpectLettersOnce(dialog, name);
    ExpectNothingCut(dialog, name);
  };
  window_->ShowPlanetSheet(2);
  look(Find<QDialog>("planetSheet"), "planet sheet");
  QTest::keyClick(window_, Qt::Key_D, Qt::ControlModifier);
  look(Find<QDialog>("divisionalCharts"), "divisional charts");
  // The modal ones are opened as their buttons do it.
  int seen = 0;
  const auto press = [&](const char* page, const char* button, const char* dialog) {
    window_->Turn(page);
    WhenOpen(dialog, [&, dialog](QDialog& open) {
      look(open, dialog);
      ++seen;
      open.reject();
    });
    QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton);
  };
  press("remedies", "addRemedy", "remedyDialog");
  press("birthTime", "addEvent", "lifeEventDialog");
  EXPECT_EQ(seen, 2);
}

}  // namespace
}  // namespace orvex::ui
