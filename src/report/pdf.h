// A finished report as PDF.
#pragma once

#include <filesystem>

namespace orvex::report {

// Sets an HTML report, with the pictures that it names, on A4 pages and writes them beside it as
// <name>.pdf; gives that path. The old file stays whole until the new one is. std::runtime_error
// where the engine is missing or fails, or the folder can't be written.
std::filesystem::path WritePdf(const std::filesystem::path& report);

}  // namespace orvex::report
