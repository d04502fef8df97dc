// Windows of the transits, driven as a person does.
#pragma once

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <memory>

#include "support/ui_desk.h"
#include "ui/dialogs/city_list.h"
#include "ui/transit/transit_grid_page.h"

namespace orvex::test {

class TransitWindowTest : public DeskTest {
 protected:
  static QString Text(QWidget& window, const char* label) {
    return Find<QLabel>(window, label).text();
  }

  static QString Caption(QWidget& window, const char* button) {
    return Find<QPushButton>(window, button).text();
  }

  // What a button of an icon alone says.
  static QString Told(QWidget& window, const char* button) {
    return Find<QPushButton>(window, button).accessibleName();
  }

  static bool Enabled(QWidget& window, const char* widget) {
    return Find<QWidget>(window, widget).isEnabled();
  }

  static QModelIndex Cell(QWidget& window, const char* table, int row, int column) {
    return Find<ui::TableView>(window, table).Model().index(row, column);
  }

  static QString CellText(QWidget& window, const char* table, int row, int column) {
    return Cell(window, table, row, column).data().toString();
  }

  static void ClickCell(QWidget& window, const char* table, int row, int column) {
    auto& view = Find<ui::TableView>(window, table);
    const QModelIndex index = view.Model().index(row, column);
    view.scrollTo(index);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
    QCoreApplication::processEvents();
  }

  // What is done when the dialog for picking a city stands open: Mumbai is taken.
  static void WhenAskedTakeMumbai() {
    WhenOpen("pickCityDialog", [](QWidget& dialog) {
      Find<QTabBar>(dialog, "cityViews").setCurrentIndex(ui::CityList::AllCities);
      Type(dialog, "citySearch", "mumbai");
      ClickRow(Find<ui::TableView>(dialog, "cityList"), 0, true);
    });
  }

  // The page after its first month is shown.
  std::unique_ptr<ui::TransitGridPage> OpenGrid() {
    auto page = std::make_unique<ui::TransitGridPage>(place_);
    page->resize(1000, 700);
    Show(*page);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !page->Title().isEmpty(); }));
    return page;
  }

  // Picks a month with the mouse.
  static void GoTo(ui::TransitGridPage& page, const char* month, int year) {
    Press(page, "monthTitle");
    QWidget* picker = QApplication::activePopupWidget();
    ASSERT_NE(picker, nullptr);
    Type(*picker, "years", ui::WholeText(year));
    for (auto* button : picker->findChildren<QPushButton*>()) {
      if (button->text() == month) {
        QTest::mouseClick(button, Qt::LeftButton);
        break;
      }
    }
    QCoreApplication::processEvents();
  }
};

}  // namespace orvex::test
