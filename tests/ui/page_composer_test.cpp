#include "ui/painting/page_composer.h"

#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <set>

#include "ui/painting/offscreen.h"
#include "ui/painting/page_painter.h"

namespace orvex::ui {
namespace {

PageTable Rows(int count, const QString& name = "row", int lines = 1) {
  PageTable table;
  table.Captions = {"Name", "Figure", "Text"};
  for (int row = 1; row <= count; ++row) {
    table.Rows.push_back({{QString("%1 %2").arg(name).arg(row), {}, {}, false},
                          {QString::number(row * 7.25, 'f', 2), {}, {}, false},
                          {QString("words\n").repeated(lines).trimmed(), {}, {}, false}});
  }
  return table;
}

PageBlock Caption(PageRole role, const QString& text) { return {PageText{role, text}}; }

// The texts of a page that begin with a word, with the number of times each stands there.
std::vector<QString> TextsWith(const ComposedPage& page, const QString& beginning) {
  std::vector<QString> found;
  for (const PlacedSlab& placed : page.Slabs) {
    for (const SlabText& text : placed.Slab->Texts) {
      if (text.Text.startsWith(beginning)) {
        found.push_back(text.Text);
      }
    }
  }
  return found;
}

class Composer : public testing::Test {
 protected:
  static ComposedDocument Set(std::vector<PageBlock> blocks) {
    return Compose({"Title", "Author", "Head", "Foot", std::move(blocks)}, {});
  }

  // What holds for every document.
  static void ExpectSound(const ComposedDocument& document) {
    const QRectF body = document.Setup.Body();
    for (std::size_t page = 0; page < document.Pages.size(); ++page) {
      const std::vector<PlacedSlab>& slabs = document.Pages[page].Slabs;
      for (const PlacedSlab& placed : slabs) {
        EXPECT_GE(placed.At.y(), body.top() - 1);
        EXPECT_LE(placed.At.y() + placed.Slab->Height, body.bottom() + 1);
      }
      if (page + 1 < document.Pages.size()) {
        EXPECT_GT(document.Pages[page].Bottom - body.top(), body.height() / 2) << page;
        EXPECT_FALSE(slabs.back().Slab->KeepWithNext) << "a caption at the end of page " << page;
        EXPECT_FALSE(!slabs.back().Slab->Texts.empty() &&
                     slabs.back().Slab->Texts.front().Text == "Name")
            << "a head without a row";
      }
    }
  }

