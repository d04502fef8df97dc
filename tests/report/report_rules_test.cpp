// Rules of the charts' cells and of the report that a usual chart does not show.
#include <gtest/gtest.h>

#include "chart/client_saving.h"
#include "core/cell_colors.h"
#include "core/text.h"
#include "horoscope/create_horoscope.h"
#include "report/chart_picture.h"
#include "report/html_fragments.h"
#include "report/html_report.h"
#include "report/sky_chart.h"
#include "support/model_builder.h"
#include "support/test_home.h"
#include "vedic/lal_kitab.h"
#include "vedic/lo_shu.h"

namespace orvex::report {
namespace {

TEST(ChartCellRules, TwoCuspsOfOneSignShareItsCellAndLoseNoPlanet) {
  test::CuspDegrees cusps = test::CuspsAt(15);
  cusps[0] = "5.00";
  cusps[1] = "25.00";
  const ChartCells cells = BuildChartCells(
      test::BuildModel({{"Sun", "10.00", 1}, {"Moon", "27.00", 2}, {"Mars", "75.00", 3}}, cusps));
  EXPECT_EQ(cells.EastKP[0].Text, "Asc SU MO");
  EXPECT_EQ(cells.EastKP[1].Text, "");
  EXPECT_EQ(cells.EastKP[2].Text, "MA");
}

TEST(PictureRules, FieldsOfADivisionStandByHouseOrBySign) {
  vedic::DivisionChart division;
  for (std::size_t i = 1; i <= 12; ++i) {
    const int sign = static_cast<int>(i + 3) % 12 + 1;  // Leo in the first house
    division.HouseSigns.at(i) = sign;
    division.North.at(i) = std::to_string(sign) + (i == 1 ? " SU" : "");
    division.East.at(i) = i == 5 ? "Asc SU" : "";
  }
  const ChartPicture north = DivisionPicture(division, 'N', "D9");
  const ChartPicture east = DivisionPicture(division, 'E', "D9");
  for (std::size_t i = 0; i < 12; ++i) {
    EXPECT_EQ(north.Fields[i].Sign, std::to_string((i + 4) % 12 + 1));
    EXPECT_EQ(north.Fields[i].Ascendant, i == 0);
    EXPECT_EQ(north.Fields[i].Codes.size(), i == 0 ? 1U : 0U);
    EXPECT_EQ(east.Fields[i].Sign, std::to_string(i + 1));
    EXPECT_EQ(east.Fields[i].Ascendant, i == 4);
  }
}

TEST(PictureRules, TheFirstHouseOfTheAnnualChartIsTinted) {
  core::Table year{{{"House"}, {"Planets"}}, {}};
  for (std::size_t row = 0; row < 12; ++row) {
    year.AddRow();
    year.At(row, vedic::LalKitabColumn::House).Text = std::to_string(row + 1);
    year.At(row, vedic::LalKitabColumn::Planets).Text = row == 3 ? "SU MO" : "";
  }
  for (const char style : {'N', 'E', 'S'}) {
    const ChartPicture picture = AnnualPicture(year, style);
    for (std::size_t i = 0; i < 12; ++i) {
      EXPECT_EQ(picture.Fields[i].Ascendant, i == 0);
      EXPECT_EQ(picture.Fields[i].Sign, std::to_string(i + 1));
      EXPECT_EQ(picture.Fields[i].Codes.size(), i == 3 ? 2U : 0U);
    }
  }
}

TEST(SkyChartRules, PlanetsOfTheFirstHouseStandInEveryStyleAndItsCellIsTinted) {
  panchang::SkyView view;
  view.SkyHouses = {{{"House"}, {"Rashi"}, {"Planets"}}, {}};
  using panchang::SkyHouseColumn;
  for (std::size_t house = 0; house < 12; ++house) {
    view.SkyHouses.AddRow();
    view.SkyHouses.At(house, SkyHouseColumn::Rashi).Text = std::to_string((house + 4) % 12 + 1);
    view.SkyHouses.At(house, SkyHouseColumn::Planets).Text = house == 0   ? "Asc SU ME*~"
                                                             : house == 6 ? "MO"
                                                                          : "";
  }
  const ChartCells cells = BuildSkyChart(view);
  EXPECT_EQ(cells.North[0].Text, "Asc 5 SU ME*~");
  EXPECT_EQ(cells.North[6].Text, "11 MO");
  EXPECT_EQ(cells.East[4].Text, "Asc SU ME*~");
  EXPECT_EQ(cells.East[10].Text, "MO");
  for (std::size_t row = 0; row < 4; ++row) {
    for (std::size_t column = 0; column < 4; ++column) {
      const core::Cell& cell = cells.SouthRashi[row][column];
      EXPECT_EQ(cell.Background == core::kAscendantTint, cell.Tag == "5") << row << column;
    }
  }
  EXPECT_EQ(cells.SouthRashi[2][3].Text, "Asc SU ME*~");  // Leo
  EXPECT_EQ(cells.SouthRashi[1][0].Text, "MO");           // Aquarius
}

TEST(FragmentRules, TheLoShuGridOfTheReportIsTheMagicSquare) {
  std::array<std::string, 10> texts;
  for (std::size_t number = 1; number <= 9; ++number) {
    texts.at(number) = "n" + std::to_string(number) + "*second line";
  }
  const std::string html = LoShuGridHtml(texts);
  std::vector<int> order;
  for (std::size_t at = 0; (at = html.find(">n", at)) != std::string::npos; ++at) {
    order.push_back(html[at + 2] - '0');
  }
  EXPECT_EQ(order, (std::vector<int>{4, 9, 2, 3, 5, 7, 8, 1, 6}));
}

class ReportRules : public testing::Test {
 protected:
  ReportRules() {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    form.FullName = "Client";
    form.Birth = test::Moment("1985-09-05 11:58");
    model_ =
        horoscope::CreateHoroscope(*session_, chart::SaveNewClient(*session_, form, 1).Id)->Model;
  }

