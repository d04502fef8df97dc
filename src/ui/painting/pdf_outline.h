// What Qt's writer of PDF has no words for: bookmarks, links and the author.
#pragma once

#include <QByteArray>
#include <string>

#include "ui/painting/page_composer.h"

namespace orvex::ui {

// The document with a bookmark for each section, those of its parts below it, the contents' lines
// as links, and the author in its properties. std::runtime_error where the bytes are no PDF.
std::string WithOutline(const QByteArray& pdf, const ComposedDocument& document);

}  // namespace orvex::ui
