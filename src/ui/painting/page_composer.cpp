#include "ui/painting/page_composer.h"

#include <algorithm>
#include <stdexcept>

#include "ui/painting/page_blocks.h"

namespace orvex::ui {

namespace {

// Millimetres around the content. The running head and foot stand in them.
constexpr double kTop = 18;
constexpr double kBottom = 18;
constexpr double kSide = 14;

// The highest slab that is kept whole, a part of the page: with the captions above it a page that
// it does not fit on is never less than half full.
constexpr double kHighest = 0.36;

// A strand that begins at the foot of a page has room for so much of a page at least.
constexpr double kLeastStrand = 0.12;

constexpr double kSmallestScale = 0.5;
constexpr double kScaleStep = 0.03;

class Flow {
 public:
  explicit Flow(const PageSetup& setup) : body_(setup.Body()) { NewPage(); }

  // `after` is the room that what comes then needs with a caption at the end of the slabs.
  void Add(const std::vector<SharedSlab>& slabs, double after = 0) {
    for (std::size_t first = 0; first < slabs.size();) {
      const std::size_t behind = ChainEnd(slabs, first);
      const double kept = slabs[behind - 1]->KeepWithNext ? after : 0;
      if (y_ > body_.top() && y_ + ChainHeight(slabs, first, behind) + kept > body_.bottom()) {
        NewPage();
      }
      for (; first < behind; ++first) {
        Place(slabs[first]);
      }
    }
  }

  void Add(const StrandSlabs& strands);

  std::vector<ComposedPage> TakePages() { return std::move(pages_); }

 private:
  void NewPage() {
    pages_.emplace_back();
    y_ = body_.top();
    head_ = nullptr;
  }

  static std::size_t ChainEnd(const std::vector<SharedSlab>& slabs, std::size_t first) {
    std::size_t last = first;
    while (last + 1 < slabs.size() && slabs[last]->KeepWithNext) {
      ++last;
    }
    return last + 1;
  }

  double ChainHeight(const std::vector<SharedSlab>& slabs, std::size_t first,
                     std::size_t behind) const {
    double height = 0;
    SharedSlab head = head_;
    for (std::size_t i = first; i < behind; ++i) {
      height += slabs[i]->Height + slabs[i]->Gap;
      height += slabs[i]->Head != nullptr && slabs[i]->Head != head ? slabs[i]->Head->Height : 0;
      head = slabs[i]->Head;
    }
    return height;
  }

  void Put(const SharedSlab& slab) {
    pages_.back().Slabs.push_back({{body_.left(), y_}, slab});
    y_ += slab->Height;
    pages_.back().Bottom = std::max(pages_.back().Bottom, y_);
  }

  void Place(const SharedSlab& slab) {
    if (y_ > body_.top() && y_ + slab->Gap + slab->Height > body_.bottom()) {
      NewPage();
    }
    y_ += y_ > body_.top() ? slab->Gap : 0;
    if (slab->Head != nullptr && slab->Head != head_) {
      Put(slab->Head);
    }
    head_ = slab->Head;
    Put(slab);
  }

