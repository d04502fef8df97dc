#include "report/chart_picture.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/model_builder.h"

namespace orvex::report {
namespace {

TEST(ChartPictures, EveryStyleShowsAllPlanetsOnceAndTintsOneField) {
  const ChartCells cells = BuildChartCells(test::WorkedModel());
  for (const char style : {'N', 'E', 'S', '?'}) {
    for (const ChartPicture& picture : {RashiPicture(cells, style), ChalitPicture(cells, style)}) {
      std::vector<std::string> codes;
      int tinted = 0;
      for (const PictureField& field : picture.Fields) {
        tinted += field.Ascendant ? 1 : 0;
        EXPECT_FALSE(field.Sign.empty()) << style;
        for (const std::string& code : field.Codes) {
          codes.push_back(code.substr(0, 2));
        }
      }
      std::erase(codes, "As");
      std::sort(codes.begin(), codes.end());
      EXPECT_EQ(codes,
                (std::vector<std::string>{"JU", "KE", "MA", "ME", "MO", "RA", "SA", "SU", "VE"}))
          << style << picture.Title;
      EXPECT_EQ(tinted, 1) << style << picture.Title;
    }
  }
}

TEST(ChartPictures, TheKpChartShowsTheDegreesOfTheCusps) {
  const ChartCells cells = BuildChartCells(test::WorkedModel());
  EXPECT_EQ(ChalitPicture(cells, 'N').Fields.at(1).Note, "(45.00)");
  EXPECT_EQ(ChalitPicture(cells, 'S').Fields.at(1).Note, "(45.00)");
  EXPECT_EQ(RashiPicture(cells, 'S').Fields.at(1).Note, "");
  const ChartPicture inSign = WithDegreesInSign(ChalitPicture(cells, 'N'));
  EXPECT_EQ(inSign.Fields.at(1).Note, "15°00'");
  EXPECT_EQ(inSign.Fields.at(1).Tooltip, "Cusp: 45.00");
  EXPECT_EQ(WithDegreesInSign(RashiPicture(cells, 'N')).Fields.at(1).Note, "");
}

}  // namespace
}  // namespace orvex::report
