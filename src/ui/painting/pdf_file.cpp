#include "ui/painting/pdf_file.h"

#include <QBuffer>
#include <QPdfWriter>
#include <stdexcept>

#include "core/home.h"
#include "ui/painting/pdf_outline.h"

namespace orvex::ui {

std::optional<std::string> PdfBytes(const ComposedDocument& document,
                                    const PageProgress& progress) {
  constexpr int kUnitsOfInch = 720;
  QBuffer pages;
  pages.open(QIODevice::WriteOnly);
  bool done = false;
  {
    QPdfWriter writer(&pages);
    writer.setResolution(kUnitsOfInch);
    writer.setPageLayout(QPageLayout(
        document.Setup.Paper,
        document.Setup.Landscape ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()));
    writer.setTitle(document.Title);
    writer.setCreator("Orvex+");
    bool ended = false;
    done = PaintPages(writer, document, [&](std::size_t page, std::size_t all) {
      ended = progress && !progress(page, all);
      return !ended;
    });
    if (ended) {
      return std::nullopt;
    }
  }
  if (!done) {
    throw std::runtime_error("The PDF could not be made.");
  }
  return WithOutline(pages.data(), document);
}

bool WritePdf(const ComposedDocument& document, const std::filesystem::path& file,
              const PageProgress& progress) {
  const std::optional<std::string> bytes = PdfBytes(document, progress);
  if (bytes) {
    core::WriteFileSafely(file, *bytes);
  }
  return bytes.has_value();
}

}  // namespace orvex::ui
