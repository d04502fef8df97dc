// Composed pages as a PDF document.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "ui/painting/page_painter.h"

namespace orvex::ui {

// The bytes of the document: text as text, charts as lines, a bookmark for each section and part,
// links in the contents, title and author in the properties. Nothing where the work was ended.
// std::runtime_error where it can't be made. Needs a QGuiApplication; may run in any thread.
std::optional<std::string> PdfBytes(const ComposedDocument& document,
                                    const PageProgress& progress = {});

// Writes them into a file, private, whole or not at all. False where the work was ended.
// std::runtime_error where it can't be written.
bool WritePdf(const ComposedDocument& document, const std::filesystem::path& file,
              const PageProgress& progress = {});

}  // namespace orvex::ui
