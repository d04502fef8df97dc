// The report of a horoscope as a document of pages.
#pragma once

#include <filesystem>

#include "report/report_content.h"
#include "ui/painting/page_document.h"
#include "ui/painting/page_painter.h"

namespace orvex::ui {

// A table as pages show it: its shown columns, good and hard cells in their inks.
PageTable PageTableOf(const core::Table& table);

// A part of a section under its caption.
void AddPart(const report::ReportPart& part, std::vector<PageBlock>& blocks);

// A section of a report: its caption, then its parts.
void AddSection(const report::ReportSection& section, std::vector<PageBlock>& blocks);

PageDocument ReportDocument(const report::ReportContent& content);

// Writes a report on A4 pages, private, whole or not at all. False where the work was ended.
// std::runtime_error where it can't be written. Needs a QGuiApplication; may run in any thread.
bool WriteReportPdf(const report::ReportContent& content, const std::filesystem::path& file,
                    const PageProgress& progress = {});

}  // namespace orvex::ui
