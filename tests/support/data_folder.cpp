#include "support/data_folder.h"

namespace orvex::test {

std::filesystem::path DataFolder() { return ORVEX_DATA_FOLDER; }

std::filesystem::path GuideSource() { return ORVEX_GUIDE_SOURCE; }

}  // namespace orvex::test
