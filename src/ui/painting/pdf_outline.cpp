#include "ui/painting/pdf_outline.h"

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

namespace orvex::ui {

namespace {

using Handle = QPDFObjectHandle;

Handle Text(const QString& text) { return Handle::newUnicodeString(text.toStdString()); }

// A document of pages while its properties are written.
class Outline {
 public:
  Outline(QPDF& pdf, const ComposedDocument& document)
      : pdf_(pdf), document_(document), pages_(QPDFPageDocumentHelper(pdf).getAllPages()) {}

  void AddBookmarks() {
    if (document_.Bookmarks.empty()) {
      return;
    }
    Handle root = pdf_.makeIndirectObject(Handle::newDictionary());
    root.replaceKey("/Type", Handle::newName("/Outlines"));
    std::vector<Handle> sections;
    std::vector<std::vector<Handle>> parts;
    for (const PageBookmark& bookmark : document_.Bookmarks) {
      Handle item = ItemOf(bookmark);
      if (bookmark.Level == 0 || sections.empty()) {
        sections.push_back(item);
        parts.emplace_back();
      } else {
        parts.back().push_back(item);
      }
    }
    for (std::size_t i = 0; i < sections.size(); ++i) {
      Chain(parts[i], sections[i], false);
    }
    Chain(sections, root, true);
    pdf_.getRoot().replaceKey("/Outlines", root);
    pdf_.getRoot().replaceKey("/PageMode", Handle::newName("/UseOutlines"));
  }

  void AddLinks() {
    for (std::size_t page = 0; page < document_.Pages.size(); ++page) {
      for (const PlacedSlab& placed : document_.Pages[page].Slabs) {
        for (const SlabReference& reference : placed.Slab->References) {
          AddLink(page, reference.Box.translated(placed.At),
                  document_.SectionBookmark(reference.Section));
        }
      }
    }
  }

  void AddProperties() {
    Handle trailer = pdf_.getTrailer();
    if (!trailer.getKey("/Info").isDictionary()) {
      trailer.replaceKey("/Info", pdf_.makeIndirectObject(Handle::newDictionary()));
    }
    if (!document_.Author.isEmpty()) {
      trailer.getKey("/Info").replaceKey("/Author", Text(document_.Author));
    }
    Handle preferences = Handle::newDictionary();
    preferences.replaceKey("/DisplayDocTitle", Handle::newBool(true));
    pdf_.getRoot().replaceKey("/ViewerPreferences", preferences);
  }

 private:
  // A height of a page from its lower edge, in points.
  double FromBelow(double y) const {
    return (document_.Setup.Size().height() - y) / kPointsToUnits;
  }

  Handle Real(double value) const { return Handle::newReal(value, 2); }

  Handle PlaceOf(const PageBookmark& bookmark) {
    return Handle::newArray({pages_.at(bookmark.Page).getObjectHandle(), Handle::newName("/XYZ"),
                             Handle::newNull(), Real(FromBelow(bookmark.Top)), Handle::newNull()});
  }

  Handle ItemOf(const PageBookmark& bookmark) {
    Handle item = pdf_.makeIndirectObject(Handle::newDictionary());
    item.replaceKey("/Title", Text(bookmark.Text));
    item.replaceKey("/Dest", PlaceOf(bookmark));
    return item;
  }

  // Ties items to each other and to what they stand under; a closed one shows none of them.
  static void Chain(std::vector<Handle>& items, Handle& above, bool open) {
    if (items.empty()) {
      return;
    }
    for (std::size_t i = 0; i < items.size(); ++i) {
      items[i].replaceKey("/Parent", above);
      if (i > 0) {
        items[i].replaceKey("/Prev", items[i - 1]);
        items[i - 1].replaceKey("/Next", items[i]);
      }
    }
    above.replaceKey("/First", items.front());
    above.replaceKey("/Last", items.back());
    const auto count = static_cast<long long>(items.size());
    above.replaceKey("/Count", Handle::newInteger(open ? count : -count));
  }

  void AddLink(std::size_t page, const QRectF& box, const PageBookmark& target) {
    Handle link = Handle::newDictionary();
    link.replaceKey("/Type", Handle::newName("/Annot"));
    link.replaceKey("/Subtype", Handle::newName("/Link"));
    link.replaceKey("/Border", Handle::parse("[0 0 0]"));
    link.replaceKey("/Rect", Handle::newArray(
                                 {Real(box.left() / kPointsToUnits), Real(FromBelow(box.bottom())),
                                  Real(box.right() / kPointsToUnits), Real(FromBelow(box.top()))}));
    link.replaceKey("/Dest", PlaceOf(target));
    Handle sheet = pages_.at(page).getObjectHandle();
    if (!sheet.getKey("/Annots").isArray()) {
      sheet.replaceKey("/Annots", Handle::newArray());
    }
    sheet.getKey("/Annots").appendItem(pdf_.makeIndirectObject(link));
  }

  QPDF& pdf_;
  const ComposedDocument& document_;
  std::vector<QPDFPageObjectHelper> pages_;
};

}  // namespace

std::string WithOutline(const QByteArray& pdf, const ComposedDocument& document) {
  QPDF whole;
  whole.setSuppressWarnings(true);
  whole.processMemoryFile("pages", pdf.constData(), static_cast<std::size_t>(pdf.size()));
  Outline outline(whole, document);
  outline.AddBookmarks();
  outline.AddLinks();
  outline.AddProperties();
  QPDFWriter writer(whole);
  writer.setOutputMemory();
  writer.setObjectStreamMode(qpdf_o_generate);
  writer.write();
  const std::shared_ptr<Buffer> bytes = writer.getBufferSharedPointer();
  return {reinterpret_cast<const char*>(bytes->getBuffer()), bytes->getSize()};
}

}  // namespace orvex::ui
