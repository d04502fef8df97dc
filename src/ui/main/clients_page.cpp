#include "ui/main/clients_page.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QSplitter>
#include <algorithm>

#include "practice/remedies.h"
#include "ui/base/qt_text.h"
#include "ui/base/scaled.h"
#include "ui/base/theme.h"
#include "ui/main/client_card_panel.h"
#include "ui/main/client_lists.h"
#include "ui/main/group_column.h"

namespace orvex::ui {

namespace {

// Widths of the window in pixels at the usual text size.
constexpr int kRoomForGroups = 1000;
constexpr int kRoomForCard = 860;
// The groups' part of the page, and its bounds.
constexpr double kGroupsPart = 0.155;
constexpr int kLeastGroups = 124;
constexpr int kMostGroups = 200;
constexpr double kCardPart = 1.06;  // of the list's width
constexpr int kLeastColumn = 120;
constexpr const char* kByHand = "by hand";

}  // namespace

ClientsPage::ClientsPage(Workplace& place)
    : groups_(new GroupColumn(place)),
      lists_(new ClientLists(place, *groups_)),
      card_(new ClientCardPanel(place)),
      columns_(new QSplitter(Qt::Horizontal)) {
  setBackgroundRole(QPalette::Base);
  setAutoFillBackground(true);
  columns_->setObjectName("clientColumns");
  columns_->setHandleWidth(line::kHair);
  for (QWidget* column : std::initializer_list<QWidget*>{groups_, lists_, card_}) {
    column->setMinimumWidth(Scaled(kLeastColumn));
    columns_->addWidget(column);
  }
  byHand_ = place.Layout.ChosenEntry(*columns_) == kByHand;
  place.Layout.Remember(*columns_);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(columns_);
  connect(columns_, &QSplitter::splitterMoved, this, [this, &place] {
    byHand_ = true;
    place.Layout.KeepChosenEntry(*columns_, kByHand);
  });
  connect(&lists_->AllColumns(), &QPushButton::toggled, this, [this](bool all) {
    all_ = all;
    Arrange();
  });
  connect(lists_, &ClientLists::ChoiceChanged, this, [this] {
    const std::int32_t client = lists_->Client();
    const std::string nobody =
        lists_->IsNarrowed() ? practice::kFilteredRemedyCaption : practice::kNoRemedyCaption;
    const QString name = client == 0 ? QString() : lists_->ClientName();
    card_->Choose(client, name, Shown(client == 0 ? nobody : practice::RemedyCaption(Typed(name))));
  });
}

void ClientsPage::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Arrange();
}

void ClientsPage::Arrange() {
  const int window = this->window()->width();
  lists_->SetGroupsAsBox(window < Scaled(kRoomForGroups));
  card_->setVisible(!all_ && window >= Scaled(kRoomForCard));
  if (!byHand_ || all_) {
    ShareWidth();
  }
}

void ClientsPage::ShareWidth() {
  const int groups = groups_->isHidden() ? 0
                                         : std::clamp(static_cast<int>(width() * kGroupsPart),
                                                      Scaled(kLeastGroups), Scaled(kMostGroups));
  const int rest = width() - groups;
  const int list = card_->isHidden() ? rest : static_cast<int>(rest / (1 + kCardPart));
  columns_->setSizes({groups, list, rest - list});
}

}  // namespace orvex::ui
