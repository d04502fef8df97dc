#include "ui/painting/page_painter.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <algorithm>

namespace orvex::ui {

namespace {

constexpr PageFont kRunning{75, false, false, false};
constexpr double kHeadAbove = 150;  // units between the head and the content
constexpr double kFootBelow = 180;

// Changes the painter's font and pen only where the last text had others.
class TextPainter {
 public:
  explicit TextPainter(QPainter& painter) : painter_(painter) {}

  void Draw(const QPointF& base, const QString& text, const PageFont& font, const QColor& ink) {
    if (!(font == font_)) {
      font_ = font;
      painter_.setFont(FontOf(font));
    }
    if (ink != ink_) {
      ink_ = ink;
      painter_.setPen(ink);
    }
    painter_.drawText(base, text);
  }

  // The painter was used for something else.
  void Forget() { *this = TextPainter(painter_); }

  TextPainter& operator=(const TextPainter& other) {
    font_ = other.font_;
    ink_ = other.ink_;
    return *this;
  }
  TextPainter(const TextPainter&) = default;

 private:
  QPainter& painter_;
  PageFont font_;
  QColor ink_;
};

void PaintSlab(QPainter& painter, TextPainter& texts, const PlacedSlab& placed,
               const ComposedDocument& document) {
  const PageSlab& slab = *placed.Slab;
  for (const SlabFill& fill : slab.Fills) {
    painter.fillRect(fill.Box.translated(placed.At), fill.Color);
  }
  for (const SlabText& text : slab.Texts) {
    texts.Draw(text.Base + placed.At, text.Text, text.Font, text.Ink);
  }
  for (const SlabReference& reference : slab.References) {
    const QFontMetricsF metrics(FontOf(reference.Font));
    const QString number = QString::number(document.SectionBookmark(reference.Section).Page + 1);
    const QRectF box = reference.Box.translated(placed.At);
    texts.Draw({box.right() - metrics.horizontalAdvance(number), box.top() + metrics.ascent()},
               number, reference.Font, QColor(ink::kMuted));
  }
  for (const SlabPicture& picture : slab.Pictures) {
    painter.save();
    painter.setFont(FontOf(kRunning));
    picture.Paint(painter, picture.Box.translated(placed.At));
    painter.restore();
    texts.Forget();
  }
}

void PaintRunning(TextPainter& texts, const ComposedDocument& document, std::size_t page) {
  const QRectF body = document.Setup.Body();
  const double part = document.Setup.Part();
  PageFont font = kRunning;
  font.Size = static_cast<int>(font.Size * part);
  const QFontMetricsF metrics(FontOf(font));
  const QColor muted(ink::kMuted);
  if (page > 0) {
    texts.Draw({body.left(), body.top() - kHeadAbove * part},
               metrics.elidedText(document.Head, Qt::ElideRight, body.width()), font, muted);
  }
  const QString number = QString("%1 / %2").arg(page + 1).arg(document.Pages.size());
  const double width = metrics.horizontalAdvance(number);
  const double base = body.bottom() + kFootBelow * part;
  texts.Draw({body.left(), base},
             metrics.elidedText(document.Foot, Qt::ElideRight, body.width() - 2 * width), font,
             muted);
  texts.Draw({body.right() - width, base}, number, font, muted);
}

}  // namespace

void PaintPage(QPainter& painter, const ComposedDocument& document, std::size_t page) {
  TextPainter texts(painter);
  for (const PlacedSlab& placed : document.Pages.at(page).Slabs) {
    PaintSlab(painter, texts, placed, document);
  }
  PaintRunning(texts, document, page);
}

bool PaintPages(QPagedPaintDevice& device, const ComposedDocument& document,
                const PageProgress& progress) {
  QPainter painter;
  if (!painter.begin(&device)) {
    return false;
  }
  const double scale = painter.viewport().width() / document.Setup.Size().width();
  painter.scale(scale, scale);
  for (std::size_t page = 0; page < document.Pages.size(); ++page) {
    if (progress && !progress(page, document.Pages.size())) {
      return false;
    }
    if (page > 0 && !device.newPage()) {
      return false;
    }
    PaintPage(painter, document, page);
  }
  return painter.end();
}

}  // namespace orvex::ui
