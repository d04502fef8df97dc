#include "ui/painting/page_slab.h"

namespace orvex::ui {

void Put(const PageSlab& slab, const QPointF& at, PageSlab& into) {
  for (SlabFill fill : slab.Fills) {
    fill.Box.translate(at);
    into.Fills.push_back(std::move(fill));
  }
  for (SlabText text : slab.Texts) {
    text.Base += at;
    into.Texts.push_back(std::move(text));
  }
  for (SlabPicture picture : slab.Pictures) {
    picture.Box.translate(at);
    into.Pictures.push_back(std::move(picture));
  }
  for (SlabReference reference : slab.References) {
    reference.Box.translate(at);
    into.References.push_back(std::move(reference));
  }
}

PageSlab StackOf(const std::vector<SharedSlab>& slabs) {
  PageSlab stack;
  SharedSlab head;
  for (const SharedSlab& slab : slabs) {
    stack.Height += stack.Height == 0 ? 0 : slab->Gap;
    if (slab->Head != head && slab->Head != nullptr) {
      Put(*slab->Head, {0, stack.Height}, stack);
      stack.Height += slab->Head->Height;
    }
    head = slab->Head;
    Put(*slab, {0, stack.Height}, stack);
    stack.Height += slab->Height;
  }
  return stack;
}

}  // namespace orvex::ui