  QRectF body_;
  std::vector<ComposedPage> pages_;
  double y_ = 0;
  SharedSlab head_;  // of the table that stands last
};

// Where slabs stand in strands of a height; those that no longer fit are left out.
std::vector<PlacedSlab> InStrands(const StrandSlabs& strands, std::size_t first, double height) {
  std::vector<PlacedSlab> placed;
  std::size_t strand = 0;
  double y = 0;
  SharedSlab head;
  for (std::size_t i = first; i < strands.Slabs.size(); ++i) {
    const SharedSlab& slab = strands.Slabs[i];
    const auto needed = [&] {
      const bool headed = slab->Head != nullptr && (slab->Head != head || y == 0);
      return (y == 0 ? 0 : slab->Gap) + (headed ? slab->Head->Height : 0) + slab->Height;
    };
    if (y > 0 && y + needed() > height) {
      y = 0;
      if (++strand == strands.Count) {
        break;
      }
    }
    const double x = static_cast<double>(strand) * (strands.Width + strands.Gap);
    y += y == 0 ? 0 : slab->Gap;
    if (slab->Head != nullptr && (slab->Head != head || y == 0)) {
      placed.push_back({{x, y}, slab->Head});
      y += slab->Head->Height;
    }
    head = slab->Head;
    placed.push_back({{x, y}, slab});
    y += slab->Height;
  }
  return placed;
}

// How many of the placed slabs are rows and not heads that come again.
std::size_t RowsIn(const std::vector<PlacedSlab>& placed) {
  return static_cast<std::size_t>(
      std::count_if(placed.begin(), placed.end(),
                    [](const PlacedSlab& one) { return one.Slab->Head != nullptr; }));
}

// The strands on the rest of a page and on further pages; on the last one they are equally long.
void Flow::Add(const StrandSlabs& strands) {
  constexpr int kHalvings = 12;
  for (std::size_t first = 0; first < strands.Slabs.size();) {
    if (body_.bottom() - y_ < kLeastStrand * body_.height()) {
      NewPage();
    }
    y_ += y_ > body_.top() ? strands.Slabs[first]->Gap : 0;
    const std::size_t left = strands.Slabs.size() - first;
    double high = body_.bottom() - y_;
    std::vector<PlacedSlab> placed = InStrands(strands, first, high);
    if (RowsIn(placed) == left) {
      double low = 0;
      for (int i = 0; i < kHalvings; ++i) {
        const double middle = (low + high) / 2;
        (RowsIn(InStrands(strands, first, middle)) == left ? high : low) = middle;
      }
      placed = InStrands(strands, first, high);
    }
    first += RowsIn(placed);
    const double top = y_;
    for (const PlacedSlab& one : placed) {
      pages_.back().Slabs.push_back({one.At + QPointF(body_.left(), top), one.Slab});
      y_ = std::max(y_, top + one.At.y() + one.Slab->Height);
    }
    pages_.back().Bottom = std::max(pages_.back().Bottom, y_);
    head_ = nullptr;
    if (first < strands.Slabs.size()) {
      NewPage();
    }
  }
}

std::vector<QString> SectionsOf(const PageDocument& document) {
  std::vector<QString> sections;
  for (const PageBlock& block : document.Blocks) {
    const auto* text = std::get_if<PageText>(&block.Content);
    if (text != nullptr && text->Role == PageRole::Section) {
      sections.push_back(text->Text);
    }
  }
  return sections;
}

std::vector<PageBookmark> BookmarksOf(const std::vector<ComposedPage>& pages) {
  std::vector<PageBookmark> bookmarks;
  for (std::size_t page = 0; page < pages.size(); ++page) {
    for (const PlacedSlab& placed : pages[page].Slabs) {
      if (!placed.Slab->Bookmark.isEmpty()) {
        bookmarks.push_back({placed.Slab->Bookmark, placed.Slab->Level, page, placed.At.y()});
      }
    }
  }
  return bookmarks;
}

}  // namespace

QSizeF PageSetup::Size() const {
  const QSizeF points = Paper.size(QPageSize::Point);
  return (Landscape ? points.transposed() : points) * kPointsToUnits;
}

double PageSetup::Part() const {
  const double ofA4 = QPageSize(QPageSize::A4).size(QPageSize::Point).width() * kPointsToUnits;
  return std::min(1.0, std::min(Size().width(), Size().height()) / ofA4);
}

QRectF PageSetup::Body() const {
  const double mm = kUnitsOfMillimetre * Part();
  const QSizeF size = Size();
  return {kSide * mm, kTop * mm, size.width() - 2 * kSide * mm,
          size.height() - (kTop + kBottom) * mm};
}

const PageBookmark& ComposedDocument::SectionBookmark(std::size_t section) const {
  const auto found = std::find_if(Bookmarks.begin(), Bookmarks.end(), [&section](const auto& one) {
    return one.Level == 0 && section-- == 0;
  });
  if (found == Bookmarks.end()) {
    throw std::out_of_range("The document has no such section.");
  }
  return *found;
}

ComposedDocument Compose(const PageDocument& document, const PageSetup& setup) {
  PageFonts fonts;
  Flow flow(setup);
  const std::vector<QString> sections = SectionsOf(document);
  const BlockRoom room{fonts, setup.Scale, setup.Body().width(), setup.Body().height() * kHighest,
                       sections};
  // What keeps with the next slab is held back until that one is there.
  std::vector<SharedSlab> slabs;
  for (const PageBlock& block : document.Blocks) {
    if (const auto* strands = std::get_if<PageStrands>(&block.Content)) {
      flow.Add(slabs, kLeastStrand * setup.Body().height());
      slabs.clear();
      flow.Add(SlabsOf(*strands, room));
      continue;
    }
    const std::vector<SharedSlab> added = SlabsOf(block, room);
    slabs.insert(slabs.end(), added.begin(), added.end());
  }
  flow.Add(slabs);
  ComposedDocument composed{
      document.Title, document.Author, document.Head, document.Foot, setup, flow.TakePages(), {}};
  composed.Bookmarks = BookmarksOf(composed.Pages);
  return composed;
}

ComposedDocument ComposeOnOnePage(const PageDocument& document, PageSetup setup) {
  ComposedDocument composed = Compose(document, setup);
  while (composed.Pages.size() > 1 && setup.Scale.Factor - kScaleStep >= kSmallestScale) {
    setup.Scale.Factor -= kScaleStep;
    composed = Compose(document, setup);
  }
  return composed;
}

}  // namespace orvex::ui
