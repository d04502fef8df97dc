#include "core/tsv.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

#include "core/text.h"

namespace orvex::core {

std::size_t TsvTable::ColumnOf(const std::string& name) const {
  const auto found = std::find(Columns.begin(), Columns.end(), name);
  if (found == Columns.end()) {
    throw std::runtime_error("a table without the column " + name);
  }
  return static_cast<std::size_t>(found - Columns.begin());
}

TsvTable ReadTsv(const std::filesystem::path& file) {
  std::ifstream stream(file);
  TsvTable table;
  std::string line;
  if (!std::getline(stream, line)) {
    throw std::runtime_error("the table " + file.string() + " could not be read");
  }
  table.Columns = Split(line, '\t');
  while (std::getline(stream, line)) {
    table.Rows.push_back(Split(line, '\t'));
    if (table.Rows.back().size() != table.Columns.size()) {
      throw std::runtime_error("a row of " + file.string() + " does not fit its columns");
    }
  }
  return table;
}

}  // namespace orvex::core
