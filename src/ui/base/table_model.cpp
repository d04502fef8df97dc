#include "ui/base/table_model.h"

#include <QFont>
#include <QTextDocument>
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

QString PlainTip(const QString& text) {
  return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

void TableModel::SetTable(core::Table table) { Reset(std::move(table), {}); }

void TableModel::SetLateRows(std::vector<core::Column> columns, LateRows rows) {
  Reset({std::move(columns), {}}, std::move(rows));
}

void TableModel::Reset(core::Table table, LateRows late) {
  beginResetModel();
  table_ = std::move(table);
  late_ = std::move(late);
  read_.clear();
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
  filter_ = folded;
  Rearrange();
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
  if (late_.Read) {
    return late_.Tags.at(TableRow(shownRow));
  }
  const core::Row& row = table_.Rows.at(TableRow(shownRow));
  return row.Tag.empty() ? row.Cells.at(0).Tag : row.Tag;
}

int TableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int TableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(table_.Columns.size());
}

const core::Row& TableModel::ShownRowAt(int shownRow) const {
  const std::size_t row = TableRow(shownRow);
  if (!late_.Read) {
    return table_.Rows.at(row);
  }
  if (read_.find(row) == read_.end()) {
    ReadAround(shownRow);
  }
  return read_.at(row);
}

// A screen of rows at once, and no more of them kept than a few screens.
void TableModel::ReadAround(int shownRow) const {
  constexpr std::size_t kBlock = 64;
  constexpr std::size_t kMostKept = 32 * kBlock;
  if (read_.size() >= kMostKept) {
    read_.clear();
  }
  const std::size_t first = static_cast<std::size_t>(shownRow) / kBlock * kBlock;
  const std::size_t end = std::min(first + kBlock, shown_.size());
  const std::vector<std::size_t> wanted(shown_.begin() + static_cast<std::ptrdiff_t>(first),
                                        shown_.begin() + static_cast<std::ptrdiff_t>(end));
  std::vector<core::Row> rows = late_.Read(wanted);
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    read_[wanted[i]] = std::move(rows.at(i));
  }
}

template <typename Visit>
void TableModel::ForEachRow(Visit visit) const {
  constexpr std::size_t kBlock = 1000;
  for (std::size_t row = 0; !late_.Read && row < table_.Rows.size(); ++row) {
    visit(row, table_.Rows[row]);
  }
  for (std::size_t first = 0; late_.Read && first < late_.Tags.size(); first += kBlock) {
    std::vector<std::size_t> wanted(std::min(kBlock, late_.Tags.size() - first));
    std::iota(wanted.begin(), wanted.end(), first);
    const std::vector<core::Row> rows = late_.Read(wanted);
    for (std::size_t i = 0; i < wanted.size(); ++i) {
      visit(wanted[i], rows.at(i));
    }
  }
}

const core::Cell& TableModel::CellAt(const QModelIndex& index) const {
  static const core::Cell kNone;
  const core::Row& row = ShownRowAt(index.row());
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
      return cell.Tooltip.empty() ? QVariant() : PlainTip(Shown(cell.Tooltip));
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
    return PlainTip(Shown(column.Tooltip));
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
  Rearrange();
}

// A reset would lose the selection and keep those who listen from knowing it.
void TableModel::Rearrange() {
  emit layoutAboutToBeChanged({}, VerticalSortHint);
  const std::vector<std::size_t> before = shown_;
  FillShown();
  constexpr int kGone = -1;
  std::vector<int> places(TableRowCount(), kGone);
  for (std::size_t row = 0; row < shown_.size(); ++row) {
    places[shown_[row]] = static_cast<int>(row);
  }
  const QModelIndexList from = persistentIndexList();
  QModelIndexList to;
  for (const QModelIndex& was : from) {
    const int row = places[before[static_cast<std::size_t>(was.row())]];
    to << (row == kGone ? QModelIndex() : index(row, was.column()));
  }
  changePersistentIndexList(from, to);
  emit layoutChanged({}, VerticalSortHint);
}

void TableModel::FillKeys() {
  keys_.reserve(TableRowCount());
  ForEachRow([this](std::size_t /*row*/, const core::Row& row) {
    QString key;
    for (std::size_t column = 0; column < row.Cells.size(); ++column) {
      if (column < table_.Columns.size() && !IsHidden(table_.Columns[column])) {
        key += FoldedText(Shown(row.Cells[column].Text)) + kBetweenCells;
      }
    }
    keys_.push_back(std::move(key));
  });
}

void TableModel::FillShown() {
  shown_.clear();
  if (!filter_.isEmpty() && keys_.empty()) {
    FillKeys();
  }
  for (std::size_t row = 0; row < TableRowCount(); ++row) {
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
  std::vector<SortKey> keys(TableRowCount());
  ForEachRow([&keys, column](std::size_t at, const core::Row& row) {
    keys[at] = column < row.Cells.size() ? KeyOf(row.Cells[column]) : SortKey{};
  });
  const bool descending = sortOrder_ == Qt::DescendingOrder;
  std::stable_sort(shown_.begin(), shown_.end(), [&](std::size_t left, std::size_t right) {
    return descending ? keys[right] < keys[left] : keys[left] < keys[right];
  });
}

}  // namespace orvex::ui
