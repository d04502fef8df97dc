#include <gtest/gtest.h>

#include <clocale>
#include <locale>

#include "astro/angle_text.h"
#include "core/date_text.h"
#include "core/exact_numbers.h"
#include "core/store.h"
#include "support/test_home.h"

namespace orvex {
namespace {

// Writes numbers as a German or Indian machine would.
class CommaNumbers : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\2\3"; }
};

std::string AllForms(core::Session& session) {
  const auto row = session.StoreConnection.Query(
      "Select latitude, longitude, offset from city_master where id = 1");
  return core::TwoDecimals(12345.678) + core::SingleText(1234.5F) + core::DoubleText(1e6 / 7) +
         core::WholeText(1234567) + astro::DegreeText(123.456) + row.Text("latitude") +
         row.Text("offset") + core::LongDateText(test::Moment("1990-07-05"), false) +
         core::DoubleText(core::ToDouble("1234.5"));
}

TEST(Locale, NoDigitDependsOnTheMachinesLocale) {
  test::TestHome home;
  const auto session = home.Start();
  ASSERT_TRUE(session);
  const std::string plain = AllForms(*session);
  const std::locale before = std::locale::global(std::locale(std::locale(), new CommaNumbers));
  for (const char* name : {"de_DE.UTF-8", "hi_IN.UTF-8", "C"}) {
    std::setlocale(LC_ALL, name);
    EXPECT_EQ(AllForms(*session), plain) << name;
  }
  std::locale::global(before);
  std::setlocale(LC_ALL, "C");
}

}  // namespace
}  // namespace orvex
