// The sheet for a client as a document of one page.
#pragma once

#include <filesystem>

#include "report/kp_sheet.h"
#include "ui/painting/page_composer.h"

namespace orvex::ui {

PageDocument SheetDocument(const report::KpSheet& sheet);

// Writes the sheet on one page of a paper, as small as it must be, private, whole or not at all.
// std::runtime_error where it can't be written. Needs a QGuiApplication; may run in any thread.
void WriteSheetPdf(const report::KpSheet& sheet, const QPageSize& paper,
                   const std::filesystem::path& file);

}  // namespace orvex::ui
