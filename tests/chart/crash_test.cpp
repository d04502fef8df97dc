#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <random>
#include <thread>

#include "chart/client_saving.h"
#include "support/test_home.h"

namespace orvex::chart {
namespace {

// Saves clients until it is killed, each in a second of its own. Tells through `ready` that it is
// about to save the first.
[[noreturn]] void SaveForEver(test::TestHome& home, int round, int ready) {
  home.Clock.Set(test::Moment("2000-01-01") + std::chrono::hours(round));
  const auto session = home.Start();
  if (!session) {
    ::_exit(1);
  }
  ClientForm form = OpenAddClient(*session);
  form.FullName = "Client";
  form.Birth = test::Moment("1990-07-05 14:30");
  while (::write(ready, "", 1) == 1) {
    SaveNewClient(*session, form, 1);
    home.Clock.Set(home.Clock.Now() + std::chrono::seconds(1));
  }
  ::_exit(1);
}

// Forks a program that saves and kills it `after` its first save began. Whether it got so far.
bool KillASave(test::TestHome& home, int round, std::chrono::microseconds after) {
  std::array<int, 2> ends{};
  if (::pipe(ends.data()) != 0) {
    return false;
  }
  const pid_t child = ::fork();
  if (child == 0) {
    ::close(ends[0]);
    SaveForEver(home, round, ends[1]);
  }
  ::close(ends[1]);
  char told = 0;
  const bool began = ::read(ends[0], &told, 1) == 1;
  std::this_thread::sleep_for(after);
  ::kill(child, SIGKILL);
  int status = 0;
  ::waitpid(child, &status, 0);
  ::close(ends[0]);
  return began && WIFSIGNALED(status);
}

// The time that a save takes here and now: disks differ much, and the kills must fall among saves.
std::chrono::microseconds TimeOfASave(test::TestHome& home) {
  constexpr int kSaves = 10;
  const auto session = home.Start();
  ClientForm form = OpenAddClient(*session);
  form.FullName = "Client";
  const auto began = std::chrono::steady_clock::now();
  for (int save = 0; save < kSaves; ++save) {
    EXPECT_FALSE(SaveNewClient(*session, form, 1).Refused);
    home.Clock.Set(home.Clock.Now() + std::chrono::seconds(1));
  }
  return std::chrono::duration_cast<std::chrono::microseconds>(
      (std::chrono::steady_clock::now() - began) / kSaves);
}

TEST(Crash, AKilledSaveLeavesNoTraceOrAllTenRows) {
  constexpr int kKills = 200;
  test::TestHome home;
  ASSERT_TRUE(home.Start());
  std::mt19937 random(11);
  const std::chrono::microseconds longest = TimeOfASave(home) * 5;
  std::uniform_int_distribution<std::int64_t> microseconds(0, longest.count());
  int torn = 0;
  for (int round = 0; round < kKills; ++round) {
    // The store that the last one left is opened by the next.
    ASSERT_TRUE(KillASave(home, round, std::chrono::microseconds(microseconds(random)))) << round;
    torn += std::filesystem::exists(home.Place.StoreFile().string() + "-journal") ? 1 : 0;
  }
  const auto session = home.Start();
  ASSERT_TRUE(session);
  EXPECT_GT(torn, kKills / 10) << "too few kills fell into a save";
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
