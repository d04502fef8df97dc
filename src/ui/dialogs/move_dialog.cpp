#include "ui/dialogs/move_dialog.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>

#include "practice/client_list.h"
#include "practice/groups.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

QLabel* PlainLabel(const QString& text, const char* name) {
  auto* label = new QLabel(text);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  return label;
}

}  // namespace

MoveDialog::MoveDialog(Workplace& place, std::int32_t clientId, const QString& clientName,
                       const QString& groupName, QWidget* parent)
    : FormDialog(place, "moveDialog", parent), clientId_(clientId), groups_(new QComboBox) {
  setWindowTitle(tr("Move to Group"));
  groups_->setObjectName("groups");
  for (const core::Row& group : practice::LoadGroups(place.Session).Rows) {
    groups_->addItem(Shown(group.Cells.front().Text), Shown(group.Tag));
  }
  auto* fields = new QFormLayout;
  fields->addRow(tr("Client:"), PlainLabel(clientName, "clientName"));
  fields->addRow(tr("From Group:"), PlainLabel(groupName, "fromGroup"));
  fields->addRow(tr("&To Group:"), groups_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addLayout(fields);
  layout->addLayout(MakeButtons(tr("&Move")));
  groups_->setFocus();
}

void MoveDialog::Save() {
  const std::int32_t group = IdOfTag(Typed(groups_->currentData().toString())).value_or(0);
  Finish(practice::MoveClient(Session(), clientId_, group));
}

}  // namespace orvex::ui
