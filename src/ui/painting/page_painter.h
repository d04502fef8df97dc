// Draws composed pages on whatever can be painted on.
#pragma once

#include <functional>

#include "ui/painting/page_composer.h"

class QPagedPaintDevice;

namespace orvex::ui {

// Draws one page with its running head and foot; a unit of the painter is a tenth of a point and
// its origin the upper left corner of the paper.
void PaintPage(QPainter& painter, const ComposedDocument& document, std::size_t page);

// Told before each page how many are done, of how many; false ends the work.
using PageProgress = std::function<bool(std::size_t done, std::size_t pages)>;

// Draws all pages on a device whose paper is that of the document. False where the device can't
// be painted on or the work was ended.
bool PaintPages(QPagedPaintDevice& device, const ComposedDocument& document,
                const PageProgress& progress);

}  // namespace orvex::ui
