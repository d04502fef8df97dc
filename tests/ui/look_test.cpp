// What the windows stand on before any is opened: colours that can be read, icons that draw, cells
// that say what they hold, columns that share a room.
#include <gtest/gtest.h>

#include <QDirIterator>
#include <QImage>
#include <algorithm>
#include <cmath>

#include "ui/base/cell_text.h"
#include "ui/base/icon.h"
#include "ui/base/qt_text.h"
#include "ui/base/room_plan.h"
#include "ui/base/theme.h"

namespace orvex::ui {
namespace {

// The relative luminance and the contrast of WCAG 2.1.
double Luminance(const QColor& color) {
  const auto part = [](double value) {
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one);
  const double b = Luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

TEST(Tokens, TextCanBeReadOnEveryGroundAndMarksCanBeSeen) {
  constexpr double kText = 4.5;
  constexpr double kMark = 3;
  for (const ThemeMode mode : {ThemeMode::Light, ThemeMode::Dark}) {
    const Tokens& t = TokensOf(mode);
    const struct {
      const char* Pair;
      QColor Ink;
      std::vector<QColor> Grounds;
      double Least;
    } pairs[] = {
        {"ink", t.Ink, {t.Sheet, t.Ground, t.Bar, t.Sunk, t.Sel, t.Start, t.Ascendant}, kText},
        {"ink2", t.Ink2, {t.Sheet, t.Ground, t.Bar, t.Sunk, t.Sel, t.Start, t.AmberGround}, kText},
        {"ink3", t.Ink3, {t.Sheet, t.Sunk}, kText},
        {"accent", t.Accent, {t.Sheet, t.Sel, t.Ground, t.AmberGround}, kText},
        {"on accent", t.OnAccent, {t.Accent}, kText},
        {"now", t.Now, {t.Sheet, t.Sel, t.Start}, kText},
        {"good", t.Good, {t.GoodGround}, kText},
        {"hard", t.Hard, {t.HardGround}, kText},
        {"amber", t.Amber, {t.AmberGround}, kText},
        {"edge", t.Edge, {t.Sheet, t.Ground}, kMark},
        {"head rule", t.HeadRule, {t.Sheet}, kMark},
    };
    for (const auto& pair : pairs) {
      for (const QColor& ground : pair.Grounds) {
        EXPECT_GE(Contrast(pair.Ink, ground), pair.Least)
            << pair.Pair << " on " << Typed(ground.name()) << (mode == ThemeMode::Dark);
      }
    }
    for (std::size_t i = 0; i < t.Heat.size(); ++i) {
      EXPECT_GE(Contrast(t.HeatText.at(i), t.Heat.at(i)), kText) << "heat " << i;
    }
    for (std::size_t i = 0; i < t.Chips.size(); ++i) {
      EXPECT_GE(Contrast(t.Chips.at(i).Letters, t.Chips.at(i).Ground), 5.5) << kChipCodes.at(i);
    }
  }
}

TEST(Icons, EveryOneDrawsInTheInkOfItsPlaceOnBothGrids) {
  Icon("rotate");  // reads the resources
  QStringList names;
  for (QDirIterator files(":/icons/16"); files.hasNext();) {
    names << QFileInfo(files.next()).completeBaseName();
  }
  ASSERT_EQ(names.size(), 43);
  for (const QString& name : names) {
    for (const int side : {16, 20}) {
      const QImage drawn =
          Icon(name.toUtf8().constData(), IconInk::Accent).pixmap(QSize(side, side), 1.0).toImage();
      int marks = 0;
      for (int at = 0; at < side * side; ++at) {
        const QColor pixel = drawn.pixelColor(at % side, at / side);
        marks += pixel.alpha() > 96;
        EXPECT_TRUE(pixel.alpha() < 255 || pixel.rgb() == Theme::Now().Accent.rgb()) << Typed(name);
      }
      EXPECT_GT(marks, 2) << Typed(name) << side;
    }
  }
}

TEST(CellText, PlanetsAreFoundWithTheirHousesAndOtherWordsStayWords) {
  const struct {
    const char* Text;
    const char* Pieces;  // code or word, houses behind "/"
  } cases[] = {
      {"Mercury (9 9 12)", "ME/9 9 12"},
      {"Rahu (10)", "RA/10"},
      {"VE MO SU", "VE MO SU"},
      {"Sun (9 11) Jupiter (9 3 6)", "SU/9 11 JU/9 3 6"},
      {"Saturn*~", "SA"},
      {"None", "None"},
      {"4 Oct 2029", "4 Oct 2029"},
      {"Sunday (x)", "Sunday (x)"},
      {"Mars (2", "MA (2"},
      {"", ""},
  };
  for (const auto& example : cases) {
    QString pieces;
    for (const CellPiece& piece : PiecesOf(example.Text)) {
      pieces += pieces.isEmpty() ? "" : " ";
      pieces += piece.Code.isEmpty() ? piece.Word : piece.Code;
      pieces += piece.Houses.isEmpty() ? "" : "/" + piece.Houses;
    }
    EXPECT_EQ(pieces, example.Pieces) << example.Text;
  }
}

TEST(CellText, DegreesStandInTheirSignToTheMinuteOrAsTheyAreStored) {
  const struct {
    const char* Stored;
    const char* Shown;
  } cases[] = {
      {"48.68", "18°41' Ta"},
      {"194.67", "14°40' Li"},
      {"1.42", "1°25' Ar"},
      {"105", "15°00' Cn"},
      {"285.00", "15°00' Cp"},
      {"247.56", "7.56 Sg"},
      {"359.98", "29°59' Pi"},
      {"0", "0°00' Ar"},
      {"30.00", "0°00' Ta"},
      {"360", ""},
      {"-1", ""},
      {"Sun", ""},
  };
  for (const auto& example : cases) {
    const auto degree = DegreeInSign(example.Stored);
    EXPECT_EQ(degree ? degree->Figures + " " + degree->Sign : QString(), example.Shown)
        << example.Stored;
  }
}

TEST(RoomPlan, TheHighestRankGoesFirstAndRankNoughtNever) {
  const std::vector<ColumnRoom> columns = {{100, 0}, {50, 2}, {50, 1}, {50, 2}, {80, 0}};
  const struct {
    int Room;
    std::vector<bool> Shown;
  } cases[] = {{330, {true, true, true, true, true}},
               {329, {true, true, true, false, true}},
               {279, {true, false, true, false, true}},
               {229, {true, false, false, false, true}},
               {10, {true, false, false, false, true}}};
  for (const auto& example : cases) {
    EXPECT_EQ(FitColumns(columns, example.Room), example.Shown) << example.Room;
  }
  EXPECT_EQ(FitRows(12, 300, 22, 32), 25);
  EXPECT_EQ(FitRows(12, 100, 22, 32), 22);
  EXPECT_EQ(FitRows(9, 900, 22, 32), 32);
  EXPECT_EQ(FitRows(0, 900, 22, 32), 22);
}

}  // namespace
}  // namespace orvex::ui
