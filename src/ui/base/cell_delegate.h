// Paints the cells of tables: text, planets as chips with their houses, degrees in a sign, counts
// as a heat map. What a cell says, copies, exports and reads out is its own text in every kind.
#pragma once

#include <QStyledItemDelegate>
#include <functional>
#include <set>
#include <vector>

#include "ui/base/cell_painting.h"
#include "ui/base/column_plan.h"
#include "ui/base/planet_chip.h"

namespace orvex::ui {

struct CellPiece;

// The mark of what runs now, where the word has no room.
inline constexpr const char* kNowArrow = "◂";

class CellDelegate final : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using Marks = std::function<QStringList(const QModelIndex& index)>;

  explicit CellDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

  // The kinds of the columns, column by column; Text where nothing is said.
  void SetKinds(std::vector<CellKind> kinds) { kinds_ = std::move(kinds); }
  CellKind KindOf(int column) const;

  // The letters in a frame behind the name of a cell of kind Chip; kNowArrow is drawn as an arrow.
  void SetMarks(Marks marks) { marks_ = std::move(marks); }

  // The houses of a planet by its code, for lords that stand in their cells by name alone. Where it
  // is set, the columns of `underlined` show them and underline the lord.
  using Houses = std::function<QString(const QString& code)>;
  void SetHouses(Houses houses) { houses_ = std::move(houses); }
  void SetUnderlined(std::vector<bool> underlined) { underlined_ = std::move(underlined); }

  // The planet that wears a ring; "" for none.
  void SetChosen(const QString& code) { chosen_ = code; }

  // The planets that wear the ring of those that give a matter.
  void SetFruitful(std::set<QString> codes) { fruitful_ = std::move(codes); }

  // The row under which a part of the table ends: a heavier rule stands there. None for -1.
  void SetRuledRow(int row) { ruledRow_ = row; }

  // What a house is to the matter, for cells of kind Houses.
  void SetHouseRoles(HouseRoles roles) { roles_ = std::move(roles); }

  // The planet whose chip stands at a point of a cell; "" where none does.
  QString CodeAt(const QStyleOptionViewItem& option, const QModelIndex& index,
                 const QPoint& point) const;

  // The pixels that the chips and words of a cell take, with a small gap behind them.
  int PlacedWidth(const QStyleOptionViewItem& option, const QModelIndex& index) const;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  // The tool tip of a degree in its sign says how it is stored.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

 private:
  struct Placed {
    QRect Box;
    QString Text;
    QString Code;  // of a chip
    bool Bold = false;
    bool Quiet = false;
    bool Mark = false;
    bool Underlined = false;
  };

  bool IsUnderlined(int column) const;
  std::vector<Placed> LayOut(const QStyleOptionViewItem& option, const QModelIndex& index) const;
  void PaintPlaced(QPainter& painter, const QStyleOptionViewItem& option, const Placed& part) const;
  QColor InkOfName(const QModelIndex& index) const;
  void PaintContents(QPainter& painter, QStyleOptionViewItem& option,
                     const QModelIndex& index) const;
  static void FitChips(std::vector<Placed>& placed, const QStyleOptionViewItem& option);

  std::vector<CellKind> kinds_;
  Marks marks_;
  Houses houses_;
  std::vector<bool> underlined_;
  QString chosen_;
  std::set<QString> fruitful_;
  HouseRoles roles_;
  int ruledRow_ = -1;
};

}  // namespace orvex::ui
