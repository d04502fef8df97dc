// The one way to pass over a failing statement.
#pragma once

#include <exception>

namespace orvex::core {

// Runs the statement; where it fails, nothing happens and false is given. Only routines that are
// meant to go on past a failing statement use it, statement by statement, so that the passing over
// can be read where it happens.
template <typename Statement>
bool Attempt(Statement&& statement) {
  try {
    statement();
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace orvex::core
