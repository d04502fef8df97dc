// Sets a document on pages: rows are never cut, heads of tables come again, a caption stands with
// what it names, and no page is left half empty for want of trying.
#pragma once

#include <QMarginsF>
#include <QPageSize>
#include <vector>

#include "ui/painting/page_document.h"
#include "ui/painting/page_slab.h"
#include "ui/painting/page_style.h"

namespace orvex::ui {

struct PageSetup {
  QPageSize Paper{QPageSize::A4};
  bool Landscape = false;
  PageScale Scale;

  QSizeF Size() const;  // of the paper, in tenths of a point
  QRectF Body() const;  // where the content stands
  double Part() const;  // of A4, by the shorter side, at most 1: margins, running head and foot
};

struct PlacedSlab {
  QPointF At;
  SharedSlab Slab;
};

struct ComposedPage {
  std::vector<PlacedSlab> Slabs;
  double Bottom = 0;  // where its content ends
};

struct PageBookmark {
  QString Text;
  int Level = 0;
  std::size_t Page = 0;
  double Top = 0;
};

struct ComposedDocument {
  QString Title;
  QString Author;
  QString Head;
  QString Foot;
  PageSetup Setup;
  std::vector<ComposedPage> Pages;
  std::vector<PageBookmark> Bookmarks;

  // The bookmark of a section, counted from 0. std::out_of_range beyond them.
  const PageBookmark& SectionBookmark(std::size_t section) const;
};

// Needs a QGuiApplication, but no display; may run in any one thread.
ComposedDocument Compose(const PageDocument& document, const PageSetup& setup);

// On one page: at the scale of the setup, or at the first smaller one at which it fits. What fits
// at no legible scale runs on to further pages.
ComposedDocument ComposeOnOnePage(const PageDocument& document, PageSetup setup);

}  // namespace orvex::ui
