// The reading to the second at the edges of what a birth can be.
#include "horoscope/exact_reading.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>

#include "chart/client_saving.h"
#include "core/exact_numbers.h"
#include "exact/exact_tables.h"
#include "horoscope/create_horoscope.h"
#include "support/test_home.h"

namespace orvex::horoscope {
namespace {

using exact::ExactCuspColumn;
using exact::ExactPlanetColumn;

struct EdgeBirth {
  const char* What;
  const char* Birth;
  const char* Latitude;
  const char* Longitude;
  const char* Offset;
  const char* Horary;     // "" for a birth
  const char* Ascendant;  // "" where it is computed
  const char* Moment;     // in UT
  const char* First;      // the position of the first cusp; "" where it is not told beforehand
};

constexpr EdgeBirth kEdges[] = {{"the first years", "0100-01-02 00:00:01", "19.07", "72.88", "5.5",
                                 "", "", "0100-01-01 18:30:01 UT", ""},
                                {"the last years", "2499-12-31 23:59:59", "40.71", "-74", "-5", "",
                                 "", "2500-01-01 04:59:59 UT", ""},
                                {"a leap day before the reform", "1500-02-28 12:00:00", "51.5",
                                 "-0.12", "0", "", "", "1500-02-28 12:00:00 UT", ""},
                                {"midnight sun", "2024-06-21 00:00:00", "69.65", "18.96", "2", "",
                                 "", "2024-06-20 22:00:00 UT", ""},
                                {"near the north pole", "2024-12-21 12:00:00", "89.9", "0", "0", "",
                                 "", "2024-12-21 12:00:00 UT", ""},
                                {"near the south pole", "2024-06-21 12:00:00", "-89.9", "0", "12",
                                 "", "", "2024-06-21 00:00:00 UT", ""},
                                {"the pole itself", "2024-06-21 12:00:00", "90", "0", "0", "", "",
                                 "2024-06-21 12:00:00 UT", ""},
                                {"the line of the date", "1990-07-05 14:30:20", "-17.7", "180",
                                 "12", "", "", "1990-07-05 02:30:20 UT", ""},
                                {"an offset of seconds", "1879-03-14 11:30:00", "48.4", "9.99",
                                 "0.6667", "", "", "1879-03-14 10:50:00 UT", ""},
                                {"the full circle", "1990-07-05 14:30:20", "19.07", "72.88", "5.5",
                                 "", "360", "1990-07-05 09:00:20 UT", "00°00'00\" Ari"},
                                {"a hair before it", "1990-07-05 14:30:20", "19.07", "72.88", "5.5",
                                 "", "359.99", "1990-07-05 09:00:20 UT", "29°59'24\" Pis"},
                                {"the first number", "1990-07-05 14:30:20", "19.07", "72.88", "5.5",
                                 "1", "", "1990-07-05 09:00:20 UT", "00°00'00\" Ari"},
                                {"the last number", "1990-07-05 14:30:20", "19.07", "72.88", "5.5",
                                 "249", "", "1990-07-05 09:00:20 UT", "27°53'20\" Pis"}};

class ExactReadingEdges : public testing::Test {
 protected:
  OpenedHoroscope Add(const EdgeBirth& edge) {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    form.FullName = edge.What;
    form.Birth = test::Moment(edge.Birth);
    form.Latitude = edge.Latitude;
    form.Longitude = edge.Longitude;
    form.Offset = edge.Offset;
    form.Horary = *edge.Horary != '\0';
    form.HoraryNumber = edge.Horary;
    form.HoraryQuestion = form.Horary ? "When?" : "";
    form.AscendantByHand = *edge.Ascendant != '\0';
    form.AscendantDegree = edge.Ascendant;
    const core::SaveResult saved =
        chart::SaveNewClient(*session_, form, 1, chart::Creation::InASecondOfItsOwn);
    EXPECT_FALSE(saved.Refused) << edge.What << ": " << saved.Refused->Text;
    return CreateHoroscope(*session_, saved.Id).value();
  }

  // Four names of planets from a column on, and a longitude on the circle.
  template <typename Column>
  void ExpectPoint(const core::Table& table, std::size_t row, Column longitude, Column signLord) {
    const double degrees = core::ToDouble(table.At(row, longitude).Text);
    EXPECT_GE(degrees, 0);
    EXPECT_LT(degrees, 360);
    for (std::size_t level = 0; level < 4; ++level) {
      const std::string& lord = table.Rows[row].Cells.at(core::Table::Index(signLord) + level).Text;
      EXPECT_TRUE(exact::PointOfName(lord)) << row << ": " << lord;
    }
  }

