// What a widget shows, as pages: headings, facts, tables as they are ordered, narrowed and reduced
// to some columns, charts and graphs, in the order in which they stand.
#pragma once

#include <vector>

#include "ui/painting/page_document.h"

class QWidget;

namespace orvex::ui {

// A widget that says itself what stands on paper in its place.
class PrintsItself {
 public:
  PrintsItself() = default;
  PrintsItself(const PrintsItself&) = delete;
  PrintsItself& operator=(const PrintsItself&) = delete;
  virtual ~PrintsItself() = default;

  virtual std::vector<PageBlock> PrintedBlocks() const = 0;
};

// What helps at the screen alone is left off the paper.
void LeaveUnprinted(QWidget& widget);

// What is in sight of a widget. Hidden parts, pages behind others, buttons and empty texts are left
// out; of a field with a name before it both are told.
std::vector<PageBlock> ShownBlocks(const QWidget& widget);

}  // namespace orvex::ui
