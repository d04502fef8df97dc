#include "ui/main/sky_panel.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QToolButton>

#include "ui/base/elided_label.h"
#include "ui/base/icon.h"
#include "ui/base/keys.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/scaled.h"
#include "ui/base/theme.h"
#include "ui/main/sky_column.h"
#include "ui/transit/disha_color.h"

namespace orvex::ui {

namespace {

constexpr int kMinute = 60000;  // milliseconds
constexpr int kColumnWidth = 318;
constexpr int kStripWidth = 34;
constexpr int kBand = line::kWarning;
constexpr const char* kFolded = "folded";

}  // namespace

SkyPanel::SkyPanel(Workplace& place, QWidget* parent)
    : QWidget(parent),
      place_(place),
      column_(new SkyColumn(place)),
      unfold_(Named(new QToolButton, "unfoldSkyButton")) {
  setObjectName("skyPanel");
  setBackgroundRole(QPalette::Base);
  foldedWide_ = place.Layout.ChosenEntry(*this) == kFolded;
  unfold_->setIcon(Icon("unfold"));
  unfold_->setIconSize({kWordIcon, kWordIcon});
  unfold_->setAutoRaise(true);
  unfold_->setAccessibleName(tr("Open the sky"));
  unfold_->setToolTip(WithKeys(tr("Open the sky"), KeysOf(kMainWindow, "foldSky")));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(line::kHair, kBand, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(unfold_, 0, Qt::AlignHCenter | Qt::AlignTop);
  layout->addWidget(column_, 1);
  connect(unfold_, &QToolButton::clicked, this, &SkyPanel::Fold);
  connect(&column_->FoldButton(), &QToolButton::clicked, this, &SkyPanel::Fold);
  connect(column_, &SkyColumn::TodayWanted, this, &SkyPanel::TodayWanted);
  minute_.setInterval(kMinute);
  connect(&minute_, &QTimer::timeout, this, &SkyPanel::Refresh);
  Arrange();
}

void SkyPanel::StartTimer() { minute_.start(); }

void SkyPanel::Pause(bool paused) {
  paused_ = paused;
  if (!paused) {
    Refresh();
  }
}

void SkyPanel::Refresh() {
  if (paused_) {
    return;
  }
  panchang::GetCurrentTransit(place_.Session, view_);
  if (!IsFolded()) {
    column_->ShowView(view_);
  }
  unfold_->setAccessibleDescription(Shown(view_.Captions.SkyView));
  update();
  emit Refreshed();
}

void SkyPanel::Fold() {
  bool& folded = narrow_ ? foldedNarrow_ : foldedWide_;
  folded = !folded;
  if (!narrow_) {
    place_.Layout.KeepChosenEntry(*this, folded ? kFolded : "");
  }
  Arrange();
}

void SkyPanel::SetNarrow(bool narrow) {
  if (narrow_ != narrow) {
    narrow_ = narrow;
    Arrange();
  }
}

// The keys go where the button of the other form stands now.
void SkyPanel::Arrange() {
  const bool folded = IsFolded();
  const bool hadKeys = column_->isAncestorOf(window()->focusWidget()) || unfold_->hasFocus();
  setFixedWidth(folded ? kStripWidth : Scaled(kColumnWidth));
  column_->setVisible(!folded);
  unfold_->setVisible(folded);
  if (hadKeys) {
    (folded ? unfold_ : &column_->FoldButton())->setFocus(Qt::OtherFocusReason);
  }
  if (!folded && !view_.Captions.SkyView.empty()) {
    column_->ShowView(view_);
  }
  update();
  emit FoldedChanged(folded);
}

bool SkyPanel::event(QEvent* event) {
  // Cells keep the colours of the palette in which they were filled.
  if (event->type() == QEvent::PaletteChange && !IsFolded() && !view_.Captions.SkyView.empty()) {
    column_->ShowView(view_);
  }
  return QWidget::event(event);
}

// The sheet, the band, and folded the title from the top down.
void SkyPanel::paintEvent(QPaintEvent* /*event*/) {
  const Tokens& t = Theme::Now();
  QPainter painter(this);
  painter.fillRect(rect(), t.Sheet);
  painter.fillRect(QRect(0, 0, line::kHair, height()), t.Rule2);
  if (const QColor band = DishaColor(view_.Captions.DishaShoolColor); band.isValid()) {
    painter.fillRect(QRect(0, 0, width(), kBand), band);
  }
  if (!IsFolded()) {
    return;
  }
  painter.setFont(Theme::Text(type::kSmall));
  painter.setPen(t.Ink2);
  const int top = unfold_->geometry().bottom() + space::kM;
  painter.translate(width(), top);
  painter.rotate(90);
  painter.drawText(QRect(0, 0, height() - top, width()), Qt::AlignVCenter | Qt::AlignLeft,
                   Shown(view_.Captions.SkyView));
}

}  // namespace orvex::ui
