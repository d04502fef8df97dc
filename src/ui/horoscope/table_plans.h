// How the tables of the catalogue are first read: which columns, in which order and form, and which
// give way first where the room is short.
#pragma once

#include <QModelIndex>
#include <QStringList>
#include <string>
#include <vector>

#include "core/table.h"
#include "ui/base/table_plan.h"

namespace orvex::ui {

// The plan of the catalogue's entry of that name for the table that is shown; all columns as text
// where the name has none of its own.
std::vector<ColumnPlan> ColumnsFirstRead(const std::string& name, const core::Table& table);

// What the columns that are read in a sitting like to have together, in pixels at the usual text
// size.
int WidthFirstRead(const std::string& name, const core::Table& table);

// Whether its columns keep the widths that the user gives them; those of a grid are equal.
bool KeepsWidths(const std::string& name);

// How high their rows are.
RowBounds RowsFirstRead(const std::string& name);

// The letters behind a planet's name, from the columns of its row and the marks of its own text:
// retrograde, combust, exalted or debilitated.
QStringList MarksOfPlanet(const QModelIndex& planet);

}  // namespace orvex::ui
