#include "transit/planet_sheet.h"

#include "core/text.h"
#include "transit/planet_sheet_home.h"

namespace orvex::transit {
namespace {

TEST_F(PlanetSheets, TheSheetGathersWhatTheTablesKnow) {
  const PlanetSheet mars = SheetOf(chart::PlanetPlace::Mars);
  const std::pair<const char*, const char*> wanted[] = {
      {"Placed In/Degree", "2 / 123.40"},
      {"Rashi", "Leo"},
      {"Ownership", "6 11"},
      {"Star Lord", "Ketu (4)"},
      {"Retro", "No"},
      {"Combust", "Yes"},
      {"Debilitated/Exalted", "N/A"},
      {"Star Lord Of", "12"},
      {"Sub Lord Of", "5"},
      {"Conjunct With", "Sun (3 3) Mercury (2 4)"},
      {"Nadi Significators", "2 6 11"},
      {"BNN Retro Seq", "N/A"}};
  EXPECT_EQ(mars.Title, "Mars (Leo)");
  EXPECT_EQ(mars.Direction, "ENE");
  for (const auto& [label, value] : wanted) {
    EXPECT_EQ(Value(mars, label), value) << label;
  }
  EXPECT_EQ(Value(SheetOf(chart::PlanetPlace::Jupiter), "Debilitated/Exalted"), "Debilitated");
  EXPECT_EQ(Value(SheetOf(chart::PlanetPlace::Jupiter), "Retro"), "Yes");
  EXPECT_EQ(Value(SheetOf(chart::PlanetPlace::Venus), "Conjunct With"), "None");
}

TEST_F(PlanetSheets, NodesOwnAndAspectNothing) {
  const PlanetSheet rahu = SheetOf(chart::PlanetPlace::Rahu);
  EXPECT_EQ(Value(rahu, "Ownership") + Value(rahu, "Jamini Karaka"), "N/AN/A");
  EXPECT_EQ(rahu.AspectingNote, "Not Applicable");
  EXPECT_TRUE(rahu.Aspecting.Rows.empty());
  EXPECT_FALSE(rahu.AspectedBy.Rows.empty());
}

TEST_F(PlanetSheets, ADashaIsPastPresentOrToComeWithBothEndsInIt) {
  const std::pair<const char*, const char*> cases[] = {
      {"2011-10-03", "Dasha starts on 4 October 2011 and ends on 4 October 2029"},
      {"2011-10-04", "Current Dasha started on 4 October 2011 and ends on 4 October 2029"},
      {"2029-10-04", "Current Dasha started on 4 October 2011 and ends on 4 October 2029"},
      {"2029-10-05", "Dasha started on 4 October 2011 and ended on 4 October 2029"}};
  for (const auto& [today, text] : cases) {
    EXPECT_EQ(SheetOf(chart::PlanetPlace::Rahu, today).Dasha, text);
  }
}

TEST_F(PlanetSheets, BothListsReadTheSameHits) {
  std::size_t fromPlanets = 0;
  std::size_t toPlanets = 0;
  for (int place = 0; place < 9; ++place) {
    const PlanetSheet sheet = SheetOf(static_cast<chart::PlanetPlace>(place));
    toPlanets += sheet.AspectedBy.Rows.size();
    for (const core::Row& row : sheet.Aspecting.Rows) {
      EXPECT_FALSE(row.Cells[0].Text.empty());
      EXPECT_TRUE(row.Cells[2].Background == "CAFACB" || row.Cells[2].Background == "FACACA");
      ++fromPlanets;
    }
  }
  EXPECT_EQ(toPlanets, model_.PlanetAspectList.Rows.size());
  EXPECT_EQ(fromPlanets, model_.HitsTable.Rows.size());
}

}  // namespace
}  // namespace orvex::transit
