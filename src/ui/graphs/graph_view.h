// A graph that grows with its window, drawn as vectors; printed and saved light whatever the theme.
#pragma once

#include <QWidget>
#include <initializer_list>

#include "ui/base/shown_page.h"
#include "ui/base/workplace.h"
#include "ui/painting/graph_style.h"

class QAction;
class QHBoxLayout;

namespace orvex::ui {

class GraphView : public QWidget, public PrintsItself {
  Q_OBJECT

 public:
  explicit GraphView(Workplace& place);

  // Shows the graph as a page under its title, to be printed.
  void Print();

  // Asks for a file and writes the graph there.
  void SaveAsSvg();

  std::vector<PageBlock> PrintedBlocks() const override;

  // The actions of every graph, for buttons and menus.
  QAction* PrintAction() const { return print_; }
  QAction* SaveAction() const { return save_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  // The name of printed documents and of files.
  virtual std::string Title() const = 0;
  virtual void PaintGraph(QPainter& painter, const QRectF& area, Ground ground) const = 0;

  // What the pointer is told at a point; "" for nothing.
  virtual QString HintAt(const QPointF& point) const = 0;

  // The ground of the present theme.
  static Ground WindowGround();

  Workplace& Place() const { return place_; }

  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  GraphPainting OnPaper() const;

  Workplace& place_;
  QAction* print_;
  QAction* save_;
};

// The row of buttons under a graph, at the right; their keys work in all of `pane`.
QHBoxLayout* GraphButtons(QWidget& pane, std::initializer_list<QAction*> actions);

}  // namespace orvex::ui
