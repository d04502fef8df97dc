// A home with clients that are added in a second of their own each.
#pragma once

#include <gtest/gtest.h>

#include <functional>

#include "chart/client_saving.h"
#include "support/test_home.h"

namespace orvex::practice {

class RecordsTest : public testing::Test {
 protected:
  std::int32_t Add(const std::string& name, const std::string& birth = "1990-07-05 14:30",
                   const std::function<void(chart::ClientForm&)>& change = {}) {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    form.FullName = name;
    form.Birth = test::Moment(birth);
    if (change) {
      change(form);
    }
    const core::SaveResult saved = chart::SaveNewClient(*session_, form, 1);
    EXPECT_FALSE(saved.Refused);
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
    return saved.Id;
  }

  std::int64_t Count(const std::string& rows) const {
    return session_->StoreConnection.Query("Select count(*) as n from " + rows).Integer("n");
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
};

}  // namespace orvex::practice
