#include "ui/horoscope/head_pane.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QMenu>
#include <QPainter>
#include <QToolButton>

#include "ui/base/elided_label.h"
#include "ui/base/keys.h"
#include "ui/base/labels.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/horoscope/periods_label.h"

namespace orvex::ui {

namespace {

constexpr const char* kBetween = " · ";
constexpr int kIcon = 16;

void SetInk(QWidget& widget, const QColor& color) {
  QPalette palette = widget.palette();
  if (palette.color(QPalette::WindowText) != color) {
    palette.setColor(QPalette::WindowText, color);
    widget.setPalette(palette);
  }
}

QString Joined(const QStringList& texts) {
  QStringList filled = texts;
  filled.removeAll(QString());
  return filled.join(kBetween);
}

}  // namespace

HeadPane::HeadPane(HoroscopeDocument& document)
    : document_(document),
      name_(new ElidedLabel("headName")),
      birth_(new ElidedLabel("headBirth")),
      rotated_(new QLabel),
      reset_(new QToolButton),
      facts_(new ElidedLabel("headFacts")),
      periods_(new PeriodsLabel(document)),
      question_(new ElidedLabel("HoraryQuestion")) {
  setObjectName("head");
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins(space::kM + 2, space::kXs, space::kM + 2, space::kXs);
  lines->setSpacing(2);
  lines->addLayout(first_ = MakeFirstLine());
  lines->addLayout(MakeSecondLine());
  lines->addWidget(question_);
  setMinimumHeight(height::kWindowHead);
}

QHBoxLayout* HeadPane::MakeFirstLine() {
  auto* line = new QHBoxLayout;
  line->setSpacing(space::kXs);
  name_->setFont(Theme::Serif(type::kName));
  line->addWidget(name_);
  line->addSpacing(space::kS);
  line->addWidget(birth_);
  line->addStretch(1);
  return line;
}

QHBoxLayout* HeadPane::MakeSecondLine() {
  auto* line = new QHBoxLayout;
  line->setSpacing(space::kS);
  rotated_->setObjectName("rotatedTo");
  rotated_->setFont(Theme::Text(type::kSmall, QFont::DemiBold));
  rotated_->setFrameShape(QFrame::Box);
  rotated_->setContentsMargins(space::kXs, 0, space::kXs, 0);
  reset_->setObjectName("backToFirstHouse");
  reset_->setText(tr("Reset to First House"));
  reset_->setToolTip(WithKeys(reset_->text(), KeysOf("Horoscope", "resetRotation")));
  reset_->setAutoRaise(true);
  connect(reset_, &QToolButton::clicked, this, &HeadPane::ResetWanted);
  for (QWidget* small : {static_cast<QWidget*>(facts_), static_cast<QWidget*>(periods_),
                         static_cast<QWidget*>(question_), static_cast<QWidget*>(reset_)}) {
    small->setFont(Theme::Text(type::kSmall));
  }
  line->addWidget(rotated_);
  line->addWidget(reset_);
  line->addWidget(facts_, 1);
  line->addWidget(periods_);
  return line;
}

QToolButton* HeadPane::AddButton(QAction* action) {
  auto* button = new QToolButton;
  button->setObjectName(action->objectName() + "Button");
  button->setDefaultAction(action);
  button->setAutoRaise(true);
  button->setIconSize({kIcon, kIcon});
  button->setMinimumHeight(height::kSmallField);
  button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  button->setAccessibleName(QString(action->text()).remove('&'));
  button->setFocusPolicy(Qt::TabFocus);
  if (action->menu() != nullptr) {
    button->setPopupMode(QToolButton::InstantPopup);
    connect(action, &QAction::triggered, button, &QToolButton::showMenu);
  }
  first_->addWidget(button);
  buttons_.push_back(button);
  return button;
}

void HeadPane::AddBefore(QWidget* widget) { first_->insertWidget(0, widget); }

void HeadPane::SetNarrow(bool narrow) {
  for (QToolButton* button : buttons_) {
    const bool plain = narrow || button->defaultAction()->text().isEmpty();
    button->setToolButtonStyle(plain ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon);
  }
}

bool HeadPane::IsRotated() const { return document_.Model().RotatedTo != 1; }

void HeadPane::ShowModel() {
  const chart::HoroscopeModel& model = document_.Model();
  const chart::HoroscopeCaptions& captions = model.Captions;
  name_->setText(Shown(model.Name));
  birth_->setText(Joined({Shown(captions.Date), Shown(captions.City) + Shown(captions.Offset)}));
  rotated_->setText(tr("Rotated to %1").arg(model.RotatedTo));
  rotated_->setVisible(IsRotated());
  reset_->setVisible(IsRotated());
  facts_->setText(
      Joined({tr("Ascendant %1").arg(Shown(captions.AscendantSign)), Shown(captions.Nakshatra),
              Shown(captions.Tithi), Shown(captions.YogaKaran)}));
  periods_->setText(Shown(captions.CurrentDBA));
  question_->setText(Shown(model.HoraryQuestion));
  question_->setVisible(model.Horary && !model.HoraryQuestion.empty());
  const Tokens& t = Theme::Now();
  SetInk(*facts_, t.Ink2);
  SetInk(*rotated_, t.Amber);
  QPalette link = reset_->palette();
  if (link.color(QPalette::ButtonText) != t.Accent) {
    link.setColor(QPalette::ButtonText, t.Accent);
    reset_->setPalette(link);
  }
  update();
}

void HeadPane::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::ApplicationPaletteChange) {
    ShowModel();
  }
}

void HeadPane::paintEvent(QPaintEvent* /*event*/) {
  const Tokens& t = Theme::Now();
  QPainter painter(this);
  painter.fillRect(rect(), IsRotated() ? t.AmberGround : t.Ground);
  if (IsRotated()) {
    painter.fillRect(QRect(0, 0, line::kWarning, height()), t.Amber);
  }
  painter.fillRect(QRect(0, height() - line::kHair, width(), line::kHair), t.Rule2);
}

}  // namespace orvex::ui
