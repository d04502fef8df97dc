#include "ui/dialogs/ascendant_fields.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLineEdit>

#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/dialogs/switch_buttons.h"

namespace orvex::ui {

AscendantFields::AscendantFields()
    : choice_(MakeSwitch(this, {{"ascendantComputed", tr("C&omputed")},
                                {"ascendantByHand", tr("Entered by &hand")}})),
      degree_(Named(new QLineEdit, "ascendantDegree")) {
  degree_->setMaximumWidth(12 * kGrid);
  degree_->setPlaceholderText(tr("0 to 360"));
  degree_->setAccessibleName(tr("Degree of the Ascendant"));
  degree_->setEnabled(false);
  QHBoxLayout* row = SwitchLayout(*choice_);
  row->insertSpacing(2, kGrid);
  row->insertWidget(3, degree_);
  setLayout(row);
  connect(choice_->button(1), &QAbstractButton::toggled, degree_, &QWidget::setEnabled);
}

QWidget* AscendantFields::Computed() const { return choice_->button(0); }

void AscendantFields::ChooseComputed() { choice_->button(0)->setChecked(true); }

void AscendantFields::Fill(const chart::ClientForm& form) {
  choice_->button(form.AscendantByHand ? 1 : 0)->setChecked(true);
  degree_->setText(Shown(form.AscendantDegree));
}

void AscendantFields::CopyInto(chart::ClientForm& form) const {
  form.AscendantByHand = choice_->checkedId() == 1;
  form.AscendantDegree = Typed(degree_->text());
}

}  // namespace orvex::ui
