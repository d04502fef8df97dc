#include "ui/horoscope/planet_sheet_panel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QShortcut>
#include <QToolButton>

#include "ui/base/icon.h"
#include "ui/base/keys.h"
#include "ui/base/labels.h"
#include "ui/base/scaled.h"
#include "ui/horoscope/planet_sheet_view.h"

namespace orvex::ui {

namespace {

constexpr int kPanelWidth = 330;

QToolButton* MakeCloseButton() {
  auto* close = new QToolButton;
  close->setObjectName("closeSheet");
  close->setIcon(Icon("close"));
  close->setAutoRaise(true);
  close->setToolTip(WithKeys(QObject::tr("Close"), KeysOf("Horoscope", "closeSheet")));
  close->setAccessibleName(QObject::tr("Close the sheet of the planet"));
  return close;
}

}  // namespace

PlanetSheetPanel::PlanetSheetPanel(HoroscopeDocument& document)
    : document_(document), room_(new QScrollArea) {
  setObjectName("planetPanel");
  setBackgroundRole(QPalette::Base);
  setAutoFillBackground(true);
  QToolButton* close = MakeCloseButton();
  connect(close, &QToolButton::clicked, this, &QWidget::hide);
  auto* escape = new QShortcut(KeysOf("Horoscope", "closeSheet"), this);
  connect(escape, &QShortcut::activated, this, &QWidget::hide);
  room_->setObjectName("planetPanelRoom");
  room_->setFrameShape(QFrame::NoFrame);
  room_->setWidgetResizable(true);
  room_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  room_->setFocusPolicy(Qt::NoFocus);
  room_->viewport()->setBackgroundRole(QPalette::Base);
  auto* head = new QHBoxLayout;
  head->addWidget(MakeHeading(tr("Planet")), 1);
  head->addWidget(close);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(space::kM, space::kXs, space::kXs, space::kXs);
  layout->setSpacing(space::kXs);
  layout->addLayout(head);
  layout->addWidget(room_, 1);
  setFixedWidth(Scaled(kPanelWidth));
  hide();
}

void PlanetSheetPanel::ShowPlanet(std::size_t row) {
  row_ = row;
  show();
  ShowModel();
}

void PlanetSheetPanel::ShowModel() {
  if (isHidden() || !row_ || *row_ >= document_.Model().PlanetTable.Rows.size()) {
    return;
  }
  const core::DateTime today = document_.Place().Session.Time.Today();
  auto* sheet = new PlanetSheetView(transit::ShowPlanetDetails(document_.Model(), *row_, today),
                                    SheetShape::Tall);
  sheet->setBackgroundRole(QPalette::Base);
  sheet->setAutoFillBackground(true);
  room_->setWidget(sheet);
}

}  // namespace orvex::ui
