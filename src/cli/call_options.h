// The reader of a call's words, for the files that define commands. What it makes for the types
// that our options have is made once, in call_options.cpp: it is most of what compiling a command
// costs.
#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>

// clang-format off
#define ORVEX_OPTION_TYPE(EXTERN, TYPE)                                                     \
  EXTERN template CLI::Option* CLI::App::add_option<TYPE, TYPE, CLI::detail::dummy>(        \
      std::string, TYPE&, std::string)
#define ORVEX_FLAG_TYPE(EXTERN)                                                             \
  EXTERN template CLI::Option* CLI::App::add_flag<bool, CLI::detail::dummy>(                \
      std::string, bool&, std::string)
// clang-format on

ORVEX_OPTION_TYPE(extern, std::string);
ORVEX_OPTION_TYPE(extern, std::optional<std::string>);
ORVEX_FLAG_TYPE(extern);
