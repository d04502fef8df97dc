// The files that births are exchanged in.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "exchange/file_birth.h"

namespace orvex::exchange {

// Whether a path is a folder or a file of the exchange formats: one that ends in .aaf, .jhd or
// .mtx, or whose text begins with a "#", as AAF does under any name.
bool IsExchangeSource(const std::filesystem::path& path);

// Whether an import takes a path: one of these, or a file that ends in .csv.
bool IsImportSource(const std::filesystem::path& path);

// Whether a file is read as CSV: one that ends so and whose text does not begin with a "#".
bool IsCsvFile(const std::filesystem::path& file);

// Whether a file to be written is to be AAF by its ending.
bool IsAafName(const std::filesystem::path& file);

// A folder's files with those endings, also in the folders below it, by name; of a file itself.
// std::runtime_error where there are none or the folder can't be read.
std::vector<std::filesystem::path> ExchangeFilesOf(const std::filesystem::path& source);

// The births of a file. std::runtime_error where it can't be read or is larger than 64 MB.
FileReading ReadExchangeFile(const std::filesystem::path& file);

// The text of a file. std::runtime_error as of ReadExchangeFile.
std::string ReadBoundedFile(const std::filesystem::path& file);

// A file's name as text in UTF-8.
std::string FileNameText(const std::filesystem::path& file);

}  // namespace orvex::exchange
