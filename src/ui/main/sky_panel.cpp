#include "ui/main/sky_panel.h"

#include <QVBoxLayout>

#include "ui/transit/sky_board.h"

namespace orvex::ui {

namespace {

constexpr int kMinute = 60000;  // milliseconds

}  // namespace

SkyPanel::SkyPanel(Workplace& place, QWidget* parent)
    : QWidget(parent), place_(place), board_(new SkyBoard(place, SkyBoard::Side::RulingPlanets)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(board_);
  minute_.setInterval(kMinute);
  connect(&minute_, &QTimer::timeout, this, &SkyPanel::Refresh);
}

void SkyPanel::StartTimer() { minute_.start(); }

void SkyPanel::Refresh() {
  panchang::GetCurrentTransit(place_.Session, view_);
  board_->ShowView(view_);
  emit Refreshed();
}

}  // namespace orvex::ui
