// What the graphs share: colours for light and dark grounds, sizes of text, places of labels.
#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <functional>
#include <string>
#include <vector>

#include "ui/painting/shown_text.h"

namespace orvex::ui {

inline constexpr double kSmallText = 0.9;  // of the text: dates, flags, legends
inline constexpr double kHair = 0.8;       // of the lines
inline constexpr double kAir = 6;          // between texts and what they name

enum class Ground { Light, Dark };  // print and picture files are always light

struct GraphColors {
  QColor Paper;
  QColor Band;  // every other band
  QColor Grid;
  QColor Frame;
  QColor Text;
  QColor Muted;
  QColor Today;
};

const GraphColors& ColorsOn(Ground ground);

// The colour of a planet, legible on its ground; that of text for any other name.
QColor PlanetColor(const std::string& planet, Ground ground);

// `part` (0 to 1) of a colour on its paper: opaque, so that print and SVG show what windows show.
QColor Mixed(const QColor& color, const QColor& paper, double part);

// Draws one graph into an area. The size of its text follows the painter's font.
using GraphPainting = std::function<void(QPainter& painter, const QRectF& area, Ground ground)>;

// A font whose size is `factor` times that of another.
QFont Scaled(const QFont& font, double factor);
QFont Heavy(const QFont& font, double factor = 1);

struct GraphLabel {
  QString Text;
  QRectF Box;
};

// A label of a text of one or more lines, its box as large as the text needs, with that middle.
GraphLabel LabelAt(const QString& text, const QFont& font, const QPointF& middle);

// Moves a box sideways until it lies between two ends; it keeps to the left one where it is wider.
QRectF Within(QRectF box, double left, double right);

// Centres of labels that want to stand at `wanted` (ascending): each as near to its wish as a gap
// between neighbours and the two ends allow. Where the room is too small, the gap shrinks.
std::vector<double> SpreadApart(const std::vector<double>& wanted, double gap, double low,
                                double high);

// Adds a label unless it touches one that stands already.
bool AddApart(std::vector<GraphLabel>& labels, GraphLabel label);

// The line of a day across a box, set off from what lies under it.
void DrawDay(QPainter& painter, double x, const QRectF& across, const QColor& color,
             const QColor& paper);

// Afterwards the painter has its old font again.
void DrawLabel(QPainter& painter, const GraphLabel& label, const QFont& font, const QColor& color);

}  // namespace orvex::ui
