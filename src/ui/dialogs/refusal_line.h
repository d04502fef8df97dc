// What a save routine refuses, under the field that it is about.
#pragma once

#include <QPointer>
#include <QWidget>

class QLabel;

namespace orvex::ui {

class RefusalLine final : public QWidget {
  Q_OBJECT

 public:
  explicit RefusalLine(QWidget* parent);

  // A widget with a column of its own, at the foot of which a line may stand.
  static QWidget* MakeBlock();
  // The block in which a field lies; null where there is none.
  static QWidget* BlockOf(const QWidget& field);

  // Moves the line to the foot of the field's block and marks the field. Without a block it is not
  // shown.
  void ShowUnder(QWidget& field, const QString& text);
  void Clear();

 private:
  void Mark(QWidget* field);

  QLabel* text_;
  QPointer<QWidget> field_;  // the one that is marked
};

}  // namespace orvex::ui
