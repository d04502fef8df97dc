#include "ui/dialogs/about_box.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

#include "core/startup.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

void Fill(QDialog& box, const char* name, const QString& title, const QString& richText) {
  box.setObjectName(name);
  box.setWindowTitle(title);
  auto* text = new QLabel(richText);
  text->setObjectName("text");
  text->setTextFormat(Qt::RichText);
  text->setWordWrap(true);
  text->setOpenExternalLinks(true);
  text->setTextInteractionFlags(Qt::TextBrowserInteraction);
  text->setMinimumWidth(56 * kGrid);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &box, &QDialog::reject);
  auto* layout = new QVBoxLayout(&box);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addWidget(text, 1);
  layout->addWidget(buttons);
}

}  // namespace

AboutBox::AboutBox(QWidget* parent) : QDialog(parent) {
  Fill(
      *this, "aboutBox", tr("About Orvex+"),
      tr("<h2>Orvex+ %1</h2><p>A workbench for astrologers of the Krishnamurti Paddhati school.</p>"
         "<p>Positions by the Swiss Ephemeris (Astrodienst AG). Places from GeoNames "
         "(geonames.org), licensed CC BY 4.0. Free software under the AGPL-3.0.</p>")
          .arg(core::ProgramVersion()));
}

UpdateBox::UpdateBox(QWidget* parent) : QDialog(parent) {
  Fill(*this, "updateBox", tr("Check for Updates"),
       tr("<p>Current build: <b>%1</b></p><p>No newer build could be asked for: this build goes "
          "online for nothing. Releases come as source; pull and run <code>./run</code>.</p>")
           .arg(core::ProgramVersion()));
}

}  // namespace orvex::ui