  std::string Filled(const std::string& text) {
    return FillTemplate(*session_, model_, ReportDetail::DB, {}, text);
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
  chart::HoroscopeModel model_;
};

TEST_F(ReportRules, EveryTypedTextIsEscaped) {
  const std::string typed = "<a> & [DBA1]";
  const std::string shown = "&lt;a&gt; &amp; &#91;DBA1]";
  model_.Name = model_.Comments = model_.HoraryQuestion = typed;
  model_.Horary = true;
  model_.Captions.City = model_.Captions.Latitude = model_.Captions.Longitude = typed;
  session_->State.AstrologerName = session_->State.AstrologerOrganization = typed;
  session_->State.AstrologerContactDetails = typed;
  for (const char* placeholder :
       {"FULLNAME", "CLIENTNAME", "COMMENTS", "HORARYQUESTION", "BIRTHPLACE", "LATITUDE",
        "LONGITUDE", "ASTROLOGERNAME", "ASTROLOGERORGANIZATION", "ASTROLOGERCONTACTDETAILS"}) {
    EXPECT_EQ(Filled("[" + std::string(placeholder) + "]"), shown) << placeholder;
  }
}

TEST_F(ReportRules, WhatIsMissingInTheLoShuGridIsRedAndWhatIsThereIsNot) {
  constexpr auto kDirection = core::Table::Index(vedic::LoShuAnalysisColumn::Direction);
  const std::string html = Filled("[LOSHUANALYSIS]");
  for (const core::Row& row : model_.LoShuAnalysis.Rows) {
    const std::string number = row.Cells.front().Text;
    const bool missing = model_.LoShuCount.at(static_cast<std::size_t>(std::stoi(number))) == 0;
    const std::string cell = "' face='Verdana' size='2'>" + row.Cells.at(kDirection).Text + "<";
    EXPECT_EQ(core::Contains(html, "<font color='#FF0000" + cell), missing) << number;
    EXPECT_EQ(core::Contains(html, "<font color='" + cell), !missing) << number;
  }
}

}  // namespace
}  // namespace orvex::report
