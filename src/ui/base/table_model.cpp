#include "ui/base/table_model.h"

#include <QFont>
#include <algorithm>
#include <numeric>

#include "core/exact_numbers.h"
#include "core/letter_case.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr QChar kBetweenCells = '\n';

bool IsHidden(const core::Column& column) { return column.Width == 0; }

const std::string& SortText(const core::Cell& cell) {
  return cell.SortKey.empty() ? cell.Text : cell.SortKey;
}

// What a cell is ordered by: numbers come first and by their value, texts without case.
struct SortKey {
  std::optional<double> Number;
  QString Text;

  bool operator<(const SortKey& other) const {
    if (Number && other.Number) {
      return *Number < *other.Number;
    }
    return Number.has_value() != other.Number.has_value() ? Number.has_value() : Text < other.Text;
  }
};

SortKey KeyOf(const core::Cell& cell) {
  const std::string& text = SortText(cell);
  std::optional<double> number = core::ParseNumber(text);
  return {number, number ? QString() : FoldedText(Shown(text))};
}

QVariant ColorOrNothing(const QColor& color) { return color.isValid() ? color : QVariant(); }

QVariant BoldFont(const core::Cell& cell) {
  if (!cell.Bold) {
    return {};
  }
  QFont font;
  font.setBold(true);
  return font;
}

}  // namespace

QString FoldedText(const QString& text) { return Shown(core::FoldedText(Typed(text))); }

void TableModel::SetTable(core::Table table) {
  beginResetModel();
  table_ = std::move(table);
  filter_.clear();
  keys_.clear();
  FillShown();
  endResetModel();
}

void TableModel::SetFilter(const QString& text) {
  const QString folded = FoldedText(text.trimmed());
  if (folded == filter_) {
    return;
  }
  beginResetModel();
  filter_ = folded;
  FillShown();
  endResetModel();
}

std::optional<int> TableModel::ShownRow(std::size_t tableRow) const {
  const auto found = std::find(shown_.begin(), shown_.end(), tableRow);
  return found == shown_.end() ? std::nullopt
                               : std::optional(static_cast<int>(found - shown_.begin()));
}

std::optional<int> TableModel::RowOfTag(const std::string& tag) const {
  for (int row = 0; row < rowCount(); ++row) {
    if (TagOf(row) == tag) {
      return row;
    }
  }
  return std::nullopt;
}

const std::string& TableModel::TagOf(int shownRow) const {
  const core::Row& row = table_.Rows.at(TableRow(shownRow));
  return row.Tag.empty() ? row.Cells.at(0).Tag : row.Tag;
}

int TableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int TableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(table_.Columns.size());
}

const core::Cell& TableModel::CellAt(const QModelIndex& index) const {
  static const core::Cell kNone;
  const core::Row& row = table_.Rows.at(TableRow(index.row()));
  const auto column = static_cast<std::size_t>(index.column());
  return column < row.Cells.size() ? row.Cells[column] : kNone;
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const core::Cell& cell = CellAt(index);
  switch (role) {
    case Qt::DisplayRole:
      return Shown(cell.Text);
    case Qt::ToolTipRole:
      return cell.Tooltip.empty() ? QVariant() : Shown(cell.Tooltip).toHtmlEscaped();
    case Qt::BackgroundRole:
      return ColorOrNothing(Theme::Background(cell.Background));
    case Qt::ForegroundRole:
      return ColorOrNothing(Theme::Foreground(cell.Foreground));
    case Qt::FontRole:
      return BoldFont(cell);
    case Qt::TextAlignmentRole:
      return QVariant::fromValue<Qt::Alignment>(
          Qt::AlignVCenter |
          (table_.Columns[static_cast<std::size_t>(index.column())].Centred ? Qt::AlignHCenter
                                                                            : Qt::AlignLeft));
    case SortRole:
      return Shown(SortText(cell));
    case TagRole:
      return Shown(cell.Tag);
    default:
      return {};
  }
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical || section < 0 || section >= columnCount()) {
    return {};
  }
  const core::Column& column = table_.Columns[static_cast<std::size_t>(section)];
  if (role == Qt::DisplayRole) {
    return Shown(column.Caption);
  }
  if (role == Qt::ToolTipRole && !column.Tooltip.empty()) {
    return Shown(column.Tooltip).toHtmlEscaped();
  }
  if (role == Qt::TextAlignmentRole) {
    return QVariant::fromValue<Qt::Alignment>(Qt::AlignVCenter |
                                              (column.Centred ? Qt::AlignHCenter : Qt::AlignLeft));
  }
  return {};
}

void TableModel::sort(int column, Qt::SortOrder order) {
  sortColumn_ = column;
  sortOrder_ = order;
  beginResetModel();
  FillShown();
  endResetModel();
}

void TableModel::FillKeys() {
  keys_.reserve(table_.Rows.size());
  for (const core::Row& row : table_.Rows) {
    QString key;
    for (std::size_t column = 0; column < row.Cells.size(); ++column) {
      if (column < table_.Columns.size() && !IsHidden(table_.Columns[column])) {
        key += FoldedText(Shown(row.Cells[column].Text)) + kBetweenCells;
      }
    }
    keys_.push_back(std::move(key));
  }
}

void TableModel::FillShown() {
  shown_.clear();
  if (!filter_.isEmpty() && keys_.empty()) {
    FillKeys();
  }
  for (std::size_t row = 0; row < table_.Rows.size(); ++row) {
    if (filter_.isEmpty() || keys_[row].contains(filter_)) {
      shown_.push_back(row);
    }
  }
  SortShown();
}

void TableModel::SortShown() {
  if (sortColumn_ < 0 || sortColumn_ >= columnCount()) {
    return;
  }
  const auto column = static_cast<std::size_t>(sortColumn_);
  std::vector<SortKey> keys(table_.Rows.size());
  for (const std::size_t row : shown_) {
    const std::vector<core::Cell>& cells = table_.Rows[row].Cells;
    keys[row] = column < cells.size() ? KeyOf(cells[column]) : SortKey{};
  }
  const bool descending = sortOrder_ == Qt::DescendingOrder;
  std::stable_sort(shown_.begin(), shown_.end(), [&](std::size_t left, std::size_t right) {
    return descending ? keys[right] < keys[left] : keys[left] < keys[right];
  });
}

}  // namespace orvex::ui
