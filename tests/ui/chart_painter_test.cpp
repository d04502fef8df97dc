#include "ui/painting/chart_painter.h"

#include <gtest/gtest.h>

#include <QImage>
#include <cmath>
#include <set>

#include "support/test_home.h"
#include "ui/painting/chart_geometry.h"
#include "ui/painting/offscreen.h"
#include "ui/painting/picture_files.h"

namespace orvex::ui {
namespace {

class ChartPainting : public testing::TestWithParam<char> {
 protected:
  // Nine planets with every mark in one field, and a degree beside the sign.
  static report::ChartPicture Crowded(char style, std::size_t crowded) {
    report::ChartPicture picture{style, "Rashi", {}};
    for (std::size_t i = 0; i < picture.Fields.size(); ++i) {
      picture.Fields.at(i).Sign = std::to_string(i + 1);
    }
    report::PictureField& field = picture.Fields.at(crowded);
    field.Ascendant = true;
    field.Note = "29°59'";
    field.Codes = {"Asc", "KE~", "VE*~", "SU", "MO*", "MA*~", "RA~", "JU*~", "SA*~", "ME*~"};
    return picture;
  }

  static QImage Painted(const report::ChartPicture& picture, const ChartColors& colors, int side) {
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    PaintChart(painter, image.rect(), picture, colors);
    return image;
  }

  OffscreenPainting painting_;
};

double Area(const QPolygonF& outline) {
  double twice = 0;
  for (qsizetype i = 0; i < outline.size(); ++i) {
    const QPointF& a = outline.at(i);
    const QPointF& b = outline.at((i + 1) % outline.size());
    twice += a.x() * b.y() - b.x() * a.y();
  }
  return std::abs(twice) / 2;
}

TEST_P(ChartPainting, FieldsAndTheFreeMiddleCoverTheSquareOnce) {
  const ChartGeometry& geometry = GeometryOf(GetParam());
  double area = geometry.Middle.width() * geometry.Middle.height();
  for (const ChartField& field : geometry.Fields) {
    area += Area(field.Outline);
    EXPECT_TRUE(field.Outline.containsPoint(field.Tip, Qt::OddEvenFill));
  }
  EXPECT_NEAR(area, 1.0, 1e-9);
}

TEST_P(ChartPainting, NinePlanetsInAnyFieldTouchNeitherEachOtherNorItsRim) {
  for (const int side : {320, 720, 1200}) {
    for (std::size_t crowded = 0; crowded < 12; ++crowded) {
      const report::ChartPicture picture = Crowded(GetParam(), crowded);
      const DrawnField drawn = LayOutChart(picture, QFont(), QRectF(0, 0, side, side)).at(crowded);
      ASSERT_EQ(drawn.Codes.Words.size(), 10U);
      ASSERT_EQ(drawn.Codes.Note.Text, "29°59'");
      std::vector<PlacedWord> words = drawn.Codes.Words;
      words.push_back(drawn.Codes.Note);
      std::vector<QRectF> boxes = {drawn.SignBox};
      for (const PlacedWord& word : words) {
        for (const QPointF& corner : {word.Box.topLeft(), word.Box.topRight(),
                                      word.Box.bottomLeft(), word.Box.bottomRight()}) {
          EXPECT_TRUE(drawn.Outline.containsPoint(corner, Qt::OddEvenFill))
              << side << " field " << crowded << " " << word.Text.toStdString();
        }
        for (const QRectF& other : boxes) {
          EXPECT_FALSE(other.intersects(word.Box.adjusted(0.01, 0.01, -0.01, -0.01)))
              << side << " field " << crowded << " " << word.Text.toStdString();
        }
        boxes.push_back(word.Box);
      }
    }
  }
}

// In a window's chart, whose planets are read at 13 pixels.
TEST_P(ChartPainting, ADegreeStandsAloneOnItsLineAndIsAsSmallAsASignNumber) {
  constexpr double kReadable = 13;
  report::ChartPicture picture = Crowded(GetParam(), 0);
  for (report::PictureField& field : picture.Fields) {
    field.Note = "13°54'";
    field.Codes = {"MO"};
  }
  picture.Fields.at(3).Codes.clear();
  const std::set<std::size_t> wideAtFoot = GetParam() == 'N'   ? std::set<std::size_t>{5, 7}
                                           : GetParam() == 'E' ? std::set<std::size_t>{2, 5, 7, 10}
                                                               : std::set<std::size_t>{};
  const auto drawn = LayOutChart(picture, QFont(), QRectF(0, 0, 264, 264), kReadable);
  for (std::size_t place = 0; place < drawn.size(); ++place) {
    const FieldText& text = drawn.at(place).Codes;
    EXPECT_GE(text.NoteSize, 10) << place;
    EXPECT_LE(text.NoteSize, 11) << place;
    EXPECT_TRUE(drawn.at(place).Outline.boundingRect().contains(text.Note.Box)) << place;
    if (place == 3) {
      continue;
    }
    EXPECT_GE(text.PixelSize, kReadable) << place;
    EXPECT_EQ(text.Note.Box.top() > text.Words.front().Box.top(), wideAtFoot.contains(place))
        << place;
  }
}

TEST_P(ChartPainting, LightAndDarkChartsShowPaperTintAndText) {
  const report::ChartPicture picture = Crowded(GetParam(), 0);
  for (const ChartColors& colors : {PrintColors(), DarkColors()}) {
    const QImage image = Painted(picture, colors, 480);
    int paper = 0;
    int tint = 0;
    int text = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const QColor color = image.pixelColor(x, y);
        paper += color == colors.Paper ? 1 : 0;
        tint += color == colors.Tint ? 1 : 0;
        text += color == colors.Text ? 1 : 0;
      }
    }
    EXPECT_GT(paper, 480 * 480 / 2);
    EXPECT_GT(tint, 480 * 480 / 40);
    EXPECT_GT(text, 50);
  }
}

TEST_P(ChartPainting, PictureFilesArePrivateAndOfTheirKind) {
  const test::TempFolder folder;
  const std::pair<PictureFormat, std::string> kinds[] = {
      {PictureFormat::Bmp, "BM"}, {PictureFormat::Png, "\x89PNG"}, {PictureFormat::Svg, "<?xml"}};
  for (const auto& [format, start] : kinds) {
    const std::filesystem::path file = folder.Path() / "chart";
    WriteChartPicture(Crowded(GetParam(), 3), format, 300, file);
    EXPECT_TRUE(test::ReadFile(file).starts_with(start));
    EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms(0600));
    EXPECT_THROW(WriteChartPicture(Crowded(GetParam(), 3), format, 300, file / "below"),
                 std::runtime_error);
  }
}

INSTANTIATE_TEST_SUITE_P(Styles, ChartPainting, testing::Values('N', 'E', 'S'),
                         [](const auto& style) { return std::string(1, style.param); });

}  // namespace
}  // namespace orvex::ui
