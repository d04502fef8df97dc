#include "report/pdf.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <stdexcept>
#include <string>

#include "core/home.h"
#include "core/text.h"

namespace orvex::report {

namespace {

namespace fs = std::filesystem;

constexpr const char* kEngine = "weasyprint";

// The last line that the engine wrote names its error; the lines before it are its traces.
std::string LastLine(const std::string& text) {
  const std::vector<std::string> lines = core::Split(core::Trim(text), '\n');
  return core::Trim(lines.back());
}

std::string ReadAll(int pipeEnd) {
  std::string text;
  std::array<char, 4096> piece{};
  for (ssize_t count = 0; (count = ::read(pipeEnd, piece.data(), piece.size())) > 0;) {
    text.append(piece.data(), static_cast<std::size_t>(count));
  }
  return text;
}

// The heads of the tables as such, so that each page begins with them.
std::string WithTableHeads(const std::string& html) {
  constexpr std::string_view kOpening = "<tr bgcolor='#6D6D6D'>";
  constexpr std::string_view kClosing = "</tr>";
  std::string marked;
  std::size_t done = 0;
  for (std::size_t at = 0; (at = html.find(kOpening, done)) != std::string::npos;) {
    const std::size_t end = html.find(kClosing, at);
    if (end == std::string::npos) {
      break;
    }
    const std::size_t next = end + kClosing.size();
    marked += html.substr(done, at - done) + "<thead>" + html.substr(at, next - at) + "</thead>";
    done = next;
  }
  return marked + html.substr(done);
}

// Starts the engine, whose errors go into a pipe. Nothing is handed to a shell.
int Start(const fs::path& report, const fs::path& pdf, int errors, pid_t& process) {
  std::string name = kEngine;
  std::string quiet = "-q";
  std::string from = report.string();
  std::string to = pdf.string();
  std::array<char*, 5> arguments = {name.data(), quiet.data(), from.data(), to.data(), nullptr};
  posix_spawn_file_actions_t actions{};
  ::posix_spawn_file_actions_init(&actions);
  ::posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  ::posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  ::posix_spawn_file_actions_adddup2(&actions, errors, STDERR_FILENO);
  const int failure =
      ::posix_spawnp(&process, kEngine, &actions, nullptr, arguments.data(), environ);
  ::posix_spawn_file_actions_destroy(&actions);
  return failure;
}

// Empty where the engine did its work, else what it says about its failure.
std::string RunEngine(const fs::path& report, const fs::path& pdf) {
  std::array<int, 2> errors{};
  if (::pipe2(errors.data(), O_CLOEXEC) != 0) {
    return "no pipe could be made";
  }
  pid_t process = 0;
  const int failure = Start(report, pdf, errors[1], process);
  ::close(errors[1]);
  const std::string said = failure == 0 ? ReadAll(errors[0]) : "";
  ::close(errors[0]);
  if (failure != 0) {
    return std::string("the program ") + kEngine + " is missing or can't be started";
  }
  int status = 0;
  ::waitpid(process, &status, 0);
  if (WIFEXITED(status) && WEXITSTATUS(status) == 0) {
    return "";
  }
  return std::string(kEngine) + " failed. " + LastLine(said);
}

}  // namespace

fs::path WritePdf(const fs::path& report) {
  fs::path pdf = fs::absolute(report);
  pdf.replace_extension(".pdf");
  const fs::path beside = pdf.string() + ".new";
  const fs::path pages = pdf.string() + ".htm";
  core::WriteFileSafely(pages, WithTableHeads(core::ReadTextFile(report)));
  std::string failure = RunEngine(pages, beside);
  std::error_code error;
  fs::remove(pages, error);
  if (failure.empty()) {
    fs::permissions(beside, fs::perms::owner_read | fs::perms::owner_write, error);
    if (!error) {
      fs::rename(beside, pdf, error);
    }
    failure = error ? error.message() : "";
  }
  if (!failure.empty()) {
    fs::remove(beside, error);
    throw std::runtime_error("The PDF file " + pdf.string() + " could not be written: " + failure);
  }
  return pdf;
}

}  // namespace orvex::report
