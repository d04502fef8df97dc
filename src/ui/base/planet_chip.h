// A planet's chip: its two letters on its tint.
#pragma once

#include <QFont>
#include <QRect>
#include <QString>

class QPainter;

namespace orvex::ui {

QFont ChipFont();

// The size of a chip in the present text size.
QSize ChipSize();

// Draws a chip, with the ring of the chosen planet around it.
void DrawChip(QPainter& painter, const QRect& box, const QString& code, bool chosen);

// The ring of a planet that gives a matter, around its chip.
void DrawFruitfulRing(QPainter& painter, const QRect& box);

}  // namespace orvex::ui
