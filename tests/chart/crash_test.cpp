#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <random>
#include <thread>

#include "chart/client_saving.h"
#include "support/test_home.h"

namespace orvex::chart {
namespace {

// Saves clients until it is killed, each in a second of its own.
[[noreturn]] void SaveForEver(test::TestHome& home, int round) {
  home.Clock.Set(test::Moment("2000-01-01") + std::chrono::hours(round));
  const auto session = home.Start();
  ClientForm form = OpenAddClient(*session);
  form.FullName = "Client";
  form.Birth = test::Moment("1990-07-05 14:30");
  while (true) {
    SaveNewClient(*session, form, 1);
    home.Clock.Set(home.Clock.Now() + std::chrono::seconds(1));
  }
}

TEST(Crash, AKilledSaveLeavesNoTraceOrAllTenRows) {
  constexpr int kKills = 200;
  test::TestHome home;
  ASSERT_TRUE(home.Start());
  std::mt19937 random(11);
  std::uniform_int_distribution<int> microseconds(3000, 40000);
  for (int round = 0; round < kKills; ++round) {
    const pid_t child = ::fork();
    if (child == 0) {
      SaveForEver(home, round);
    }
    std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
  }
  const auto session = home.Start();
  ASSERT_TRUE(session);
  const core::Store& store = session->StoreConnection;
  EXPECT_GT(store.Query("Select count(*) as n from client_master").Integer("n"), kKills / 4);
  EXPECT_EQ(store
                .Query("Select count(*) as n from client_master cm where 9 <> (select count(*) "
                       "from client_planets cp where cp.clientid = cm.id)")
                .Integer("n"),
            0);
  EXPECT_EQ(store
                .Query("Select count(*) as n from client_planets where clientid not in "
                       "(select id from client_master)")
                .Integer("n"),
            0);
  EXPECT_EQ(
      store.Query("Select integrity_check as found from pragma_integrity_check").Text("found"),
      "ok");
}

}  // namespace
}  // namespace orvex::chart
