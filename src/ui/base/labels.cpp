#include "ui/base/labels.h"

#include <QEvent>

namespace orvex::ui {

QLabel* MakeHeading(const QString& text) {
  auto* heading = new QLabel(text);
  QFont font = heading->font();
  font.setWeight(QFont::DemiBold);
  heading->setFont(font);
  heading->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  return heading;
}

QLabel* MakeCaptionLabel(const QString& objectName) {
  auto* label = new QLabel;
  label->setObjectName(objectName);
  label->setTextFormat(Qt::PlainText);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

LinkButton::LinkButton(const QString& objectName) {
  setObjectName(objectName);
  setFlat(true);
  setAutoDefault(false);
  setCursor(Qt::PointingHandCursor);
  QFont underlined = font();
  underlined.setUnderline(true);
  setFont(underlined);
  TakeColor();
}

void LinkButton::changeEvent(QEvent* event) {
  QPushButton::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) {
    TakeColor();
  }
}

void LinkButton::TakeColor() {
  const QColor link = palette().color(QPalette::Link);
  if (palette().color(QPalette::ButtonText) != link) {
    QPalette colored = palette();
    colored.setColor(QPalette::ButtonText, link);
    setPalette(colored);
  }
}

}  // namespace orvex::ui
