#include "core/settings.h"

#include <gtest/gtest.h>

#include <functional>

#include "support/test_home.h"

namespace orvex::core {
namespace {

class Settings : public testing::Test {
 protected:
  std::string Stored(const std::string& column) const {
    return session_->StoreConnection.Query("Select * from settings").Text(column);
  }

  test::TestHome home_;
  std::unique_ptr<Session> session_ = home_.Start();
};

TEST_F(Settings, EachCheckRefusesInItsTurnWithItsPageAndField) {
  struct Fault {
    const char* Text;
    const char* Page;
    const char* Field;
    std::function<void(SettingsForm&)> Break;
  };
  std::vector<Fault> faults = {
      {"Name cannot exceed 50 characters.", "Profile", "AstrologerName",
       [](SettingsForm& f) { f.AstrologerName = std::string(51, 'x'); }},
      {"Organization cannot exceed 50 characters.", "Profile", "AstrologerOrganization",
       [](SettingsForm& f) { f.AstrologerOrganization = std::string(51, 'x'); }},
      {"Contact Details cannot exceed 250 characters.", "Profile", "AstrologerContactDetails",
       [](SettingsForm& f) { f.AstrologerContactDetails = std::string(251, 'x'); }}};
  const char* const limits[] = {"5", "5", "10", "3", "5", "3", "3", "10"};
  for (std::size_t i = 0; i < kAspectCount; ++i) {
    static const std::string texts[] = {"Value cannot be less than 0 or greater than 5.",
                                        "Value cannot be less than 0 or greater than 10.",
                                        "Value cannot be less than 0 or greater than 3."};
    const std::string& text = texts[limits[i] == std::string("5")    ? 0
                                    : limits[i] == std::string("10") ? 1
                                                                     : 2];
    const std::string limit = limits[i];
    faults.push_back({text.c_str(), "Orbits", kAspects[i].OrbColumn,
                      [i, limit](SettingsForm& f) { f.Orbs[i] = limit + ".01"; }});
  }
  const SettingsForm good = OpenSettings(*session_);
  SettingsForm broken = good;
  for (auto fault = faults.rbegin(); fault != faults.rend(); ++fault) {
    fault->Break(broken);  // with all later faults in it
    const SaveResult result = SaveSettings(*session_, broken);
    ASSERT_TRUE(result.Refused) << fault->Field;
    EXPECT_EQ(result.Refused->Text, fault->Text);
    EXPECT_EQ(result.Refused->Page, fault->Page);
    EXPECT_EQ(result.Refused->Field, fault->Field);
  }
  EXPECT_EQ(Stored("Orbit_30"), "3");
  for (const char* typed : {"", "three", "1,5", "0x1"}) {
    SettingsForm form = good;
    form.Orbs[3] = typed;
    EXPECT_EQ(SaveSettings(*session_, form).Refused->Text, "Numeric value required.") << typed;
  }
}

TEST_F(Settings, TheLookHasItsBoundsAndStandsAsUsualWhereNothingOrNonsenseIsStored) {
  EXPECT_EQ(LookOf(*session_).TextSize, 100);
  EXPECT_TRUE(LookOf(*session_).DegreesInSign);
  EXPECT_EQ(LookOf(*session_).Theme, "desktop");
  for (const char* typed : {"89", "141", "", "100.5", "large", "-100"}) {
    SettingsForm form = OpenSettings(*session_);
    form.TextSize = typed;
    const SaveResult refused = SaveSettings(*session_, form);
    ASSERT_TRUE(refused.Refused) << typed;
    EXPECT_EQ(refused.Refused->Page, std::string("Look"));
    EXPECT_EQ(refused.Refused->Field, "TextSize");
  }
  for (const char* typed : {"90", " 140 "}) {
    SettingsForm form = OpenSettings(*session_);
    form.TextSize = typed;
    form.DegreesShown = "As stored";
    form.Theme = "Dark";
    ASSERT_FALSE(SaveSettings(*session_, form).Refused) << typed;
    EXPECT_EQ(Stored("DegreesShown") + Stored("Theme"), "Adark");
    EXPECT_FALSE(LookOf(*session_).DegreesInSign);
  }
  EXPECT_EQ(LookOf(*session_).TextSize, 140);
  session_->StoreConnection.Execute(
      "Update settings set TextSize = 4000, Theme = 'x', DegreesShown = 'x'");
  EXPECT_EQ(LookOf(*session_).TextSize, 140);
  EXPECT_EQ(LookOf(*session_).Theme, "desktop");
  EXPECT_TRUE(LookOf(*session_).DegreesInSign);
}

TEST_F(Settings, WhatIsSavedStandsInTheRowAndInTheStateAtOnce) {
  SettingsForm form = OpenSettings(*session_);
  form.RahuKetuCalculation = "True";
  form.DefaultChartType = "South Indian";
  form.StatusBarDegreeCalc = "Rashi";
  form.SortBy = "Mobile No.";
  form.ChartPath = "/tmp/it's";
  form.UserCityId = 1;
  form.InstantChartGroupId = 0;
  form.AstrologerName = "  O'Neil " + std::string(43, 'x') + "  ";  // 50 when trimmed
  form.Orbs = {"0", "5", "10", "3", "5", "3", "3", "10"};
  ASSERT_FALSE(SaveSettings(*session_, form).Refused);
  const ApplicationState& state = session_->State;
  EXPECT_EQ(state.RahuKetuCalculation, 'T');
  EXPECT_EQ(state.DefaultChartType, 'S');
  EXPECT_EQ(state.StatusBarDegreeCalc, 'R');
  EXPECT_EQ(state.SortColumn, "cm.Mobile");
  EXPECT_EQ(state.ChartPath, "/tmp/it's");
  EXPECT_EQ(state.UserCityName, "Mumbai");
  EXPECT_EQ(state.InstantChartGroupId, 0);
  EXPECT_EQ(state.AstrologerName, "O'Neil " + std::string(43, 'x'));
  EXPECT_EQ(state.AspectBands[0].Low, 30);
  EXPECT_EQ(state.AspectBands[0].High, 30);
  EXPECT_EQ(AspectOfAngle(state.AspectBands, 170), 7);
  EXPECT_EQ(AspectOfAngle(state.AspectBands, 29), -1);
  EXPECT_EQ(Stored("SortByField"), "MBL");
  EXPECT_EQ(Stored("ICGroupID"), "0");
  // What was saved opens again.
  const SettingsForm again = OpenSettings(*session_);
  EXPECT_EQ(again.DefaultChartType, "South Indian");
  EXPECT_EQ(again.Orbs, form.Orbs);
  session_.reset();
  session_ = home_.Start();
  EXPECT_EQ(session_->State.AspectBands[7].High, 190);
}

TEST_F(Settings, TheCityStaysWithoutAChoiceAndAnUnknownSortIsByName) {
  SettingsForm form = OpenSettings(*session_);
  form.UserCityId = 0;
  form.SortBy = "Shoe size";
  ASSERT_FALSE(SaveSettings(*session_, form).Refused);
  EXPECT_EQ(Stored("usercityid"), "19");
  EXPECT_EQ(Stored("SortByField"), "CLN");
  form.UserCityId = 999999;
  EXPECT_EQ(SaveSettings(*session_, form).Refused->Field, "UserCityID");
  form.UserCityId = 19;
  form.InstantChartGroupId = 77;
  EXPECT_EQ(SaveSettings(*session_, form).Refused->Field, "ICGroupID");
}

TEST_F(Settings, CaptionsFollowTheOrbsAndTheResetGivesTheDefaults) {
  EXPECT_EQ(OrbCaption(0, "3"), "30 Degree: (27 to 33)");
  EXPECT_EQ(OrbCaption(7, "10"), "180 Degree: (170 to 190)");
  EXPECT_EQ(OrbCaption(3, "0"), "45 Degree: (45 to 45)");
  EXPECT_EQ(DefaultOrbs(), (std::array<std::string, 8>{"3", "5", "8", "3", "5", "3", "3", "8"}));
}

TEST_F(Settings, AStoreThatRefusesTheUpdateLeavesTheStateAsItWas) {
  session_->StoreConnection.ExecuteScript(
      "create trigger refuse before update on settings begin select raise(abort, 'no'); end");
  SettingsForm form = OpenSettings(*session_);
  form.RahuKetuCalculation = "True";
  EXPECT_EQ(SaveSettings(*session_, form).Refused->Text, "Could not update database.");
  EXPECT_EQ(session_->State.RahuKetuCalculation, 'M');
}

}  // namespace
}  // namespace orvex::core
