// Programs that are killed at any moment of a save, an edit, a deletion, an import and a restore.
// $ORVEX_KILLS sets how many are (100 where it is not set).
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <map>
#include <random>
#include <thread>

#include "chart/client_saving.h"
#include "core/backup.h"
#include "practice/client_import.h"
#include "practice/client_list.h"
#include "practice/groups.h"
#include "support/test_home.h"

namespace orvex::practice {
namespace {

namespace fs = std::filesystem;

constexpr std::array<const char*, 2> kBirths = {"1990-07-05 14:30:00", "2001-02-03 04:05:00"};
constexpr int kLines = 20;  // of an import

class Killed : public testing::Test {
 protected:
  using Action = std::function<void(core::Session& session, int time)>;

  void SetUp() override {
    const auto session = home_.Start();
    for (const char* birth : kBirths) {
      const std::int32_t id = Save(*session, "Edited", birth);
      moons_[birth] = MoonOf(*session, id);
    }
    copy_ = core::BackUpStore(home_.Place, session->StoreConnection, home_.Clock,
                              core::BackupKind::ByHand);
  }

  std::int32_t Save(core::Session& session, const std::string& name, const char* birth) {
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
    chart::ClientForm form = chart::OpenAddClient(session);
    form.FullName = name;
    form.Birth = test::Moment(birth);
    return chart::SaveNewClient(session, form, 1).Id;
  }

  static std::string MoonOf(const core::Session& session, std::int32_t id) {
    return session.StoreConnection
        .Query("Select degree from client_planets where planetid = 2 and clientid = " +
               std::to_string(id))
        .Text("degree");
  }

  static std::int64_t Count(const core::Session& session, const std::string& rows) {
    return session.StoreConnection.Query("Select count(*) as n from " + rows).Integer("n");
  }

  // Works until it is killed, and tells each time that it begins.
  [[noreturn]] void Work(const Action& action, int round, int ready) {
    home_.Clock.Set(home_.Clock.Now() + std::chrono::hours(round + 1));
    auto session = home_.Start();
    for (int time = 0; session && ::write(ready, "", 1) == 1; ++time) {
      action(*session, time);
    }
    ::_exit(1);
  }

  // Kills a program at a random part of its second time.
  bool Kill(const Action& action, int round) {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) {
      return false;
    }
    const pid_t child = ::fork();
    if (child == 0) {
      ::close(ends[0]);
      Work(action, round, ends[1]);
    }
    ::close(ends[1]);
    char told = 0;
    const bool began = ::read(ends[0], &told, 1) == 1;
    const auto start = std::chrono::steady_clock::now();
    const bool again = ::read(ends[0], &told, 1) == 1;
    std::uniform_real_distribution<double> part(0, 1);
    std::this_thread::sleep_for((std::chrono::steady_clock::now() - start) * part(random_));
    ::kill(child, SIGKILL);
    int status = 0;
    ::waitpid(child, &status, 0);
    ::close(ends[0]);
    torn_ += fs::exists(home_.Place.StoreFile().string() + "-journal") ? 1 : 0;
    return began && again && WIFSIGNALED(status);
  }

  void ExpectWhole() {
    const auto session = home_.Start();
    ASSERT_TRUE(session);
    const core::Store& store = session->StoreConnection;
    const auto count = [&session](const std::string& rows) { return Count(*session, rows); };
    EXPECT_EQ(count("client_master cm where 9 <> (select count(*) from client_planets cp "
                    "where cp.clientid = cm.id)"),
              0);
    EXPECT_EQ(count("client_planets where clientid not in (select id from client_master)"), 0);
    EXPECT_EQ(count("client_master where fullname like 'Import%'") % kLines, 0);
    for (core::Result row =
             store.Query("Select id, birthdate from client_master where fullname = 'Edited'");
         !row.AtEnd(); row.Next()) {
      EXPECT_EQ(MoonOf(*session, static_cast<std::int32_t>(row.Integer("id"))),
                moons_[row.Text("birthdate")]);
    }
    EXPECT_EQ(store.Query("Select integrity_check as ok from pragma_integrity_check").Text("ok"),
              "ok");
    for (const auto& entry : fs::directory_iterator(home_.Place.DataFolder() / "Backups")) {
      EXPECT_EQ(entry.path().extension(), ".mdb");
      EXPECT_NO_THROW(core::Store::Open(entry.path())) << entry.path();
    }
    EXPECT_FALSE(fs::exists(home_.Place.StoreFile().string() + ".restored"));
  }

