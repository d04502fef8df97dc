#include "ui/main/client_card_panel.h"

#include <QAction>
#include <QHBoxLayout>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>
#include <algorithm>

#include "report/chart_cells.h"
#include "report/chart_picture.h"
#include "ui/base/calm_style.h"
#include "ui/base/chart_view.h"
#include "ui/base/elided_label.h"
#include "ui/base/icon.h"
#include "ui/base/keys.h"
#include "ui/base/labels.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/scaled.h"
#include "ui/base/theme.h"
#include "ui/main/period_bars.h"
#include "ui/main/remedy_list.h"

namespace orvex::ui {

namespace {

constexpr int kRest = 150;  // milliseconds
constexpr int kLeastChart = 204;
constexpr int kMostChart = 300;
constexpr double kChartPart = 0.5;  // of the width

ElidedLabel* SmallLine(const char* name) {
  auto* line = new ElidedLabel(name);
  line->setFont(Theme::Text(type::kSmall));
  return line;
}

// A picture of what a text is, and the text, which can be marked and copied.
QWidget* WithIcon(const char* icon, QLabel* text) {
  auto* picture = new QLabel;
  picture->setPixmap(Icon(icon, IconInk::Quiet).pixmap(kWordIcon, kWordIcon));
  auto* both = new QWidget;
  auto* line = new QHBoxLayout(both);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(space::kS);
  line->addWidget(picture);
  line->addWidget(text);
  return both;
}

QPushButton* CardButton(const char* name, const QString& word, const char* icon, IconInk ink) {
  QPushButton* button = MakeButton(name, word);
  button->setIcon(Icon(icon, ink));
  button->setIconSize({kWordIcon, kWordIcon});
  button->setMinimumHeight(height::kField);
  button->setFont(Theme::Text(type::kText, QFont::DemiBold));
  button->setMinimumWidth(button->sizeHint().width() + 2 * space::kS);
  return button;
}

}  // namespace

ClientCardPanel::ClientCardPanel(Workplace& place)
    : place_(place),
      body_(new QWidget),
      name_(new ElidedLabel("cardName")),
      move_(AddTool("cardMove", "move")),
      more_(AddTool("cardMore", "menu")),
      birth_(new ElidedLabel("cardBirth")),
      person_(SmallLine("cardPerson")),
      question_(SmallLine("cardQuestion")),
      open_(CardButton("cardOpen", tr("Open horoscope"), "chart", IconInk::OnAccent)),
      edit_(CardButton("cardEdit", tr("Edit"), "edit", IconInk::Text)),
      report_(CardButton("cardReport", tr("Report"), "export", IconInk::Text)),
      chart_(new ChartView("cardChart", Scaled(kLeastChart))),
      periodsTitle_(MakeHeading(tr("Running periods"))),
      periods_(new PeriodBars),
      ascendant_(SmallLine("cardAscendant")),
      moon_(SmallLine("cardMoon")),
      remedies_(new RemedyList(place)),
      commentsTitle_(MakeHeading(tr("Comments"))),
      comments_(MakeCaptionLabel("cardComments")),
      contact_(MakeContact()) {
  setObjectName("clientCard");
  name_->setFont(Theme::Serif(type::kName));
  comments_->setWordWrap(true);
  auto* column = new QVBoxLayout(body_);
  column->setContentsMargins(space::kL, space::kM, space::kL, space::kM);
  column->setSpacing(space::kXs);
  column->addLayout(MakeHead());
  for (QWidget* line : {birth_, person_, question_}) {
    column->addWidget(line);
  }
  column->addSpacing(space::kXs);
  column->addLayout(MakeButtons());
  column->addSpacing(space::kXs);
  column->addLayout(MakeChart());
  column->addSpacing(space::kXs);
  for (QWidget* part :
       std::initializer_list<QWidget*>{remedies_, commentsTitle_, comments_, contact_}) {
    column->addWidget(part);
  }
  column->addStretch(1);
  body_->setBackgroundRole(QPalette::Base);
  auto* bars = new QScrollArea;
  bars->setFrameShape(QFrame::NoFrame);
  bars->setWidgetResizable(true);
  bars->setFocusPolicy(Qt::NoFocus);
  bars->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  bars->setBackgroundRole(QPalette::Base);
  bars->setWidget(body_);
  body_->setMinimumWidth(1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(line::kHair, 0, 0, 0);
  layout->addWidget(bars);
  rest_.setSingleShot(true);
  rest_.setInterval(kRest);
  connect(&rest_, &QTimer::timeout, this, &ClientCardPanel::ShowCard);
  Clear();
}

QToolButton* ClientCardPanel::AddTool(const char* name, const char* icon) {
  auto* tool = Named(new QToolButton, name);
  tool->setIcon(Icon(icon));
  tool->setIconSize({kWordIcon, kWordIcon});
  tool->setAutoRaise(true);
  tool->setFocusPolicy(Qt::TabFocus);
  return tool;
}

QHBoxLayout* ClientCardPanel::MakeHead() {
  auto* head = new QHBoxLayout;
  head->addWidget(name_, 1);
  head->addWidget(move_);
  head->addWidget(more_);
  return head;
}

QHBoxLayout* ClientCardPanel::MakeButtons() {
  open_->setProperty(kFilledButton, true);
  auto* line = new QHBoxLayout;
  line->setSpacing(space::kS);
  for (QPushButton* button : {open_, edit_, report_}) {
    line->addWidget(button);
  }
  line->addStretch(1);
  return line;
}

QHBoxLayout* ClientCardPanel::MakeChart() {
  auto* facts = new QVBoxLayout;
  facts->setSpacing(space::kXs);
  for (QWidget* part :
       std::initializer_list<QWidget*>{periodsTitle_, periods_, ascendant_, moon_}) {
    facts->addWidget(part);
  }
  facts->addStretch(1);
  auto* row = new QHBoxLayout;
  row->setSpacing(space::kM);
  row->addWidget(chart_);
  row->addLayout(facts, 1);
  return row;
}

QWidget* ClientCardPanel::MakeContact() {
  mobile_ = MakeCaptionLabel("cardMobile");
  email_ = MakeCaptionLabel("cardEmail");
  auto* contact = new QWidget;
  auto* line = new QHBoxLayout(contact);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(space::kXl);
  line->addWidget(WithIcon("phone", mobile_));
  line->addWidget(WithIcon("mail", email_));
  line->addStretch(1);
  return contact;
}

void ClientCardPanel::SetActions(const Actions& actions) {
  const auto bind = [](QAbstractButton* button, QAction* action, const QString& word) {
    button->setAccessibleName(word);
    button->setToolTip(WithKeys(word, action->shortcut()));
    connect(button, &QAbstractButton::clicked, action, &QAction::trigger);
    connect(action, &QAction::changed, button,
            [action, button] { button->setEnabled(action->isEnabled()); });
  };
  bind(open_, actions.Open, tr("Open horoscope"));
  bind(edit_, actions.Edit, tr("Edit"));
  bind(report_, actions.Report, tr("Report"));
  bind(move_, actions.Move, WithKeys(actions.Move->text(), {}));
  auto* menu = new QMenu(this);
  menu->addActions(actions.Seldom);
  more_->setAccessibleName(tr("More"));
  more_->setToolTip(tr("More"));
  connect(more_, &QToolButton::clicked, menu,
          [this, menu] { menu->popup(more_->mapToGlobal(QPoint(0, more_->height()))); });
}

void ClientCardPanel::Choose(std::int32_t clientId, const QString& name, const QString& caption) {
  if (clientId != client_) {
    Clear();
  }
  client_ = clientId;
  name_->setText(name);
  more_->setEnabled(clientId != 0);
  remedies_->ShowRemedies(clientId, caption);
  caption_ = caption;
  if (clientId == 0) {
    rest_.stop();
  } else {
    rest_.start();
  }
}

void ClientCardPanel::Reload() {
  remedies_->ShowRemedies(client_, caption_);
  if (client_ != 0) {
    rest_.start();
  }
}

void ClientCardPanel::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  Reload();
}

// What is told of one client never stands beside the name of another.
void ClientCardPanel::Clear() {
  for (QLabel* line : std::initializer_list<QLabel*>{birth_, person_, question_, ascendant_, moon_,
                                                     comments_, mobile_, email_}) {
    line->clear();
  }
  chart_->SetPicture({});
  periods_->ShowPeriods({});
  for (QWidget* part : std::initializer_list<QWidget*>{question_, periodsTitle_, commentsTitle_,
                                                       comments_, contact_}) {
    part->hide();
  }
}

void ClientCardPanel::ShowCard() {
  if (!isVisible()) {
    return;
  }
  if (const auto card = horoscope::CardOf(place_.Session, client_)) {
    Fill(*card);
  }
}

void ClientCardPanel::Fill(const horoscope::ClientCard& card) {
  birth_->setText(Shown(card.Birth));
  person_->setText(Shown(card.Person));
  question_->setText(Shown(card.Question));
  question_->setVisible(!card.Question.empty());
  chart_->SetPicture(report::RashiPicture(report::BuildChartCells(card.Model),
                                          place_.Session.State.DefaultChartType));
  periods_->ShowPeriods(card.Periods);
  periodsTitle_->setVisible(!card.Periods.empty());
  ascendant_->setText(tr("Ascendant  %1").arg(Shown(card.Ascendant)));
  moon_->setText(tr("Moon  %1").arg(Shown(card.Moon)));
  comments_->setText(Shown(card.Comments));
  const bool comments = !card.Comments.empty();
  commentsTitle_->setVisible(comments);
  comments_->setVisible(comments);
  mobile_->setText(Shown(card.Mobile));
  email_->setText(Shown(card.Email));
  mobile_->parentWidget()->setVisible(!card.Mobile.empty());
  email_->parentWidget()->setVisible(!card.Email.empty());
  contact_->setVisible(!card.Mobile.empty() || !card.Email.empty());
}

void ClientCardPanel::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const int room = static_cast<int>((width() - 2 * space::kL) * kChartPart);
  const int side =
      std::clamp(room, std::min(Scaled(kLeastChart), std::max(120, room)), Scaled(kMostChart));
  chart_->setFixedSize(side, side);
}

void ClientCardPanel::paintEvent(QPaintEvent* /*event*/) {
  const Tokens& t = Theme::Now();
  QPainter painter(this);
  painter.fillRect(rect(), t.Sheet);
  painter.fillRect(QRect(0, 0, line::kHair, height()), t.Rule2);
}

}  // namespace orvex::ui
