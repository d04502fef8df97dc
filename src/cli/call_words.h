// The words of a call: commands, their options and flags. The library that reads them is known to
// call_words.cpp and main.cpp alone, because it costs more to compile than all the commands; so
// these are the few of its calls that commands need, under its names. Command and Option are
// handles, cheap to copy; what they stand for lives as long as the program's reader.
#pragma once

#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

// Named as the library behind them names them.
// NOLINTBEGIN(readability-identifier-naming)
namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace orvex::cli {

class Option {
 public:
  explicit Option(CLI::Option* option) : option_(option) {}

  Option required() const;
  Option excludes(Option other) const;
  Option needs(Option other) const;
  // Any other word is off.
  Option one_of(std::initializer_list<std::string> words) const;
  // Whether the call named it, be its text empty.
  bool given() const;

 private:
  CLI::Option* option_;
};

class Command {
 public:
  explicit Command(CLI::App* command) : command_(command) {}

  // "--name" for an option, "NAME" for an argument by place; its text is put into `variable`.
  Option add_option(const std::string& name, std::string& variable,
                    const std::string& description) const;
  Option add_option(const std::string& name, std::optional<std::string>& variable,
                    const std::string& description) const;
  // Takes all the words that follow.
  Option add_option(const std::string& name, std::vector<std::string>& variable,
                    const std::string& description) const;
  Option add_flag(const std::string& name, bool& variable, const std::string& description) const;
  Option get_option(const std::string& name) const;
  Command add_subcommand(const std::string& name, const std::string& description) const;
  // Options of which a call names so many as require_option says.
  Command add_option_group(const std::string& name) const;
  void require_subcommand(int number) const;
  void require_option(int number) const;
  void callback(std::function<void()> run) const;

 private:
  CLI::App* command_;
};

// NOLINTEND(readability-identifier-naming)

// Ends a call whose words are off, with exit status 2 and a line of usage.
[[noreturn]] void RefuseWords(const std::string& name, const std::string& text);

}  // namespace orvex::cli
