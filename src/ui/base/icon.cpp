#include "ui/base/icon.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include "ui/base/theme.h"

// A static library's resources are read only where somebody asks for them.
static void ReadIcons() { Q_INIT_RESOURCE(icons); }

namespace orvex::ui {

namespace {

constexpr int kSmallGrid = 16;
constexpr int kLargeGrid = 20;

QColor InkColor(IconInk ink, QIcon::Mode mode) {
  const Tokens& t = Theme::Now();
  if (mode == QIcon::Disabled) {
    return t.Ink3;
  }
  switch (ink) {
    case IconInk::Quiet:
      return t.Ink2;
    case IconInk::Accent:
      return t.Accent;
    case IconInk::OnAccent:
      return t.OnAccent;
    case IconInk::Amber:
      return t.Amber;
    case IconInk::Now:
      return t.Now;
    case IconInk::Text:
      break;
  }
  return t.Ink;
}

class TintedEngine final : public QIconEngine {
 public:
  TintedEngine(QString name, IconInk ink) : name_(std::move(name)), ink_(ink) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const double ratio = painter->device()->devicePixelRatioF();
    painter->drawPixmap(rect, scaledPixmap(rect.size() * ratio, mode, state, ratio));
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return scaledPixmap(size, mode, state, 1);
  }

  QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/,
                       double scale) override {
    const QColor color = InkColor(ink_, mode);
    const QString key = QString("icon/%1/%2x%3/%4")
                            .arg(name_)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(color.rgba(), 0, 16);
    QPixmap drawn;
    if (!QPixmapCache::find(key, &drawn)) {
      drawn = Draw(size, color, size.height() / std::max(1.0, scale));
      QPixmapCache::insert(key, drawn);
    }
    return drawn;
  }

  QIconEngine* clone() const override { return new TintedEngine(*this); }

 private:
  QPixmap Draw(const QSize& size, const QColor& color, double side) const {
    const int grid = side < (kSmallGrid + kLargeGrid) / 2.0 ? kSmallGrid : kLargeGrid;
    QSvgRenderer drawing(QString(":/icons/%1/%2.svg").arg(grid).arg(name_));
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    if (drawing.isValid()) {
      QPainter painter(&pixmap);
      drawing.render(&painter, QRectF(QPointF(), size));
      painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
      painter.fillRect(pixmap.rect(), color);
    }
    return pixmap;
  }

  QString name_;
  IconInk ink_;
};

}  // namespace

QIcon Icon(const char* name, IconInk ink) {
  ReadIcons();
  return QIcon(new TintedEngine(name, ink));
}

}  // namespace orvex::ui
