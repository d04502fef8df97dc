#include "practice/find_anyone.h"

#include <gtest/gtest.h>

#include "chart/client_saving.h"
#include "core/text.h"
#include "practice/groups.h"
#include "support/test_home.h"

namespace orvex::practice {
namespace {

class FindAnyoneTest : public testing::Test {
 protected:
  FindAnyoneTest() : session_(home_.Start()) {
    const std::int32_t family = AddGroup(*session_, "Family").Id;
    Add("Asha Rao", 1, "+91 98200-00001", "asha@example.org", "", "Marriage");
    Add("Ravi Iyer", family, "022 4455", "", "", "Brother of Asha");
    Add("Imran Shaikh", 1, "", "ravi@example.org", "", "");
    Add("Zo\u00EB Gar\u00E7on-Ramsay", family, "", "", "Will Ravi come?", "");
    Add("\u00C9lan", 1, "98", "", "", "O'Brien's (ra)");
  }

  void Add(const std::string& name, std::int32_t group, const std::string& mobile,
           const std::string& email, const std::string& question, const std::string& comments) {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    chart::SelectCity(*session_, 1, form);
    form.FullName = name;
    form.Birth = test::Moment("1990-07-05 14:30:00");
    form.Mobile = mobile;
    form.Email = email;
    form.Comments = comments;
    form.Horary = !question.empty();
    form.HoraryNumber = question.empty() ? "" : "7";
    form.HoraryQuestion = question;
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
    EXPECT_FALSE(chart::SaveNewClient(*session_, form, group).Refused) << name;
  }

  // "Asha Rao:0 Imran Shaikh:1": the first words of the names and where they were found.
  std::string Found(const std::string& text) const {
    std::vector<std::string> found;
    for (const FoundAnyone& client : FindAnyone(*session_).Find(text, 20).Best) {
      found.push_back(core::SplitWords(client.Name).front() + ":" + CaptionOf(client.Where));
    }
    return core::Join(found, ", ");
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_;
};

TEST_F(FindAnyoneTest, NamesComeFirstThenTelephonePlaceQuestionAndComments) {
  struct Case {
    const char* Text;
    const char* Found;
  };
  for (const Case& one : std::vector<Case>{
           {"ra",
            "Asha:A name begins with it, Ravi:A name begins with it, Zo\u00EB:A name begins with "
            "it, Imran:Within a name, \u00C9lan:Comments"},
           {"RAVI", "Ravi:A name begins with it, Imran:E-mail, Zo\u00EB:Question"},
           {"asha", "Asha:A name begins with it, Ravi:Comments"},
           {"rao asha", "Asha:A name begins with it"},
           {"  asha   r ", "Asha:A name begins with it, Ravi:Comments"},
           {"sha rao", "Asha:Within a name"},
           {"ELAN", "\u00C9lan:A name begins with it"},
           {"zoe garcon", "Zo\u00EB:A name begins with it"},
           {"\u00E9lan", "\u00C9lan:A name begins with it"},
           {"9820000001", "Asha:Telephone"},
           {"98200 00", "Asha:Telephone"},
           {"0224455", "Ravi:Telephone"},
           {"98", "Asha:Telephone, \u00C9lan:Telephone"},
           {"o'brien", "\u00C9lan:Comments"},
           {"nobody", ""},
           {"%", ""},
           {"   ", ""},
           {"", ""}}) {
    EXPECT_EQ(Found(one.Text), one.Found) << one.Text;
  }
  const std::string city = FindAnyone(*session_).Find("asha", 1).Best.front().City;
  EXPECT_EQ(Found(city), "Asha:Place, \u00C9lan:Place, Imran:Place, Ravi:Place, Zo\u00EB:Place");
}

TEST_F(FindAnyoneTest, WhatWasTypedIsMarkedInTheNameAsItIsWritten) {
  struct Case {
    const char* Text;
    const char* Marked;
  };
  for (const Case& one : std::vector<Case>{{"ra", "Ra"},
                                           {"asha rao", "Asha Rao"},
                                           {"rao asha", "Rao"},
                                           {"zoe", "Zo\u00EB"},
                                           {"garcon", "Gar\u00E7on"},
                                           {"on-ram", "on-Ram"},
                                           {"elan", "\u00C9lan"},
                                           {"lan", "lan"},
                                           {"marriage", ""}}) {
    const FindAnyone::Result found = FindAnyone(*session_).Find(one.Text, 1);
    ASSERT_EQ(found.Best.size(), 1U) << one.Text;
    const FoundAnyone& client = found.Best.front();
    EXPECT_EQ(client.Name.substr(client.MarkBegin, client.MarkLength), one.Marked) << one.Text;
  }
}

TEST_F(FindAnyoneTest, OnlyTheBestAreGivenAndAllAreCounted) {
  const FindAnyone::Result found = FindAnyone(*session_).Find("ra", 2);
  EXPECT_EQ(found.Best.size(), 2U);
  EXPECT_EQ(found.Count, 5U);
  EXPECT_EQ(found.Best.front().Group, "General");
  EXPECT_EQ(found.Best.front().Date, "5 Jul 1990");
}

}  // namespace
}  // namespace orvex::practice
