// What a page is set from: pieces that are never cut, with everything in its place within them.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <functional>
#include <memory>
#include <vector>

#include "ui/painting/page_fonts.h"

namespace orvex::ui {

struct SlabText {
  QPointF Base;  // left end of the base line
  QString Text;
  PageFont Font;
  QColor Ink;
};

struct SlabFill {
  QRectF Box;
  QColor Color;
};

struct SlabPicture {
  QRectF Box;
  std::function<void(QPainter& painter, const QRectF& box)> Paint;
};

// A line of the contents: the number of the section's page is set at its right end.
struct SlabReference {
  QRectF Box;
  std::size_t Section = 0;
  PageFont Font;
};

struct PageSlab {
  double Height = 0;
  double Gap = 0;             // above it, unless it begins a page
  bool KeepWithNext = false;  // stands on one page with the slab behind it
  std::vector<SlabFill> Fills;
  std::vector<SlabText> Texts;
  std::vector<SlabPicture> Pictures;
  std::vector<SlabReference> References;
  QString Bookmark;  // empty: none
  int Level = 0;     // of the bookmark: 0 section, 1 part
  // What stands above it where it is the first of its table on a page or in a strand.
  std::shared_ptr<const PageSlab> Head;
};

using SharedSlab = std::shared_ptr<const PageSlab>;

// Puts everything of a slab into another one.
void Put(const PageSlab& slab, const QPointF& at, PageSlab& into);

// Slabs one below the other as one slab, heads where they belong.
PageSlab StackOf(const std::vector<SharedSlab>& slabs);

}  // namespace orvex::ui
