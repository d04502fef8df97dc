#include "ui/dialogs/refusal_line.h"

#include <QHBoxLayout>
#include <QLabel>
#include <utility>

#include "ui/base/calm_style.h"
#include "ui/base/icon.h"
#include "ui/base/named.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

constexpr const char* kBlockMark = "refusalBlock";

}  // namespace

RefusalLine::RefusalLine(QWidget* parent) : QWidget(parent), text_(Named(new QLabel, "refusal")) {
  const int size = text_->fontMetrics().height();
  auto* icon = new QLabel;
  icon->setPixmap(Icon("warn", IconInk::Now).pixmap(size));
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

void RefusalLine::Mark(QWidget* field) {
  const QPointer<QWidget> before = std::exchange(field_, field);
  for (QWidget* each : {before.data(), field}) {
    if (each != nullptr) {
      each->setProperty(kRefusedField, each == field);
      each->update();
    }
  }
}

void RefusalLine::ShowUnder(QWidget& field, const QString& text) {
  QWidget* block = BlockOf(field);
  if (block == nullptr) {
    return;
  }
  QPalette red = palette();
  red.setColor(QPalette::WindowText, Theme::Now().Now);
  text_->setPalette(red);
  text_->setText(text);
  Mark(&field);
  block->layout()->addWidget(this);
  show();
}

void RefusalLine::Clear() {
  Mark(nullptr);
  text_->clear();
  hide();
}

}  // namespace orvex::ui
