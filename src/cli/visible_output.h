// What a terminal is given to show. Stored and imported texts must not drive it.
#pragma once

#include <iostream>
#include <streambuf>
#include <string>

namespace orvex::cli {

// Passes a stream on line by line with visible marks in place of controls (core/unicode_text.h).
class VisibleBuffer final : public std::streambuf {
 public:
  explicit VisibleBuffer(std::ostream& stream);
  VisibleBuffer(const VisibleBuffer&) = delete;
  VisibleBuffer& operator=(const VisibleBuffer&) = delete;
  ~VisibleBuffer() override;

  // Passes bytes on as they are.
  void PutRaw(const std::string& bytes);

 protected:
  int_type overflow(int_type byte) override;
  std::streamsize xsputn(const char* bytes, std::streamsize count) override;
  int sync() override;

 private:
  bool PassOn();

  std::ostream& stream_;
  std::streambuf* target_;
  std::string line_;  // what was written since the last line break
};

// As long as it lives, standard output and standard error show what they are given.
class VisibleOutput {
 public:
  VisibleOutput() : out_(std::cout), errors_(std::cerr) {}

 private:
  VisibleBuffer out_;
  VisibleBuffer errors_;
};

// Writes data for another program to standard output, byte for byte: a JSON document, a CSV file.
void PutData(const std::string& bytes);

}  // namespace orvex::cli
