#include "chart/client_saving.h"

#include <gtest/gtest.h>

#include <functional>

#include "chart/instant_chart.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "support/test_home.h"

namespace orvex::chart {
namespace {

class ClientSaving : public testing::Test {
 protected:
  ClientForm Form() const {
    ClientForm form = OpenAddClient(*session_);
    form.FullName = "First Client";
    form.Birth = test::Moment("1990-07-05 14:30");
    SelectCity(*session_, 1, form);
    return form;
  }

  std::int32_t Save(const ClientForm& form) {
    const core::SaveResult saved = SaveNewClient(*session_, form, 1);
    EXPECT_FALSE(saved.Refused) << saved.Refused->Text;
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
    return saved.Id;
  }

  std::string Text(const std::string& field, std::int32_t id) const {
    return session_->StoreConnection
        .Query("Select " + field + " as found from client_master where id = " + std::to_string(id))
        .Text("found");
  }

  std::int64_t Count(const std::string& table) const {
    return session_->StoreConnection.Query("Select count(*) as n from " + table).Integer("n");
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

// The row of a client is found again by its second: two of one second mix their rows, unless each
// takes a second of its own.
TEST_F(ClientSaving, TwoClientsOfOneSecondShareTheFirstRowUnlessEachHasASecondOfItsOwn) {
  session_->State.InstantChartGroupId = 1;
  const auto planets = [this](std::int32_t id) {
    return Count("client_planets where clientid = " + std::to_string(id));
  };
  for (const std::int32_t id : {1, 2}) {
    ClientForm form = Form();
    form.FullName = "Client " + std::to_string(id);
    EXPECT_EQ(SaveNewClient(*session_, form, 1, Creation::InASecondOfItsOwn).Id, id);
    EXPECT_EQ(Text("fullname", id), form.FullName);
  }
  EXPECT_EQ(CreateInstantChart(*session_, Creation::InASecondOfItsOwn).Id, 3);
  EXPECT_EQ(CreateInstantChart(*session_, Creation::InASecondOfItsOwn).Id, 4);
  for (const std::int32_t id : {1, 2, 3, 4}) {
    EXPECT_EQ(planets(id), 9) << id;
  }
  EXPECT_EQ(Text("createddate", 1), "2026-11-24 10:00:00");
  EXPECT_EQ(Text("createddate", 4), "2026-11-24 10:00:03");

  EXPECT_EQ(SaveNewClient(*session_, Form(), 1).Id, 1);
  EXPECT_EQ(CreateInstantChart(*session_).Id, 1);
  EXPECT_EQ(planets(1), 27);
}

struct Fault {
  const char* text;
  const char* field;
  std::function<void(ClientForm&)> spoil;
};

// In the order in which the dialog checks; each spoils one field and leaves the others.
const std::vector<Fault>& Faults() {
  static const std::vector<Fault> kFaults = {
      {"Client Name is a mandatory field.", "fullName", [](ClientForm& f) { f.FullName = "  "; }},
      {"Please enter a value between 1 to 249.", "horaryNumber",
       [](ClientForm& f) { f.Horary = true, f.HoraryNumber = "250"; }},
      {"Please enter a value between 1 to 249.", "horaryNumber",
       [](ClientForm& f) { f.Horary = true, f.HoraryNumber = "0"; }},
      {"Please enter a value between 1 to 249.", "horaryNumber",
       [](ClientForm& f) { f.Horary = true, f.HoraryNumber = "1.5"; }},
      {"Horary Question is a mandatory field.", "horaryQuestion",
       [](ClientForm& f) { f.Horary = true, f.HoraryQuestion = " "; }},
      {"Please enter a value between 0 to 360.", "ascendantDegree",
       [](ClientForm& f) { f.AscendantByHand = true, f.AscendantDegree = "x"; }},
      {"Please enter a value between 0 to 360.", "ascendantDegree",
       [](ClientForm& f) { f.AscendantByHand = true, f.AscendantDegree = "360.01"; }},
      {"Please enter a value between 0 to 360.", "ascendantDegree",
       [](ClientForm& f) { f.AscendantByHand = true, f.AscendantDegree = "-0.01"; }},
      {"Please select a City from the list.", "cityList", [](ClientForm& f) { f.CityId = 0; }},
      {"Please enter a numeric value.", "offset", [](ClientForm& f) { f.Offset = ""; }},
      {"Incorrect Offset Value entered.", "offset", [](ClientForm& f) { f.Offset = "27.01"; }},
      {"Incorrect Offset Value entered.", "offset", [](ClientForm& f) { f.Offset = "-28"; }},
      {"No City selected. Cannot proceed.", "citySearch", [](ClientForm& f) { f.CityId = 999999; }},
      {"Latitude is a mandatory field.", "latitude", [](ClientForm& f) { f.Latitude = " "; }},
      {"Latitude is a numeric field.", "latitude",
       [](ClientForm& f) { f.Latitude = "1); drop table settings; --"; }},
      {"Longitude is a mandatory field.", "longitude", [](ClientForm& f) { f.Longitude = ""; }},
      {"Longitude is a numeric field.", "longitude", [](ClientForm& f) { f.Longitude = "7,5"; }},
  };
  return kFaults;
}

TEST_F(ClientSaving, EachCheckRefusesInItsTurnAndTheStoreStaysAsItWas) {
  const auto expectRefused = [this](const ClientForm& form, const Fault& fault) {
    const core::SaveResult result = SaveNewClient(*session_, form, 1);
    ASSERT_TRUE(result.Refused) << fault.text;
    EXPECT_EQ(result.Refused->Text, fault.text);
    EXPECT_EQ(result.Refused->Field, fault.field);
    EXPECT_EQ(result.Refused->Icon, core::MessageIcon::Information);
  };
  const std::vector<Fault>& faults = Faults();
  for (std::size_t first = 0; first < faults.size(); ++first) {
    ClientForm alone = Form();
    alone.HoraryQuestion = "Will it rain?";
    faults[first].spoil(alone);
    expectRefused(alone, faults[first]);
    for (std::size_t later = first + 1; later < faults.size(); ++later) {
      ClientForm both = Form();
      both.HoraryQuestion = "Will it rain?";
      faults[later].spoil(both);
      faults[first].spoil(both);
      // With no city chosen its row is not looked for; a query's degree is not looked at.
      expectRefused(both, faults[first]);
    }
  }
  EXPECT_EQ(Count("client_master") + Count("client_planets"), 0);
}

TEST_F(ClientSaving, ABirthIsStoredWithItsTenRowsAsEntered) {
  const std::int32_t id = Save(Form());
  EXPECT_EQ(Count("client_planets where clientid = " + std::to_string(id)), 9);
  const std::pair<const char*, const char*> wanted[] = {{"fullname", "First Client"},
                                                        {"birthdate", "1990-07-05 14:30:00"},
                                                        {"latitude", "19.07283"},
                                                        {"longitude", "72.88261"},
                                                        {"offset", "5.5"},
                                                        {"firstrashihouse", "7"},
                                                        {"gender", "M"},
                                                        {"horary", "0"},
                                                        {"horaryno", "0"},
                                                        {"horaryquestion", ""},
                                                        {"ascdegreetype", "A"},
                                                        {"createddate", "2026-11-24 10:00:00"},
                                                        {"cuspdegree1", "194.67"},
                                                        {"cuspdegree12", "167.23"},
                                                        {"groupid", "1"}};
  for (const auto& [field, value] : wanted) {
    EXPECT_EQ(Text(field, id), value) << field;
  }
}

TEST_F(ClientSaving, TextsComeBackAsTheyWereTyped) {
  for (const std::string& text :
       {std::string("O'Neil's"), std::string("100% #5 [x]"), std::string("Zo\u00eb \u0905\u092c"),
        std::string("'; Drop table client_master; --"), std::string(10'000'000, 'x')}) {
    ClientForm form = Form();
    form.Email = text;
    form.Comments = text;
    const std::int32_t id = Save(form);
    EXPECT_EQ(Text("email", id), text);
    EXPECT_EQ(Text("comments", id), text);
  }
}

TEST_F(ClientSaving, LongNamesAndQuestionsAreCutByCharacters) {
  ClientForm form = Form();
  std::string name;
  for (int i = 0; i < 120; ++i) {
    name += "\u0905";
  }
  form.FullName = " " + name;
  form.Horary = true;
  form.HoraryNumber = "249";
  form.HoraryQuestion = std::string(150, '?');
  const std::int32_t id = Save(form);
  EXPECT_EQ(core::CharacterCount(Text("fullname", id)), 100U);
  EXPECT_EQ(Text("horaryquestion", id), std::string(100, '?'));
  EXPECT_EQ(Text("horaryno", id) + Text("horary", id) + Text("ascdegreetype", id), "2491A");
  EXPECT_EQ(Text("cuspdegree1", id), "357.89");
}

TEST_F(ClientSaving, OfTwoClientsOfOneSecondTheFirstIsFound) {
  const core::SaveResult first = SaveNewClient(*session_, Form(), 1);
  const core::SaveResult second = SaveNewClient(*session_, Form(), 1);
  EXPECT_EQ(first.Id, second.Id);
  EXPECT_EQ(Count("client_master"), 2);
}

TEST_F(ClientSaving, AnEditKeepsGroupAndCreationAndWritesTheNewChart) {
  const std::int32_t id = Save(Form());
  std::optional<ClientForm> form = OpenEditClient(*session_, id);
  ASSERT_TRUE(form);
  form->FullName = "Edited";
  form->Latitude = "20";
  form->AscendantByHand = true;
  form->AscendantDegree = "100.5";
  home_.Clock.Set(test::Moment("2027-01-01 00:00"));
  ASSERT_FALSE(SaveClientChanges(*session_, *form, id).Refused);
  EXPECT_EQ(Text("fullname", id) + Text("latitude", id) + Text("cityid", id), "Edited201");
  EXPECT_EQ(Text("createddate", id), "2026-11-24 10:00:00");
  EXPECT_EQ(Text("groupid", id) + Text("ascdegreetype", id), "1M");
  EXPECT_EQ(Text("cuspdegree1", id), "100.5");
  EXPECT_EQ(Count("client_planets"), 9);
  const std::optional<ClientForm> again = OpenEditClient(*session_, id);
  EXPECT_TRUE(again->AscendantByHand);
  EXPECT_EQ(again->AscendantDegree, "100.5");
}

TEST_F(ClientSaving, AnEditedClientHoldsTheChartOfANewOne) {
  ClientForm form = Form();
  const std::int32_t edited = Save(form);
  form.Birth = test::Moment("1971-02-03 04:05");
  form.Horary = true;
  form.HoraryNumber = "147";
  form.HoraryQuestion = "Will it rain?";
  form.Gender = "O";
  const std::int32_t fresh = Save(form);
  ASSERT_FALSE(SaveClientChanges(*session_, form, edited).Refused);
  for (int n = 1; n <= 12; ++n) {
    const std::string cusp = "CuspDegree" + std::to_string(n);
    EXPECT_EQ(Text(cusp, edited), Text(cusp, fresh)) << n;
  }
  EXPECT_EQ(Text("firstrashihouse", edited), Text("firstrashihouse", fresh));
  const std::string both = std::to_string(edited) + ", " + std::to_string(fresh);
  EXPECT_EQ(Count("(select planetid, rashihouse, chalithouse, degree, starlord, sublord, inretro "
                  "from client_planets where clientid in (" +
                  both + ") group by 1, 2, 3, 4, 5, 6, 7 having count(*) = 2)"),
            9);
  const ClientForm again = OpenEditClient(*session_, edited).value();
  EXPECT_TRUE(again.Horary && !again.AscendantByHand);
  EXPECT_EQ(again.HoraryNumber + again.HoraryQuestion + again.Gender, "147Will it rain?O");
}

TEST_F(ClientSaving, NumbersAreStoredHoweverTheyAreWritten) {
  const std::pair<const char*, const char*> cases[] = {
      {"+5.5", "5.5"}, {" .5 ", "0.5"}, {"5.", "5"}, {"-0", "0"}, {"1e1", "10"}, {"-.25", "-0.25"}};
  for (const auto& [typed, stored] : cases) {
    ClientForm form = Form();
    form.Offset = typed;
    form.Latitude = typed;
    const std::int32_t id = Save(form);
    EXPECT_EQ(Text("offset", id), stored);
    EXPECT_EQ(Text("latitude", id), stored);
  }
}

// Where neither a planet's sign nor the next holds a cusp its rashi house stays empty, as for a
// quarter of the births at Reykjavik. All nine rows are stored, by a new save and by an edit.
TEST_F(ClientSaving, BirthsInTheFarNorthAreStoredWithTheirEmptyHouses) {
  const std::pair<const char*, const char*> places[] = {{"64.13548", "-21.89541"},
                                                        {"60.16952", "24.93545"}};
  const std::int32_t edited = Save(Form());
  for (const auto& [latitude, longitude] : places) {
    std::int64_t empty = 0;
    for (int i = 0; i < 60; ++i) {
      ClientForm form = Form();
      form.Birth = test::Moment("1950-01-03 00:20") + std::chrono::hours(i * 4391);
      form.Offset = "0";
      form.Latitude = latitude;
      form.Longitude = longitude;
      const std::int32_t id = Save(form);
      const std::string rows = "client_planets where clientid = ";
      EXPECT_EQ(Count(rows + std::to_string(id)), 9) << latitude << " " << i;
      empty += Count(rows + std::to_string(id) + " and rashihouse is null");
      ASSERT_FALSE(SaveClientChanges(*session_, form, edited).Refused) << i;
      EXPECT_EQ(Count("(select planetid, rashihouse, chalithouse, degree, inretro from " + rows +
                      std::to_string(id) +
                      " except select planetid, rashihouse, chalithouse, degree, inretro from " +
                      rows + std::to_string(edited) + ")"),
                0)
          << latitude << " " << i;
    }
    EXPECT_GT(empty, 0) << latitude;
  }
}

TEST_F(ClientSaving, ACityWithoutItsZoneCantBeChosen) {
  ClientForm form = Form();
  session_->StoreConnection.Execute("Update city_master set timezone = 'Mars/Base' where id = 1");
  EXPECT_EQ(SaveNewClient(*session_, form, 1).Refused->Text, "No City selected. Cannot proceed.");
}

TEST_F(ClientSaving, AClientThatIsGoneIsSaid) {
  EXPECT_FALSE(OpenEditClient(*session_, 55));
  ASSERT_EQ(home_.Messages.All().size(), 1U);
  EXPECT_EQ(home_.Messages.All()[0].Text,
            "The record you are trying to edit could not be retrieved.");
}

TEST_F(ClientSaving, TheFirstAndLastYearsAreToldApartFromTheOnesBeyond) {
  ClientForm form = Form();
  form.Birth = test::Moment("0100-01-01 00:00");
  const core::SaveResult before = SaveNewClient(*session_, form, 1);
  ASSERT_TRUE(before.Refused);
  EXPECT_EQ(before.Refused->Field, "birth");
  form.Birth = test::Moment("0100-01-01 05:30");
  Save(form);
  form.Birth = test::Moment("9999-12-31 23:59");
  Save(form);
  EXPECT_EQ(Count("client_planets"), 18);
}

}  // namespace
}  // namespace orvex::chart
