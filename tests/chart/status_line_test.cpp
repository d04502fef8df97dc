#include "chart/status_line.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "support/model_builder.h"

namespace orvex::chart {
namespace {

TEST(StatusLine, DegreesStandAsTheSettingsSayWithTheirMarks) {
  struct {
    const char* degree;
    const char* combust;
    bool retrograde;
    const char* actual;
    const char* inSign;
  } const cases[] = {{"29.99", "", false, "MA (10) = 29.99    ", "MA (10) = 29.99    "},
                     {"30.00", "C", false, "MA* (10) = 30.00    ", "MA* (10) = 0.00    "},
                     {"79.45", "", true, "MA~ (10) = 79.45    ", "MA~ (10) = 19.45    "},
                     {"359.99", "C", true, "MA*~ (10) = 359.99    ", "MA*~ (10) = 29.99    "},
                     {"5.00", "x", false, "MA (10) = 5.00    ", "MA (10) = 5.00    "}};
  for (const auto& c : cases) {
    HoroscopeModel model = test::BuildModel({{"Mars", c.degree, 10, "", "", c.retrograde}});
    model.PlanetTable.At(0, PlanetColumn::C).Text = c.combust;
    WriteStatusLine(model, 'A');
    EXPECT_EQ(model.Captions.PlanetPositions, c.actual);
    WriteStatusLine(model, 'R');
    EXPECT_EQ(model.Captions.PlanetPositions, c.inSign);
  }
}

TEST(StatusLine, TellsTheAscendantThePlanetsAndTheMarks) {
  struct {
    const char* ascendant;
    char degreeCalc;
    const char* shown;
  } const cases[] = {{"15.00", 'A', "15.00"},
                     {"15.00", 'R', "Ari 15.00"},
                     {"254.30", 'A', "254.30"},
                     {"254.30", 'R', "Sag 14.30"},
                     {"359.99", 'R', "Pis 29.99"}};
  for (const auto& c : cases) {
    test::CuspDegrees cusps = test::CuspsAt(15);
    cusps[0] = c.ascendant;
    HoroscopeModel model = test::BuildModel({{"Sun", "10.00", 12}, {"Moon", "20.00", 1}}, cusps);
    WriteStatusLine(model, c.degreeCalc);
    EXPECT_EQ(model.Captions.StatusBar, std::string("Asc = ") + c.shown +
                                            "  |  SU (12) = 10.00    MO (1) = 20.00"
                                            "  |  * = Combust, ~ = Retro");
  }
}

TEST(StatusLine, ADegreeThatIsMissingCostsOnlyItsOwnPlace) {
  HoroscopeModel model = test::WorkedModel();
  model.PlanetTable.At(RowOf(PlanetPlace::Ketu), PlanetColumn::Degree).Text.clear();
  WriteStatusLine(model, 'R');
  EXPECT_FALSE(core::Contains(model.Captions.PlanetPositions, "KE"));
  EXPECT_TRUE(core::Contains(model.Captions.PlanetPositions, "VE (2) = 10.00    SU"));
  HoroscopeModel damaged = test::DamagedModel(0, 9);
  damaged.CuspTable.Rows.clear();
  EXPECT_NO_THROW(WriteStatusLine(damaged, 'R'));
}

}  // namespace
}  // namespace orvex::chart
