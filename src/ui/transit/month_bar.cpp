#include "ui/transit/month_bar.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

#include "core/text.h"
#include "ui/base/icon.h"
#include "ui/base/keys.h"
#include "ui/base/moment_edit.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/scaled.h"
#include "ui/base/segments.h"
#include "ui/transit/month_picker.h"

namespace orvex::ui {

namespace {

constexpr int kTimeWidth = 92;
constexpr int kCityWidth = 150;

QPushButton* IconButton(const char* name, const char* icon, const QString& words) {
  QPushButton* button = MakeButton(name, {});
  button->setIcon(Icon(icon));
  button->setIconSize({kWordIcon, kWordIcon});
  button->setFixedSize(height::kSmallField, height::kSmallField);
  button->setAccessibleName(words);
  button->setToolTip(words);
  return button;
}

// A button that shows its icon tells its caption otherwise; the letter behind "&" stays its key.
void TellCaption(QPushButton& button, const std::string& caption, const QKeySequence& key) {
  QString bare = Shown(caption);
  bare.remove('&');
  button.setAccessibleName(bare);
  button.setToolTip(WithKeys(bare, key));
  button.setShortcut(QKeySequence::mnemonic(Shown(caption)));
}

QWidget* InARow(std::initializer_list<QWidget*> widgets) {
  auto* box = new QWidget;
  auto* row = new QHBoxLayout(box);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(space::kS);
  for (QWidget* widget : widgets) {
    row->addWidget(widget);
  }
  box->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
  return box;
}

}  // namespace

MonthBar::MonthBar()
    : previous_(IconButton("previousMonth", "left", {})),
      month_(MakeButton("monthTitle", {})),
      next_(IconButton("nextMonth", "right", {})),
      today_(MakeButton("thisMonth", tr("To&day"))),
      time_(new TimeEdit("transitTime", TimeEdit::Shows::Minutes)),
      city_(MakeButton("changeCity", {})),
      views_(new Segments({{"showBoth", tr("B&oth")},
                           {"showTable", tr("Ta&ble")},
                           {"showGraph", tr("Gra&ph")},
                           {"showChanges", tr("Cha&nges")}})),
      find_(MakeButton("findTransit", tr("&Find transit"))),
      calendar_(IconButton("monthCalendar", "calendar",
                           tr("Sign changes and stations of the month to a calendar"))),
      print_(IconButton("printMonth", "print", tr("Print…"))),
      left_(BuildMonths()),
      right_(BuildViews()),
      line_(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
  setObjectName("monthBar");
  line_->setContentsMargins(0, 0, 0, 0);
  line_->setSizeConstraint(QLayout::SetNoConstraint);
  line_->addWidget(left_, 0, Qt::AlignLeft);
  line_->addStretch(1);
  line_->addWidget(right_, 0, Qt::AlignLeft);
  TakeFonts();
  Connect();
}

QWidget* MonthBar::BuildMonths() {
  auto* at = new QLabel(tr("&at"));
  at->setBuddy(time_);
  auto* in = new QLabel(tr("in"));
  month_->setFlat(true);
  month_->setCursor(Qt::PointingHandCursor);
  time_->setAccessibleName(tr("Time of day"));
  connect(time_, &MomentEdit::Changed, time_, [this] { time_->setToolTip(time_->Words()); });
  city_->setIcon(Icon("place"));
  city_->setIconSize({kWordIcon, kWordIcon});
  for (QPushButton* button : {today_, city_}) {
    button->setFixedHeight(height::kSmallField);
  }
  time_->setFixedHeight(height::kSmallField);
  return InARow({previous_, month_, next_, today_, at, time_, in, city_});
}

QWidget* MonthBar::BuildViews() {
  find_->setIcon(Icon("find-transit"));
  find_->setIconSize({kWordIcon, kWordIcon});
  find_->setFixedHeight(height::kSmallField);
  find_->setToolTip(WithKeys(find_->text(), KeysOf(kMainWindow, "findTransit")));
  print_->setToolTip(WithKeys(tr("Print…"), KeysOf(kMainWindow, "printPage")));
  return InARow({views_, find_, calendar_, print_});
}

void MonthBar::Connect() {
  connect(previous_, &QPushButton::clicked, this, [this] { GoTo(previousTag_); });
  connect(next_, &QPushButton::clicked, this, [this] { GoTo(nextTag_); });
  BindKeys(*previous_, KeysOf(kMainWindow, "previousMonth"));
  BindKeys(*next_, KeysOf(kMainWindow, "nextMonth"));
  connect(month_, &QPushButton::clicked, this, &MonthBar::OpenPicker);
  connect(today_, &QPushButton::clicked, this, &MonthBar::TodayWanted);
  connect(city_, &QPushButton::clicked, this, &MonthBar::CityWanted);
  connect(views_, &Segments::ChosenChanged, this,
          [this](int view) { emit ViewWanted(static_cast<MonthView>(view)); });
  connect(find_, &QPushButton::clicked, this, &MonthBar::FindWanted);
  connect(calendar_, &QPushButton::clicked, this, &MonthBar::CalendarWanted);
  connect(print_, &QPushButton::clicked, this, &MonthBar::PrintWanted);
}

// The title keeps the width of the longest month, so that the buttons beside it stay in their
// places.
void MonthBar::TakeFonts() {
  month_->setFont(Theme::Serif(type::kName));
  const QFontMetrics metrics(month_->font());
  month_->setFixedWidth(metrics.horizontalAdvance("September 2026") + space::kL);
  month_->setFixedHeight(std::max(height::kSmallField, metrics.height()));
  time_->setFixedWidth(Scaled(kTimeWidth));
  city_->setMaximumWidth(Scaled(kCityWidth));
  const QString today = today_->text().remove('&');
  today_->setFixedWidth(today_->fontMetrics().horizontalAdvance(today) + space::kXl);
}

void MonthBar::ShowMonth(const transit::MonthGrid& month) {
  month_->setText(Shown(month.MonthLabel));
  month_->setAccessibleName(tr("%1: pick a month").arg(Shown(month.MonthLabel)));
  month_->setToolTip(tr("Pick a month and a year"));
  TellCaption(*previous_, month.Previous.Caption, KeysOf(kMainWindow, "previousMonth"));
  TellCaption(*next_, month.Next.Caption, KeysOf(kMainWindow, "nextMonth"));
  previous_->setEnabled(month.Previous.Offered);
  next_->setEnabled(month.Next.Offered);
  today_->setToolTip(Shown(month.ThisMonth.Caption));
  previousTag_ = month.Previous.Tag;
  nextTag_ = month.Next.Tag;
  tag_ = core::ReplaceAll(month.MonthLabel, " ", "*");
}

void MonthBar::ShowCity(const std::string& name) {
  const QString city = Shown(name);
  const int room = Scaled(kCityWidth) - kWordIcon - 3 * space::kS;
  city_->setText(
      QString(city_->fontMetrics().elidedText(city, Qt::ElideRight, room)).replace("&", "&&"));
  city_->setAccessibleName(tr("City: %1").arg(city));
  city_->setToolTip(tr("%1 - change the city").arg(city).toHtmlEscaped());
}

void MonthBar::MarkView(MonthView view) {
  const QSignalBlocker quiet(views_);
  views_->Choose(static_cast<int>(view));
}

void MonthBar::OfferBoth(bool room) {
  auto* both = findChild<QAbstractButton*>("showBoth");
  both->setEnabled(room);
  both->setToolTip(room ? tr("The grid and its graph beside each other")
                        : tr("Both need a wider window; F8 folds the sky"));
}

void MonthBar::GoTo(const std::string& tag) {
  if (const auto first = transit::MonthOfTag(tag)) {
    const core::DateParts parts = core::PartsOf(*first);
    emit MonthWanted(parts.Month, parts.Year);
  }
}

void MonthBar::OpenPicker() {
  const auto first = transit::MonthOfTag(tag_);
  if (first) {
    const core::DateParts parts = core::PartsOf(*first);
    auto* picker = new MonthPicker(parts.Month, parts.Year, *this);
    connect(picker, &MonthPicker::Picked, this, &MonthBar::MonthWanted);
    picker->OpenUnder(*month_);
  }
}

QSize MonthBar::minimumSizeHint() const {
  return {std::max(left_->minimumSizeHint().width(), right_->minimumSizeHint().width()),
          line_->minimumSize().height()};
}

void MonthBar::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const int wanted = left_->sizeHint().width() + right_->sizeHint().width() + 2 * space::kS;
  line_->setDirection(width() < wanted ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

void MonthBar::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange && line_ != nullptr) {
    TakeFonts();
  }
}

}  // namespace orvex::ui
