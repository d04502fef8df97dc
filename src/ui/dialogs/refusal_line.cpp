#include "ui/dialogs/refusal_line.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

#include "ui/base/named.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr const char* kBlockMark = "refusalBlock";

}  // namespace

RefusalLine::RefusalLine(QWidget* parent) : QWidget(parent), text_(Named(new QLabel, "refusal")) {
  const int size = text_->fontMetrics().height();
  auto* icon = new QLabel;
  icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(size));
  QFont bold = text_->font();
  bold.setBold(true);
  text_->setFont(bold);
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(icon);
  row->addWidget(text_, 1);
  hide();
}

QWidget* RefusalLine::MakeBlock() {
  auto* block = new QWidget;
  block->setProperty(kBlockMark, true);
  auto* column = new QVBoxLayout(block);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(kGrid / 2);
  return block;
}

QWidget* RefusalLine::BlockOf(const QWidget& field) {
  QWidget* block = field.parentWidget();
  while (block != nullptr && !block->property(kBlockMark).toBool()) {
    block = block->parentWidget();
  }
  return block;
}

void RefusalLine::ShowUnder(const QWidget& field, const QString& text) {
  QWidget* block = BlockOf(field);
  if (block == nullptr) {
    return;
  }
  QPalette red = palette();
  red.setColor(QPalette::WindowText, Theme::Red());
  text_->setPalette(red);
  text_->setText(text);
  block->layout()->addWidget(this);
  show();
}

void RefusalLine::Clear() {
  text_->clear();
  hide();
}

}  // namespace orvex::ui
