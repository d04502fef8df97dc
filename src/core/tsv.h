// Tab-separated tables: a row of column names, then rows of texts.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace orvex::core {

struct TsvTable {
  std::vector<std::string> Columns;
  std::vector<std::vector<std::string>> Rows;

  // The place of a column. std::runtime_error where there is none of that name.
  std::size_t ColumnOf(const std::string& name) const;
};

// Reads a table. std::runtime_error where the file can't be read or a row has too few or too many
// pieces.
TsvTable ReadTsv(const std::filesystem::path& file);

}  // namespace orvex::core
