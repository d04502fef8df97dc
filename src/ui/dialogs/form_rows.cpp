#include "ui/dialogs/form_rows.h"

#include <QAbstractButton>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>

#include "ui/base/theme.h"
#include "ui/dialogs/refusal_line.h"

namespace orvex::ui {

// A screen reader looks for a caption beside its field only; this one may stand elsewhere.
QLabel* MakeFieldCaption(const QString& text, QWidget* field) {
  auto* caption = new QLabel(text);
  caption->setBuddy(field);
  const bool says = qobject_cast<QAbstractButton*>(field) != nullptr;
  if (!text.isEmpty() && !says && field->accessibleName().isEmpty()) {
    field->setAccessibleName(QString(text).remove('&'));
  }
  return caption;
}

QLabel* MakeHint(const QString& text) {
  auto* hint = new QLabel(text);
  QPalette muted = hint->palette();
  muted.setColor(QPalette::WindowText, Theme::Muted());
  hint->setPalette(muted);
  hint->setFont(Theme::Text(type::kHead));
  return hint;
}

FormRows::FormRows(QWidget& page) : layout_(new QFormLayout(&page)) {
  layout_->setContentsMargins(0, kGrid, 0, 0);
  layout_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
}

void FormRows::Add(const QString& caption, QWidget* buddy, std::initializer_list<QWidget*> fields,
                   QWidget* below) {
  QWidget* block = RefusalLine::MakeBlock();
  auto* row = new QHBoxLayout;
  for (QWidget* field : fields) {
    const bool stretches = field->sizePolicy().horizontalPolicy() == QSizePolicy::Expanding;
    row->addWidget(field, stretches ? 1 : 0);
  }
  auto* column = qobject_cast<QVBoxLayout*>(block->layout());
  column->addLayout(row);
  if (below != nullptr) {
    column->addWidget(below);
  }
  layout_->addRow(MakeFieldCaption(caption, buddy), block);
}

void FormRows::SetVisible(const QWidget& field, bool visible) {
  layout_->setRowVisible(RefusalLine::BlockOf(field), visible);
}

}  // namespace orvex::ui
