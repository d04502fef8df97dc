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

HelpBox::HelpBox(QWidget* parent) : QDialog(parent) {
  Fill(*this, "helpBox", tr("Orvex+ Help"),
       tr("<h3>First steps</h3><ol><li>Set your own city under Tools, Settings.</li>"
          "<li>Add a client (Ctrl+N): name, moment, city.</li>"
          "<li>Double-click a client to open the horoscope.</li></ol>"
          "<h3>Keys</h3><table cellpadding=\"3\">"
          "<tr><td>Ctrl+N</td><td>Add client</td></tr>"
          "<tr><td>Enter</td><td>View horoscope</td></tr>"
          "<tr><td>F2</td><td>Edit client</td></tr>"
          "<tr><td>Ctrl+Del</td><td>Delete client</td></tr>"
          "<tr><td>Ctrl+M</td><td>Move client to another group</td></tr>"
          "<tr><td>Ctrl+F</td><td>Filter clients</td></tr>"
          "<tr><td>Ctrl+I</td><td>Instant chart</td></tr>"
          "<tr><td>Ctrl+G</td><td>Add group</td></tr>"
          "<tr><td>Ctrl+T</td><td>Transits of the month; Enter shows a planet's hours</td></tr>"
          "<tr><td>Ctrl+Shift+F</td><td>Find transit</td></tr>"
          "<tr><td>Ctrl+H</td><td>Horas of a date</td></tr>"
          "<tr><td>F5</td><td>Sky of now</td></tr>"
          "<tr><td>Ctrl+C</td><td>Copy a table</td></tr>"
          "<tr><td>Ctrl+,</td><td>Settings</td></tr></table>"));
}

UpdateBox::UpdateBox(QWidget* parent) : QDialog(parent) {
  Fill(*this, "updateBox", tr("Check for Updates"),
       tr("<p>Current build: <b>%1</b></p><p>No newer build could be asked for: this build goes "
          "online for nothing. Releases come as source; pull and run <code>./run</code>.</p>")
           .arg(core::ProgramVersion()));
}

}  // namespace orvex::ui
