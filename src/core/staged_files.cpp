#include "core/staged_files.h"

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <stdexcept>

#include "core/home.h"

namespace orvex::core {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void Fail(const fs::path& file) {
  throw std::runtime_error("the file " + file.string() + " could not be written");
}

}  // namespace

StagedFiles::~StagedFiles() {
  for (const Staged& staged : staged_) {
    std::error_code ignored;
    fs::remove(staged.Beside, ignored);
  }
}

void StagedFiles::Add(const fs::path& name, const std::string& content) {
  const fs::path file = BehindLinks(name);
  std::error_code error;
  if (fs::exists(file, error) && !fs::is_regular_file(file, error)) {
    Fail(name);
  }
  // A name of its own for each writer: two that write at once must not share a file.
  std::string beside = file.string() + ".XXXXXX";
  const int descriptor = ::mkstemp(beside.data());
  if (descriptor < 0) {
    Fail(file);
  }
  ::close(descriptor);
  staged_.push_back({beside, file});
  std::ofstream stream(beside, std::ios::binary | std::ios::trunc);
  stream << content;
  stream.close();
  if (!stream) {
    Fail(file);
  }
}

void StagedFiles::Commit() {
  for (const Staged& staged : staged_) {
    std::error_code error;
    fs::rename(staged.Beside, staged.File, error);
    if (error) {
      Fail(staged.File);
    }
  }
  staged_.clear();
}

}  // namespace orvex::core