  void ExpectCusps(const core::Table& cusps, bool given) {
    ASSERT_EQ(cusps.Rows.size(), 12U);
    const std::regex since("(…)?-\\d+:\\d\\d|0:00|-0:00");
    const std::regex until("(…)?\\+\\d+:\\d\\d");
    for (std::size_t row = 0; row < 12; ++row) {
      ExpectPoint(cusps, row, ExactCuspColumn::Longitude, ExactCuspColumn::SignLord);
      const std::string& from = cusps.At(row, ExactCuspColumn::Since).Text;
      const std::string& to = cusps.At(row, ExactCuspColumn::Until).Text;
      EXPECT_EQ(from.empty() && to.empty(), given) << row;
      EXPECT_TRUE(given || (std::regex_match(from, since) && std::regex_match(to, until)))
          << from << " " << to;
      EXPECT_NE(to, "+0:00");
      const double across =
          core::ToDouble(cusps.At(row, ExactCuspColumn::Longitude).Text) -
          core::ToDouble(cusps.At((row + 6) % 12, ExactCuspColumn::Longitude).Text);
      EXPECT_NEAR(std::abs(across), 180, 2e-6) << "opposite cusps " << row;
    }
  }

  void ExpectPlanets(const core::Table& planets, bool housed) {
    ASSERT_EQ(planets.Rows.size(), 9U);
    for (std::size_t row = 0; row < 9; ++row) {
      ExpectPoint(planets, row, ExactPlanetColumn::Longitude, ExactPlanetColumn::SignLord);
      const auto house = core::ParseWhole(planets.At(row, ExactPlanetColumn::House).Text);
      EXPECT_EQ(house.has_value(), housed);
      EXPECT_TRUE(!house || (*house >= 1 && *house <= 12)) << *house;
      EXPECT_TRUE(std::regex_match(planets.At(row, ExactPlanetColumn::ToBorder).Text,
                                   std::regex("\\d+°\\d\\d'\\d\\d\"")));
    }
    const double across = core::ToDouble(planets.At(7, ExactPlanetColumn::Longitude).Text) -
                          core::ToDouble(planets.At(8, ExactPlanetColumn::Longitude).Text);
    EXPECT_NEAR(std::abs(across), 180, 2e-6) << "Rahu and Ketu";
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

TEST_F(ExactReadingEdges, EveryBirthThatCanBeSavedIsReadWhole) {
  for (const EdgeBirth& edge : kEdges) {
    SCOPED_TRACE(edge.What);
    const OpenedHoroscope opened = Add(edge);
    const bool given = *edge.Horary != '\0' || *edge.Ascendant != '\0';
    for (const exact::Reading by : {exact::Reading::Kp, exact::Reading::KpNew}) {
      for (const char node : {'M', 'T'}) {
        session_->State.RahuKetuCalculation = node;
        const ExactReading reading = ReadToTheSecond(*session_, opened.Model, opened.Birth, by);
        EXPECT_EQ(reading.Moment, edge.Moment);
        EXPECT_EQ(reading.Message, "");
        ExpectCusps(reading.Cusps, given);
        ExpectPlanets(reading.Planets, true);
        const std::string& first = reading.Cusps.At(0, ExactCuspColumn::Position).Text;
        EXPECT_TRUE(*edge.First == '\0' || first == edge.First) << first;
      }
    }
  }
}

// Of the 249 numbers a far latitude has some; the others say so and show the planets without
// houses.
TEST_F(ExactReadingEdges, ANumberThatNeverRisesThereIsSaidAndThePlanetsStand) {
  std::set<std::string> told;
  for (const char* number : {"1", "100", "170", "174", "249"}) {
    const OpenedHoroscope opened =
        Add({"far north", "1990-07-05 14:30:20", "75", "20", "1", number, "", "", ""});
    const ExactReading reading =
        ReadToTheSecond(*session_, opened.Model, opened.Birth, exact::Reading::Kp);
    told.insert(reading.Message);
    const bool rises = reading.Message.empty();
    EXPECT_EQ(reading.Cusps.Rows.size(), rises ? 12U : 0U) << number;
    ExpectPlanets(reading.Planets, rises);
  }
  EXPECT_EQ(told, (std::set<std::string>{"", "No chart has this Ascendant at this latitude."}));
}

}  // namespace
}  // namespace orvex::horoscope