  test::TestHome home_;
  fs::path copy_;
  std::map<std::string, std::string> moons_;  // by birth
  int torn_ = 0;                              // kills that fell into a writing
  std::mt19937 random_{11};
};

TEST_F(Killed, NothingIsHalfWritten) {
  const Action edit = [](core::Session& session, int time) {
    auto form = chart::OpenEditClient(session, 1);
    form->Birth = test::Moment(kBirths.at(static_cast<std::size_t>(time) % 2));
    chart::SaveClientChanges(session, *form, 1);
  };
  const Action import = [](core::Session& session, int time) {
    std::string text = "name,birth,city id\n";
    for (int line = 0; line < kLines; ++line) {
      text += "Import " + std::to_string(::getpid()) + " " + std::to_string(time) + " " +
              std::to_string(line) + ",1990-07-05 14:30,1\n";
    }
    ImportClients(session, {text, 1, false}, [](std::size_t, std::size_t) {});
  };
  const std::array<Action, 5> actions = {
      [this](core::Session& session, int) { Save(session, "Saved", kBirths[0]); }, edit,
      [this](core::Session& session, int) {
        DeleteClient(session, Save(session, "Deleted", kBirths[0]));
      },
      import,
      [this](core::Session& session, int) {
        session.StoreConnection = core::Store::Open(copy_);  // a restore wants no connection
        core::RestoreStore(home_.Place, copy_, home_.Clock);
      }};
  const char* told = std::getenv("ORVEX_KILLS");
  const int kills = told == nullptr ? 100 : std::atoi(told);
  for (int round = 0; round < kills; ++round) {
    const std::size_t action = static_cast<std::size_t>(round) % actions.size();
    ASSERT_TRUE(Kill(actions.at(action), round)) << round;
    ExpectWhole();
    ASSERT_FALSE(HasFailure()) << "after kill " << round << " of action " << action;
  }
  EXPECT_GT(torn_, kills / 10) << "too few kills fell into a writing";
}

// Kills the deletion at a moment that grows from round to round.
TEST_F(Killed, ADeletionOfALargeGroupLeavesAllOfItsClientsOrNone) {
  constexpr int kClients = 10000;
  constexpr int kKills = 12;
  home_.Start()->StoreConnection.ExecuteScript(
      "insert into group_master (id, groupname) values (2, 'Large');"
      "with recursive n(i) as (select 1 union all select i + 1 from n where i < 10000)"
      " insert into client_master (id, fullname, groupid, cityid)"
      " select 100 + i, 'Client', 2, 19 from n;"
      "insert into client_planets (clientid, planetid)"
      " select cm.id, pm.id from client_master cm, planet_master pm where cm.groupid = 2");
  const std::string whole = test::ReadFile(home_.Place.StoreFile());
  int kept = 0;
  for (int round = 0; round < kKills; ++round) {
    core::WriteFileSafely(home_.Place.StoreFile(), whole);
    const pid_t child = ::fork();
    if (child == 0) {
      const auto session = home_.Start();
      DeleteGroup(*session, 2);
      ::_exit(0);
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(20 + round * 15));
    ::kill(child, SIGKILL);
    int status = 0;
    ::waitpid(child, &status, 0);
    const auto session = home_.Start();
    ASSERT_TRUE(session);
    const std::int64_t clients = Count(*session, "client_master where groupid = 2");
    EXPECT_TRUE(clients == 0 || clients == kClients) << clients;
    EXPECT_EQ(Count(*session, "client_planets"), 9 * (clients + 2));
    EXPECT_EQ(Count(*session, "group_master where id = 2"), clients == 0 ? 0 : 1);
    kept += clients == kClients ? 1 : 0;
  }
  EXPECT_GT(kept, 0) << "no kill fell before the end of a deletion";
}

}  // namespace
}  // namespace orvex::practice
