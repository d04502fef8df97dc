#include "ui/graphs/graph_view.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QPushButton>
#include <QToolTip>

#include "core/own_files.h"
#include "ui/base/message_boxes.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/base/window_print.h"
#include "ui/painting/graph_files.h"

namespace orvex::ui {

namespace {

constexpr int kUsualWidth = 110 * kGrid;
constexpr int kUsualHeight = 70 * kGrid;
constexpr int kSmallestWidth = 60 * kGrid;
constexpr int kSmallestHeight = 40 * kGrid;

}  // namespace

GraphView::GraphView(Workplace& place)
    : place_(place),
      print_(new QAction(tr("&Print…"), this)),
      save_(new QAction(tr("Save as S&VG…"), this)) {
  print_->setObjectName("printGraph");
  save_->setObjectName("saveGraph");
  save_->setShortcut(QKeySequence::Save);
  for (QAction* action : {print_, save_}) {
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(action);
  }
  connect(print_, &QAction::triggered, this, &GraphView::Print);
  connect(save_, &QAction::triggered, this, &GraphView::SaveAsSvg);
  setContextMenuPolicy(Qt::ActionsContextMenu);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize GraphView::sizeHint() const { return {kUsualWidth, kUsualHeight}; }
QSize GraphView::minimumSizeHint() const { return {kSmallestWidth, kSmallestHeight}; }

GraphPainting GraphView::OnPaper() const {
  return [this](QPainter& painter, const QRectF& area, Ground ground) {
    PaintGraph(painter, area, ground);
  };
}

std::vector<PageBlock> GraphView::PrintedBlocks() const {
  return {{PageFigures{{GraphFigure(OnPaper())}}}};
}

void GraphView::Print() {
  PrintWithPreview(place_, *this, PrintoutOf(*this, {Shown(Title()), {}, {}}, place_.Session));
}

void GraphView::SaveAsSvg() {
  const auto file = place_.Files.ChooseFileToWrite(
      this, "Save as SVG", FileNameOf(Title()) + ".svg", "SVG pictures (*.svg)");
  if (!file) {
    return;
  }
  try {
    core::CheckFileToWrite(place_.Session, *file);
    WriteGraphSvg(OnPaper(), Title(), *file);
  } catch (const std::exception& error) {
    Complain(place_.Session.Shown, error.what());
  }
}

void GraphView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setFont(font());
  PaintGraph(painter, rect(), WindowGround());
}

Ground GraphView::WindowGround() {
  return Theme::Mode() == ThemeMode::Dark ? Ground::Dark : Ground::Light;
}

bool GraphView::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) {
    return QWidget::event(event);
  }
  const auto& help = dynamic_cast<QHelpEvent&>(*event);
  const QString hint = HintAt(help.pos());
  if (hint.isEmpty()) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(help.globalPos(), hint, this);
  }
  return true;
}

QHBoxLayout* GraphButtons(QWidget& pane, std::initializer_list<QAction*> actions) {
  auto* row = new QHBoxLayout;
  row->addStretch();
  for (QAction* action : actions) {
    auto* button = new QPushButton(action->text());
    button->setObjectName(action->objectName() + "Button");
    button->setToolTip(action->shortcut().toString(QKeySequence::NativeText));
    QObject::connect(button, &QPushButton::clicked, action, &QAction::trigger);
    row->addWidget(button);
    pane.addAction(action);
  }
  return row;
}

}  // namespace orvex::ui
