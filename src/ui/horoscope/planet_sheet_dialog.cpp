#include "ui/horoscope/planet_sheet_dialog.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/horoscope/planet_sheet_view.h"

namespace orvex::ui {

PlanetSheetDialog::PlanetSheetDialog(const transit::PlanetSheet& sheet, QWidget* parent)
    : QDialog(parent) {
  setObjectName("planetSheet");
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(Shown(sheet.Title));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addWidget(new PlanetSheetView(sheet, SheetShape::Wide), 1);
  layout->addWidget(buttons);
}

}  // namespace orvex::ui
