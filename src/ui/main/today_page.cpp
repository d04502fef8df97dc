#include "ui/main/today_page.h"

#include <QVBoxLayout>

#include "ui/base/scaled.h"
#include "ui/main/birthday_list.h"
#include "ui/transit/sky_board.h"

namespace orvex::ui {

namespace {

constexpr int kBoard = 840;

}  // namespace

TodayPage::TodayPage(Workplace& place)
    : board_(new SkyBoard(place, SkyBoard::Side::RulingPlanets)),
      birthdays_(new BirthdayList(place)) {
  setObjectName("todayPage");
  // The page is one sheet with a bar of its own; its tables stand whole.
  board_->setMinimumHeight(Scaled(kBoard));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(board_, 1);
  layout->addWidget(birthdays_);
}

void TodayPage::ShowSky(const panchang::SkyView& view) {
  view_ = &view;
  if (isVisible()) {
    board_->ShowView(view);
  }
}

void TodayPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (view_ != nullptr) {
    board_->ShowView(*view_);
  }
}

}  // namespace orvex::ui
