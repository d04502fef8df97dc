// The almanac of now over the user city, refreshed once a minute: a column at the right edge, or
// folded to a strip in the colour of the disha shool.
#pragma once

#include <QTimer>
#include <QWidget>

#include "panchang/sky_view.h"
#include "ui/base/workplace.h"

class QStackedLayout;
class QToolButton;

namespace orvex::ui {

class SkyColumn;

class SkyPanel final : public QWidget {
  Q_OBJECT

 public:
  explicit SkyPanel(Workplace& place, QWidget* parent = nullptr);

  // Computes the sky of now and shows it.
  void Refresh();
  // From here on once a minute.
  void StartTimer();
  // While it is paused the sky stands still; then it is refreshed. The sky writes its positions in
  // a batch, and batches do not nest.
  void Pause(bool paused);

  const panchang::SkyView& View() const { return view_; }

  // Folds the column, or opens it. Wide and narrow windows each keep what was chosen for them; a
  // narrow one begins folded.
  void Fold();
  void SetNarrow(bool narrow);
  bool IsFolded() const { return narrow_ ? foldedNarrow_ : foldedWide_; }

  SkyColumn& Column() { return *column_; }

 signals:
  void Refreshed();
  void FoldedChanged(bool folded);
  void TodayWanted();

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void Arrange();

  Workplace& place_;
  panchang::SkyView view_;
  QTimer minute_;
  SkyColumn* column_;
  QToolButton* unfold_;
  bool narrow_ = false;
  bool foldedWide_ = false;
  bool foldedNarrow_ = true;
  bool paused_ = false;
};

}  // namespace orvex::ui
