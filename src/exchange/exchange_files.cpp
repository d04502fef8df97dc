#include "exchange/exchange_files.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

#include "core/home.h"
#include "core/text.h"
#include "core/text_encoding.h"
#include "exchange/aaf_reading.h"
#include "exchange/jhd_reading.h"
#include "exchange/mtx_reading.h"

namespace orvex::exchange {

namespace {

namespace fs = std::filesystem;

std::string EndingOf(const fs::path& file) { return core::LowerCase(file.extension().string()); }

bool HasExchangeEnding(const fs::path& file) {
  const std::string ending = EndingOf(file);
  return ending == ".aaf" || ending == ".jhd" || ending == ".mtx";
}

}  // namespace

bool IsExchangeSource(const fs::path& path) {
  std::error_code unknown;
  if (fs::is_directory(path, unknown)) {
    return true;
  }
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  std::string begin(kByteOrderMark.size() + 1, '\0');
  std::ifstream(path, std::ios::binary)
      .read(begin.data(), static_cast<std::streamsize>(begin.size()));
  return HasExchangeEnding(path) || begin.front() == '#' ||
         begin == std::string(kByteOrderMark) + "#";
}

std::string ReadBoundedFile(const fs::path& file) {
  constexpr std::uintmax_t kLargest = 64U * 1024U * 1024U;
  std::error_code unknown;
  const std::uintmax_t size = fs::file_size(file, unknown);
  if (!unknown && size > kLargest) {
    throw std::runtime_error("The file " + FileNameText(file) + " is larger than 64 MB.");
  }
  try {
    return core::ReadTextFile(file);
  } catch (const std::runtime_error&) {
    throw std::runtime_error("The file " + file.string() + " could not be read.");
  }
}

bool IsCsvFile(const fs::path& file) { return EndingOf(file) == ".csv" && !IsExchangeSource(file); }

bool IsImportSource(const fs::path& path) { return IsExchangeSource(path) || IsCsvFile(path); }

bool IsAafName(const fs::path& file) { return EndingOf(file) == ".aaf"; }

std::vector<fs::path> ExchangeFilesOf(const fs::path& source) {
  std::error_code unknown;
  if (!fs::is_directory(source, unknown)) {
    return {source};
  }
  std::vector<fs::path> files;
  try {
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(source)) {
      if (entry.is_regular_file() && HasExchangeEnding(entry.path())) {
        files.push_back(entry.path());
      }
    }
  } catch (const fs::filesystem_error&) {
    throw std::runtime_error("The folder " + source.string() + " could not be read.");
  }
  if (files.empty()) {
    throw std::runtime_error("There are no .aaf, .jhd or .mtx files in " + source.string() + ".");
  }
  std::sort(files.begin(), files.end());
  return files;
}

FileReading ReadExchangeFile(const fs::path& file) {
  const std::string bytes = ReadBoundedFile(file);
  const std::string ending = EndingOf(file);
  const std::string name = core::WithoutControlCharacters(core::Utf8Of(file.stem().string()));
  if (ending == ".jhd") {
    return ReadJhd(bytes, name);
  }
  return ending == ".mtx" ? ReadMtx(bytes, name) : ReadAaf(bytes);
}

std::string FileNameText(const fs::path& file) {
  return core::WithoutControlCharacters(core::Utf8Of(file.filename().string()));
}

}  // namespace orvex::exchange
