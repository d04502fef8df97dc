// What a table in sight shows, to be found again on paper.
#pragma once

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QString>

#include "support/pdf_text.h"
#include "ui/base/cell_delegate.h"
#include "ui/base/cell_text.h"
#include "ui/base/table_view.h"

namespace orvex::test {

// A shown row column by column, squeezed; row -1 is the captions.
inline QString RowText(const ui::TableView& view, int row) {
  const QHeaderView& header = *view.horizontalHeader();
  const auto* cells = qobject_cast<const ui::CellDelegate*>(view.itemDelegate());
  QString text;
  for (int place = 0; place < header.count(); ++place) {
    const int column = header.logicalIndex(place);
    if (view.isColumnHidden(column)) {
      continue;
    }
    const QString own = row < 0 ? view.model()->headerData(column, Qt::Horizontal).toString()
                                : view.Model().index(row, column).data().toString();
    const bool degree = cells != nullptr && cells->KindOf(column) == ui::CellKind::Degree;
    const auto shown = row >= 0 && degree ? ui::ShownDegree(own) : std::nullopt;
    text += Squeezed(shown ? shown->Figures + shown->Sign : own);
  }
  return text;
}

// The rows in sight stand in the text under their captions, in their order.
inline void ExpectRows(const ui::TableView& view, const QString& text) {
  const QString captions = view.horizontalHeader()->isHidden() ? QString() : RowText(view, -1);
  qsizetype at = text.indexOf(captions + RowText(view, 0));
  EXPECT_GE(at, 0) << view.objectName().toStdString() << ": " << captions.toStdString();
  for (int row = 0; row < view.Model().rowCount(); ++row) {
    const QString shown = RowText(view, row);
    const qsizetype found = text.indexOf(shown, at);
    EXPECT_GE(found, at) << view.objectName().toStdString() << ": " << shown.toStdString();
    at = std::max(at, found) + shown.size();
  }
}

}  // namespace orvex::test
