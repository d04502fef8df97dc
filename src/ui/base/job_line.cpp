#include "ui/base/job_line.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

#include "ui/base/icon.h"
#include "ui/base/message_boxes.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr int kBarWidth = 160;
constexpr int kThousand = 1000;

}  // namespace

JobLine::JobLine(Workplace& place)
    : place_(place),
      text_(Named(new QLabel, "jobText")),
      bar_(Named(new QProgressBar, "jobBar")),
      cancel_(MakeButton("cancelJob", tr("Cancel"))),
      open_(MakeButton("openJob", tr("Open"))),
      openFolder_(MakeButton("openJobFolder", tr("Open folder"))),
      away_(MakeButton("endJob", {})) {
  setObjectName("job");
  text_->setTextFormat(Qt::PlainText);
  text_->setFont(Theme::Text(type::kHead));
  bar_->setRange(0, kThousand);
  bar_->setTextVisible(false);
  bar_->setFixedWidth(kBarWidth * Theme::TextSize() / 100);
  bar_->setMaximumHeight(space::kM);
  bar_->setAccessibleName(tr("Progress"));
  away_->setIcon(Icon("close"));
  away_->setToolTip(tr("Close"));
  away_->setAccessibleName(tr("Close"));
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(space::kXs);
  for (QWidget* part :
       std::initializer_list<QWidget*>{text_, bar_, cancel_, open_, openFolder_, away_}) {
    layout->addWidget(part);
  }
  connect(cancel_, &QToolButton::clicked, this, &JobLine::CancelWanted);
  connect(open_, &QToolButton::clicked, this, [this] { Open(file_); });
  connect(openFolder_, &QToolButton::clicked, this, [this] { Open(folder_); });
  connect(away_, &QToolButton::clicked, this, &QWidget::hide);
  hide();
}

QToolButton* JobLine::MakeButton(const char* name, const QString& text) {
  auto* button = Named(new QToolButton, name);
  button->setText(text);
  button->setAutoRaise(true);
  button->setFont(Theme::Text(type::kHead));
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

void JobLine::Begin(const QString& text) {
  text_->setText(text);
  bar_->setValue(0);
  for (QWidget* part : std::initializer_list<QWidget*>{open_, openFolder_, away_}) {
    part->hide();
  }
  bar_->show();
  cancel_->show();
  show();
}

void JobLine::ShowProgress(int thousandths) { bar_->setValue(thousandths); }

void JobLine::End(const QString& text, const std::filesystem::path& file,
                  const std::filesystem::path& folder) {
  text_->setText(text);
  file_ = file;
  folder_ = file.empty() ? folder : file.parent_path();
  bar_->hide();
  cancel_->hide();
  open_->setVisible(!file_.empty());
  openFolder_->setVisible(!folder_.empty());
  away_->show();
}

void JobLine::Open(const std::filesystem::path& file) {
  if (!place_.Files.OpenWithDesktop(file)) {
    Inform(place_.Session.Shown, "No program opens " + file.string() + " here.");
  }
}

}  // namespace orvex::ui
