// What the page "Matter" paints, and that the keys alone reach all of it.
#include <QImage>
#include <set>

#include "judgement/fruitful_tests.h"
#include "ui/base/theme.h"
#include "ui/matter_page_home.h"

namespace orvex::ui {
namespace {

QImage PictureOf(const TableView& view) { return view.viewport()->grab().toImage(); }

// Whether anything is painted in a cell above the rule of its row.
bool IsPainted(const TableView& view, int row, int column) {
  const QRect cell = view.visualRect(view.model()->index(row, column)).adjusted(1, 1, -1, -4);
  const QImage picture = PictureOf(view).copy(cell);
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixel(x, y) != picture.pixel(0, 0)) {
        return true;
      }
    }
  }
  return false;
}

TEST_F(MatterPageTest, APlanetThatDoesNotRuleShowsADashAndCopiesNothing) {
  QWidget& window = Open();
  auto& planets = Find<TableView>(window, "MatterPlanets");
  const auto ruling = static_cast<int>(core::Table::Index(judgement::FruitfulColumn::Ruling));
  int empty = 0;
  for (int row = 0; row < planets.Model().rowCount(); ++row) {
    empty += planets.Model().index(row, ruling).data().toString().isEmpty() ? 1 : 0;
    EXPECT_TRUE(IsPainted(planets, row, ruling)) << row;
  }
  EXPECT_GT(empty, 0);
  EXPECT_FALSE(planets.AsTabbedText().contains("\u2013"));
}

// House by house, the main cusp first: the giving ones end at a heavier rule.
TEST_F(MatterPageTest, ARulePartsTheGivingHousesFromTheDenyingOnes) {
  QWidget& window = Open();
  const struct {
    const char* Matter;
    int LastGiving;
  } cases[] = {{"Marriage", 2}, {"Service", 3}, {"Cure", 2}};
  for (const auto& example : cases) {
    TypeMatter(window, example.Matter);
    const auto& grades = Find<TableView>(window, "HouseGrades");
    const QImage picture = PictureOf(grades);
    for (int row = 0; row < grades.Model().rowCount(); ++row) {
      const QRect cell = grades.visualRect(grades.model()->index(row, 1));
      EXPECT_EQ(picture.pixelColor(cell.left() + 1, cell.bottom() - 1) == Theme::Now().Rule2,
                row == example.LastGiving)
          << example.Matter << " " << row;
    }
  }
}

TEST_F(MatterPageTest, TheKeysAloneReachAllOfThePage) {
  QWidget& window = Open();
  auto& triggers = Find<QPushButton>(window, "showTriggers");
  triggers.setFocus();
  QTest::keyClick(&triggers, Qt::Key_Space);
  QCoreApplication::processEvents();
  Find<QWidget>(window, "matterName").setFocus();
  std::set<QString> reached;
  constexpr int kMostTabs = 80;
  for (int step = 0; step < kMostTabs; ++step) {
    reached.insert(FocusName(window));
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
  }
  for (const char* name :
       {"matterName", "editGroups", "judgedNow", "MatterChain", "MatterCusps", "HouseGrades",
        "MatterPlanets", "keepMoment", "periodSpan", "periodsFrom", "periodsTo", "periodAges",
        "showTriggers", "periodsToCalendar", "MatterPeriods", "Triggers", "triggerSaturn",
        "triggersToCalendar"}) {
    EXPECT_TRUE(reached.contains(name)) << name;
  }
  // An arrow turns to the ruling planets of birth, Enter opens what stands under the keys.
  auto& now = Find<QPushButton>(window, "judgedNow");
  now.setFocus();
  QTest::keyClick(&now, Qt::Key_Left);
  QTest::keyClick(window.focusWidget(), Qt::Key_Space);
  EXPECT_EQ(Note(window, "MatterPlanets"), "5 Jul 1990 02:30 PM, Mumbai");
  WhenOpen("mattersDialog", [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  auto& edit = Find<QPushButton>(window, "editGroups");
  edit.setFocus();
  QTest::keyClick(&edit, Qt::Key_Space);
}

}  // namespace
}  // namespace orvex::ui
