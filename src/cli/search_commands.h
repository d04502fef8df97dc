// The filters of the client search as options, shared by the search and the export.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "cli/context.h"
#include "practice/client_search.h"

namespace orvex::cli {

struct SearchOptions {
  bool Remedies = false;
  std::optional<std::string> Groups;
  std::optional<std::string> Gender;
  std::optional<std::string> Retro;
  std::optional<std::string> Ascendant;
  std::string Name;
  std::string Text;
  std::optional<std::string> After;
  std::optional<std::string> Before;
  std::optional<std::string> Planet;
};

void AddSearchOptions(Command command, SearchOptions& options);

// Runs the search that the options describe. CommandFailed for a word that names no filter and with
// the program's message where the search is refused.
practice::SearchResult RunSearch(const core::Session& session, const SearchOptions& options);

}  // namespace orvex::cli
