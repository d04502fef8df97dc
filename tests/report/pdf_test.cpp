#include "report/pdf.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include "support/test_home.h"

namespace orvex::report {
namespace {

void Write(const std::filesystem::path& file, const std::string& text) {
  std::ofstream(file, std::ios::binary) << text;
}

// A folder with an engine of its own, and the report that it is given.
class Pdf : public testing::Test {
 protected:
  Pdf() {
    Write(report_, "<p>A client</p>");
    Write(pdf_, "old");
  }
  ~Pdf() override { ::setenv("PATH", path_.c_str(), 1); }

  // Puts a shell script in the engine's place.
  void EngineDoes(const std::string& script) {
    const std::filesystem::path engine = folder_.Path() / "weasyprint";
    Write(engine, "#!/bin/sh\n" + script + "\n");
    std::filesystem::permissions(engine, std::filesystem::perms(0700));
    ::setenv("PATH", folder_.Path().c_str(), 1);
  }

  std::string Failure() {
    try {
      WritePdf(report_);
    } catch (const std::runtime_error& error) {
      return error.what();
    }
    return "";
  }

  test::TempFolder folder_;
  std::string path_ = ::getenv("PATH");
  std::filesystem::path report_ = folder_.Path() / "a 'client'.htm";
  std::filesystem::path pdf_ = folder_.Path() / "a 'client'.pdf";
};

TEST_F(Pdf, TheReportBecomesAPrivatePdfBesideIt) {
  EXPECT_EQ(WritePdf(report_), pdf_);
  EXPECT_TRUE(test::ReadFile(pdf_).starts_with("%PDF-"));
  EXPECT_EQ(std::filesystem::status(pdf_).permissions(), std::filesystem::perms(0600));
}

TEST_F(Pdf, AnEngineThatFailsIsNamedAndTheOldPdfStays) {
  const std::pair<std::string, std::string> cases[] = {
      {"echo traces >&2; echo 'no fonts' >&2; exit 1", "no fonts"},
      {"echo half > \"$3\"; kill -9 $$", "weasyprint failed"},
      {"exit 0", "could not be written"}};
  for (const auto& [script, message] : cases) {
    EngineDoes(script);
    EXPECT_NE(Failure().find(message), std::string::npos) << script << ": " << Failure();
    EXPECT_EQ(test::ReadFile(pdf_), "old");
    EXPECT_FALSE(std::filesystem::exists(pdf_.string() + ".new"));
  }
  ::setenv("PATH", "/nowhere", 1);
  EXPECT_NE(Failure().find("weasyprint is missing"), std::string::npos) << Failure();
}

}  // namespace
}  // namespace orvex::report
