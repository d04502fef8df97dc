#include "ui/base/angle_field.h"

#include <QLineEdit>

#include "ui/base/qt_text.h"

namespace orvex::ui {

void AcceptAngle(QLineEdit& field, AngleReader reader) {
  field.setToolTip(
      QLineEdit::tr("Decimal degrees, or as 18N31 or 18°31'N; south and west are "
                    "negative"));
  QObject::connect(&field, &QLineEdit::editingFinished, &field, [&field, read = std::move(reader)] {
    if (const std::optional<std::string> degrees = read(Typed(field.text()))) {
      field.setText(Shown(*degrees));
    }
  });
}

}  // namespace orvex::ui
