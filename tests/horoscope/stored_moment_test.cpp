#include "horoscope/stored_moment.h"

#include <gtest/gtest.h>

#include "chart/client_saving.h"
#include "core/settings.h"
#include "horoscope/create_horoscope.h"
#include "horoscope/exact_reading.h"
#include "support/test_home.h"

namespace orvex::horoscope {
namespace {

class StoredMoment : public testing::Test {
 protected:
  void Choose(const char* birthMoment) {
    core::SettingsForm form = core::OpenSettings(*session_);
    form.BirthMoment = birthMoment;
    const core::SaveResult saved = core::SaveSettings(*session_, form);
    ASSERT_FALSE(saved.Refused) << saved.Refused->Text;
  }

  std::int32_t AddClient(const char* city, const char* latitude, const char* longitude,
                         const char* offset) {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    const core::Result row = session_->StoreConnection.Query(
        std::string("Select id from city_master where cityname = '") + city + "'");
    chart::SelectCity(*session_, static_cast<std::int32_t>(row.Integer("id")), form);
    form.FullName = "Client";
    form.Birth = test::Moment("1990-07-05 14:30:20");
    form.Latitude = latitude;
    form.Longitude = longitude;
    form.Offset = offset;
    const core::SaveResult saved = chart::SaveNewClient(*session_, form, 1);
    EXPECT_FALSE(saved.Refused) << saved.Refused->Text;
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
    return saved.Id;
  }

  ExactReading Read(std::int32_t id) {
    const std::optional<OpenedHoroscope> opened = CreateHoroscope(*session_, id);
    return ReadToTheSecond(*session_, opened->Model, opened->Birth, exact::Reading::Kp);
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

// The clock's time less its offset counts on both sides of Greenwich where the settings say so; a
// chart that stands keeps the moment for which it was cast, whatever is chosen later.
TEST_F(StoredMoment, AStoredChartTellsItsOwnMomentWhateverTheSettingsSayNow) {
  const std::int32_t east = AddClient("Mumbai", "19.07", "72.88", "5.5");
  const std::int32_t west = AddClient("New York City, NY", "40.71427", "-73", "-5");
  Choose("Clock time");
  const std::int32_t westByClock = AddClient("New York City, NY", "40.71427", "-73", "-5");
  for (const char* setting : {"Clock time", "Local mean time"}) {
    Choose(setting);
    EXPECT_EQ(Read(east).StoredMoment, "1990-07-05 09:00:00 UT") << setting;
    EXPECT_EQ(Read(west).StoredMoment, "1990-07-05 19:22:00 UT") << setting;
    EXPECT_EQ(Read(westByClock).StoredMoment, "1990-07-05 19:30:00 UT") << setting;
    // The reading to the second never takes local mean time and keeps the seconds.
    EXPECT_EQ(Read(west).Moment, "1990-07-05 19:30:20 UT");
  }
}

TEST_F(StoredMoment, ByTheClockAWesternChartAgreesWithTheReadingToTheSecond) {
  const auto differing = [](const ExactReading& reading) {
    std::size_t rows = 0;
    for (const core::Row& row : reading.Planets.Rows) {
      rows += row.Cells.back().Text.find("Sub Lord") != std::string::npos ? 1U : 0U;
    }
    for (const core::Row& row : reading.Cusps.Rows) {
      rows += row.Cells.back().Text.empty() ? 0U : 1U;
    }
    return rows;
  };
  const std::size_t byLongitude =
      differing(Read(AddClient("New York City, NY", "40.71427", "-60", "-5")));
  Choose("Clock time");
  EXPECT_LT(differing(Read(AddClient("New York City, NY", "40.71427", "-60", "-5"))), byLongitude);
}

}  // namespace
}  // namespace orvex::horoscope
