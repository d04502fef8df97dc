// How the list of clients paints its cells: the name with the number of a query behind it, the date
// with a short month. What a cell says and copies is its own text.
#pragma once

#include <QStyledItemDelegate>

namespace orvex::ui {

// The name; bold in the chosen row. That of a query tells its question.
class ClientNameDelegate final : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;
};

// "5 Jul 1990" of "5 July 1990"; any other text as it is.
class ShortDateDelegate final : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
};

// A group and the number of its clients.
class GroupDelegate final : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
};

}  // namespace orvex::ui
