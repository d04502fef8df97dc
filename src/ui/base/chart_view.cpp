#include "ui/base/chart_view.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "ui/base/cell_text.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/painting/chart_painter.h"

namespace orvex::ui {

namespace {
constexpr int kRoomAround = 5 * kGrid;  // what a chart likes to have beyond its smallest size

ChartColors ScreenColors() {
  const Tokens& t = Theme::Now();
  return {t.Sheet, t.Edge, t.Ink, t.Ink2, t.Now, t.Ascendant};
}

// Pixels of a planet's code that are read without effort.
double Readable() {
  constexpr double kUsual = 13;
  return kUsual * Theme::TextSize() / 100;
}

}  // namespace

ChartView::ChartView(const QString& objectName, int smallestSide) : smallestSide_(smallestSide) {
  setObjectName(objectName);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize ChartView::sizeHint() const {
  return minimumSizeHint().grownBy({kRoomAround, kRoomAround, 0, 0});
}

QSize ChartView::minimumSizeHint() const { return {smallestSide_, smallestSide_}; }

void ChartView::SetPicture(const report::ChartPicture& picture) {
  picture_ = picture;
  setAccessibleName(Shown(picture.Title));
  update();
}

QString ChartView::CodeAt(const QPointF& point) const {
  for (const DrawnField& field : LayOutChart(picture_, font(), ChartSquare(rect()), Readable())) {
    for (const PlacedWord& word : field.Codes.Words) {
      if (word.Box.contains(point)) {
        return word.Text;
      }
    }
  }
  return {};
}

QString ChartView::TooltipAt(const QPointF& point) const {
  const std::array<DrawnField, 12> drawn =
      LayOutChart(picture_, font(), ChartSquare(rect()), Readable());
  for (std::size_t i = 0; i < drawn.size(); ++i) {
    if (drawn.at(i).Outline.containsPoint(point, Qt::OddEvenFill)) {
      return Shown(picture_.Fields.at(i).Tooltip).toHtmlEscaped();
    }
  }
  return {};
}

bool ChartView::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), TooltipAt(help->pos()), this);
    return true;
  }
  return QWidget::event(event);
}

void ChartView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  PaintChart(painter, rect(), picture_, ScreenColors(), Readable());
  PaintRings(painter);
}

void ChartView::SetChosen(const QString& code) {
  if (chosen_ != code) {
    chosen_ = code;
    update();
  }
}

void ChartView::PaintRings(QPainter& painter) const {
  if (chosen_.isEmpty()) {
    return;
  }
  const Tokens& t = Theme::Now();
  painter.setRenderHint(QPainter::Antialiasing);
  for (const DrawnField& field : LayOutChart(picture_, font(), ChartSquare(rect()), Readable())) {
    for (const PlacedWord& word : field.Codes.Words) {
      if (CodeOfWord(word.Text) == chosen_) {
        painter.setPen(QPen(t.Accent, line::kFocus));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(word.Box.adjusted(-space::kXs, 0, space::kXs, 0), radius::kChip,
                                radius::kChip);
      }
    }
  }
}

void ChartView::mouseReleaseEvent(QMouseEvent* event) {
  const QString code = CodeOfWord(CodeAt(event->position()));
  if (event->button() == Qt::LeftButton && !code.isEmpty() && !secondClick_) {
    emit CodeClicked(code);
  }
  secondClick_ = false;
}

// Paper is light, whatever the windows are.
void ChartView::CopyPicture() const {
  constexpr int kSide = 720;
  QImage image(kSide, kSide, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  PaintChart(painter, image.rect(), picture_, PrintColors());
  painter.end();
  QGuiApplication::clipboard()->setImage(image);
}

void ChartView::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu(this);
  menu.setObjectName("chartMenu");
  if (fillMenu_) {
    fillMenu_(menu);
  } else {
    AddCopy(menu);
  }
  menu.exec(event->globalPos());
}

void ChartView::AddCopy(QMenu& menu) {
  menu.addAction(tr("&Copy chart"), this, [this] { CopyPicture(); });
}

void ChartView::mouseDoubleClickEvent(QMouseEvent* event) {
  secondClick_ = true;
  const QString code = CodeAt(event->position());
  if (!code.isEmpty()) {
    emit CodeActivated(code);
  }
}

}  // namespace orvex::ui
