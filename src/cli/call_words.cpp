#include "cli/call_words.h"

#include <CLI/CLI.hpp>
#include <utility>
#include <vector>

namespace orvex::cli {

Option Option::required() const { return Option(option_->required()); }

Option Option::excludes(Option other) const { return Option(option_->excludes(other.option_)); }

Option Option::needs(Option other) const { return Option(option_->needs(other.option_)); }

Option Option::one_of(std::initializer_list<std::string> words) const {
  return Option(option_->check(CLI::IsMember(std::vector<std::string>(words))));
}

bool Option::given() const { return option_->count() > 0; }

Option Command::add_option(const std::string& name, std::string& variable,
                           const std::string& description) const {
  return Option(command_->add_option(name, variable, description));
}

Option Command::add_option(const std::string& name, std::optional<std::string>& variable,
                           const std::string& description) const {
  return Option(command_->add_option(name, variable, description));
}

Option Command::add_option(const std::string& name, std::vector<std::string>& variable,
                           const std::string& description) const {
  return Option(command_->add_option(name, variable, description));
}

Option Command::add_flag(const std::string& name, bool& variable,
                         const std::string& description) const {
  return Option(command_->add_flag(name, variable, description));
}

Option Command::get_option(const std::string& name) const {
  return Option(command_->get_option(name));
}

Command Command::add_subcommand(const std::string& name, const std::string& description) const {
  return Command(command_->add_subcommand(name, description));
}

Command Command::add_option_group(const std::string& name) const {
  return Command(command_->add_option_group(name));
}

void Command::require_subcommand(int number) const { command_->require_subcommand(number); }

void Command::require_option(int number) const { command_->require_option(number); }

void Command::callback(std::function<void()> run) const { command_->callback(std::move(run)); }

void RefuseWords(const std::string& name, const std::string& text) {
  throw CLI::ValidationError(name, text);
}

}  // namespace orvex::cli