  OffscreenPainting painting_;
};

TEST_F(Composer, RowsStandOnceAndInOrderUnderTheirHeadOnEachPage) {
  for (const int lines : {1, 3, 20}) {
    const ComposedDocument document = Set({{Rows(90, "row", lines)}});
    ExpectSound(document);
    int next = 1;
    for (const ComposedPage& page : document.Pages) {
      EXPECT_EQ(TextsWith(page, "Name").size(), 1U);
      EXPECT_EQ(page.Slabs.front().Slab->Texts.front().Text, "Name");
      for (const QString& text : TextsWith(page, "row")) {
        EXPECT_EQ(text, QString("row %1").arg(next++));
      }
    }
    EXPECT_EQ(next, 91);
    // Twenty lines are no reason to cut a row.
    for (const ComposedPage& page : document.Pages) {
      EXPECT_EQ(TextsWith(page, "words").size(),
                TextsWith(page, "row").size() * static_cast<std::size_t>(lines));
    }
  }
}

TEST_F(Composer, NoCaptionIsLeftAloneAndNoPageHalfEmpty) {
  for (int first = 1; first <= 70; first += 3) {
    ExpectSound(Set({{Rows(first)},
                     Caption(PageRole::Section, "Section"),
                     Caption(PageRole::Part, "Part"),
                     {Rows(12, "row", 1 + first % 9)},
                     Caption(PageRole::Section, "Figure"),
                     {PageFigures{{{"", 0.5, 1, [](QPainter&, const QRectF&) {}}}}},
                     Caption(PageRole::Section, "Strands"),
                     {PageStrands{{Rows(30), Rows(30)}}},
                     Caption(PageRole::Body, QString("Words and words. ").repeated(40 * first))}));
  }
}

TEST_F(Composer, ARowOfManyLinesIsCutBetweenLinesAndLosesNone) {
  const ComposedDocument document = Set({{Rows(3, "row", 200)}});
  ExpectSound(document);
  std::size_t lines = 0;
  for (const ComposedPage& page : document.Pages) {
    lines += TextsWith(page, "words").size();
  }
  EXPECT_EQ(lines, 600U);
}

TEST_F(Composer, StrandsAreFilledOneAfterTheOtherAndEndTogether) {
  PageTable narrow = Rows(27);
  const ComposedDocument document = Set({{PageStrands{{narrow, narrow, narrow}}}});
  ASSERT_EQ(document.Pages.size(), 1U);
  std::map<double, std::size_t> rows;
  double x = 0;
  for (const PlacedSlab& placed : document.Pages[0].Slabs) {
    EXPECT_GE(placed.At.x(), x) << "a strand is filled before the next one";
    x = placed.At.x();
    rows[x] += placed.Slab->Head == nullptr ? 0U : 1U;
  }
  ASSERT_EQ(rows.size(), 3U);
  for (const auto& [left, count] : rows) {
    EXPECT_EQ(count, 27U);
  }
  const ComposedDocument many = Set({{PageStrands{{Rows(1000)}}}});
  ExpectSound(many);
  std::size_t all = 0;
  for (const ComposedPage& page : many.Pages) {
    EXPECT_EQ(TextsWith(page, "Name").size(), 3U);
    all += TextsWith(page, "row").size();
  }
  EXPECT_EQ(all, 1000U);
}

TEST_F(Composer, FiguresEndAtOneEdgeAndNothingLeavesItsTable) {
  PageTable table = Rows(12);
  table.Rows[3][2].Text = QString("long").repeated(400);
  table.Rows[4][2].Text = QString("word ").repeated(300);
  const ComposedDocument document = Set({{table}});
  PageFonts fonts;
  std::set<int> ends;
  std::set<int> begins;
  const QRectF body = document.Setup.Body();
  for (const PlacedSlab& placed : document.Pages[0].Slabs) {
    for (const SlabText& text : placed.Slab->Texts) {
      const double end = text.Base.x() + fonts.WidthOf(text.Font, text.Text);
      EXPECT_LE(end, body.width() + 1) << text.Text.toStdString();
      if (placed.Slab->Head != nullptr && text.Text.contains('.')) {
        ends.insert(static_cast<int>(end));
      }
      if (text.Text.startsWith("row")) {
        begins.insert(static_cast<int>(text.Base.x()));
      }
    }
  }
  EXPECT_LE(*ends.rbegin() - *ends.begin(), 1);
  EXPECT_EQ(begins.size(), 1U);
}

TEST_F(Composer, AManyColumnedTableTakesSmallerTextBeforeWordsBreak) {
  PageTable table;
  for (int column = 0; column < 17; ++column) {
    table.Captions.push_back(QString("Cap %1").arg(column));
  }
  table.Rows.emplace_back(17, PageCell{"Saturn (5 3 4 12)", {}, {}, false});
  const ComposedDocument document = Set({{table}});
  for (const PlacedSlab& placed : document.Pages[0].Slabs) {
    for (const SlabText& text : placed.Slab->Texts) {
      EXPECT_LT(text.Font.Size, 75);
      if (placed.Slab->Head != nullptr) {
        EXPECT_TRUE(text.Text == "Saturn" || text.Text == "(5 3 4 12)") << text.Text.toStdString();
      }
    }
  }
}

TEST_F(Composer, AnEmptyTableShowsItsCaptionsAndSaysSo) {
  PageTable table{{"Name"}, {}, "No records found", false};
  const ComposedDocument document = Set({{table}});
  EXPECT_EQ(TextsWith(document.Pages[0], "Name").size(), 1U);
  EXPECT_EQ(TextsWith(document.Pages[0], "No records found").size(), 1U);
}

TEST_F(Composer, ASheetGetsSmallerUntilItFitsOnItsPage) {
  const PageDocument sheet{
      "", "", "", "", {{PageFigures{{{"", 0.7, 1, [](QPainter&, const QRectF&) {}}}}}, {Rows(25)}}};
  PageSetup setup;
  EXPECT_GT(Compose(sheet, setup).Pages.size(), 1U);
  for (const QPageSize::PageSizeId paper : {QPageSize::A4, QPageSize::A5}) {
    setup.Paper = QPageSize(paper);
    const ComposedDocument document = ComposeOnOnePage(sheet, setup);
    EXPECT_EQ(document.Pages.size(), 1U);
    EXPECT_LT(document.Setup.Scale.Factor, 1);
    ExpectSound(document);
  }
}

TEST_F(Composer, TextsKeepTheirLinesAndHostileOnesTheirPlace) {
  EXPECT_EQ(PlainText("a\r\nb\rc\u2028d\te\u0001f"), "a\nb\nc\nd e f");
  PageFonts fonts;
  const PageFont font{90, false, false, false};
  const PageLines lines = fonts.Break(font, "one\n\ntwo " + QString("x").repeated(900), 2000);
  ASSERT_GT(lines.Lines.size(), 4U);
  EXPECT_EQ(lines.Lines[0].Text, "one");
  EXPECT_EQ(lines.Lines[1].Text, "");
  EXPECT_TRUE(lines.Lines[2].Text.startsWith("two"));
  QString all;
  for (const PageLine& line : lines.Lines) {
    EXPECT_LE(fonts.WidthOf(font, line.Text), 2001);
    all += line.Text;
  }
  EXPECT_EQ(all.count('x'), 900);
}

// Any device will do; the running head stands on all pages but the first, the foot on all.
TEST_F(Composer, PagesArePaintedWithinTheirMargins) {
  const ComposedDocument document = Set({{Rows(90)}});
  const QSizeF size = document.Setup.Size();
  const auto inked = [](const QImage& image, int from, int to) {
    for (int y = from; y < to; ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, y) != QColor(Qt::white)) {
          return true;
        }
      }
    }
    return false;
  };
  constexpr int kWidth = 595;
  for (const std::size_t page : {std::size_t{0}, std::size_t{1}}) {
    QImage image(kWidth, 842, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(kWidth / size.width(), kWidth / size.width());
    PaintPage(painter, document, page);
    painter.end();
    EXPECT_EQ(inked(image, 0, 48), page > 0);
    EXPECT_TRUE(inked(image, 60, 780));
    EXPECT_TRUE(inked(image, 795, 815));
    EXPECT_FALSE(inked(image, 820, 842));
  }
}

}  // namespace
}  // namespace orvex::ui
