#include "ui/dialogs/group_dialog.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>

#include "practice/groups.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

GroupDialog::GroupDialog(Workplace& place, QWidget* parent)
    : FormDialog(place, "groupDialog", parent) {
  Build(tr("Add Group"), tr("&Add"));
}

GroupDialog::GroupDialog(Workplace& place, std::int32_t groupId, const QString& name,
                         QWidget* parent)
    : FormDialog(place, "groupDialog", parent), groupId_(groupId) {
  Build(tr("Edit Group"), tr("&Save"));
  name_->setText(name);
  name_->selectAll();
}

void GroupDialog::Build(const QString& title, const QString& action) {
  setWindowTitle(title);
  name_ = new QLineEdit;
  name_->setObjectName("groupName");
  name_->setMinimumWidth(32 * kGrid);
  auto* fields = new QFormLayout;
  fields->addRow(tr("Group &Name:"), name_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addLayout(fields);
  layout->addLayout(MakeButtons(action));
}

void GroupDialog::Save() {
  const std::string name = Typed(name_->text());
  Finish(groupId_ == 0 ? practice::AddGroup(Session(), name)
                       : practice::RenameGroup(Session(), groupId_, name));
}

}  // namespace orvex::ui
