#include "ui/dialogs/look_page.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QSpinBox>
#include <span>

#include "ui/base/named.h"
#include "ui/base/qt_text.h"

namespace orvex::ui {

namespace {

constexpr int kTextSizeStep = 5;

void FillWith(QComboBox& box, std::span<const core::SettingChoice> choices) {
  for (const core::SettingChoice& choice : choices) {
    box.addItem(choice.Text);
  }
}

}  // namespace

LookPage::LookPage()
    : degrees_(Named(new QComboBox, "DegreesShown")),
      textSize_(Named(new QSpinBox, "TextSize")),
      theme_(Named(new QComboBox, "Theme")) {
  FillWith(*degrees_, core::kShownDegreeChoices);
  FillWith(*theme_, core::kThemeChoices);
  textSize_->setRange(core::kLeastTextSize, core::kMostTextSize);
  textSize_->setSingleStep(kTextSizeStep);
  textSize_->setSuffix(" %");
  auto* words = new QLabel(
      tr("Open windows follow at once. The status line of a horoscope has its own degrees, on the "
         "page General; reports are always light and have the degrees as they are stored."));
  words->setWordWrap(true);
  auto* form = new QFormLayout(this);
  form->addRow(tr("&Degrees:"), degrees_);
  form->addRow(tr("Text si&ze:"), textSize_);
  form->addRow(tr("&Theme:"), theme_);
  form->addRow(words);
}

void LookPage::Fill(const core::SettingsForm& form) {
  degrees_->setCurrentText(Shown(form.DegreesShown));
  textSize_->setValue(Shown(form.TextSize).toInt());
  theme_->setCurrentText(Shown(form.Theme));
}

void LookPage::CopyInto(core::SettingsForm& form) const {
  form.DegreesShown = Typed(degrees_->currentText());
  form.TextSize = Typed(WholeText(textSize_->value()));
  form.Theme = Typed(theme_->currentText());
}

}  // namespace orvex::ui
