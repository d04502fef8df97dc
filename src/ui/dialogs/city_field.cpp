#include "ui/dialogs/city_field.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QTimer>

#include "core/home.h"
#include "ui/base/icon.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/dialogs/city_popup.h"

namespace orvex::ui {

CityField::CityField(Workplace& place, QWidget* parent) : QLineEdit(parent), place_(place) {
  setObjectName("city");
  setMinimumHeight(height::kField);
  addAction(Icon("place", IconInk::Quiet), QLineEdit::LeadingPosition)->setEnabled(false);
  setPlaceholderText(tr("Type the beginning of a name"));
  connect(this, &QLineEdit::textEdited, this, &CityField::FollowText);
}

// Read once the field is typed into: it takes a moment.
const practice::CitySearch& CityField::Search() {
  if (!search_) {
    search_ = std::make_unique<practice::CitySearch>(place_.Session, core::ShippedDataFolder());
  }
  return *search_;
}

CityPopup& CityField::Popup() {
  if (popup_ == nullptr) {
    popup_ = new CityPopup(window());
    connect(popup_, &CityPopup::Clicked, this, &CityField::TakeMarked);
    connect(popup_, &CityPopup::AddWanted, this, [this] {
      popup_->hide();
      emit AddWanted();
    });
    connect(popup_, &CityPopup::AllWanted, this, [this] {
      popup_->hide();
      emit AllWanted();
    });
  }
  return *popup_;
}

bool CityField::IsOpen() const { return popup_ != nullptr && popup_->isVisible(); }

void CityField::ShowCity(std::int32_t cityId) {
  const practice::FoundCity city =
      practice::CityOf(place_.Session, core::ShippedDataFolder(), cityId);
  cityId_ = city.Id;
  setText(city.Id == 0 ? "" : Shown(practice::CityText(city)));
}

void CityField::TakeCity(std::int32_t cityId) {
  ShowCity(cityId);
  emit CityTaken(cityId_);
}

void CityField::SearchAnew(const QString& name) {
  search_.reset();
  setText(name);
  setFocus();
  FollowText();
}

void CityField::FollowText() {
  constexpr std::size_t kMost = 20;
  cityId_ = 0;
  emit CityForgotten();
  DropDown(Search().Find(Typed(text()), kMost));
}

void CityField::DropDown(const practice::CitySearch::Result& found) {
  if (text().trimmed().isEmpty()) {
    Popup().hide();
    return;
  }
  Popup().ShowCities(found, text(), moment_);
  Popup().DropBelow(*this);
}

void CityField::TakeMarked() {
  const std::int32_t marked = popup_->Marked();
  popup_->hide();
  if (marked == 0) {
    emit AddWanted();
    return;
  }
  setFocus();
  TakeCity(marked);
}

// Tab takes the marked city on its way.
bool CityField::event(QEvent* event) {
  if (event->type() == QEvent::KeyPress && IsOpen() && popup_->Marked() != 0 &&
      dynamic_cast<QKeyEvent*>(event)->key() == Qt::Key_Tab) {
    TakeMarked();
  }
  return QLineEdit::event(event);
}

void CityField::keyPressEvent(QKeyEvent* event) {
  if (!IsOpen()) {
    if (event->key() == Qt::Key_Down && cityId_ == 0) {
      FollowText();
      return;
    }
    QLineEdit::keyPressEvent(event);
    return;
  }
  switch (event->key()) {
    case Qt::Key_Down:
    case Qt::Key_Up:
      popup_->MoveMark(event->key() == Qt::Key_Down ? 1 : -1);
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      TakeMarked();
      return;
    case Qt::Key_Escape:
      popup_->hide();
      return;
    default:
      QLineEdit::keyPressEvent(event);
  }
}

void CityField::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  // The next key begins another city.
  if (event->reason() == Qt::MouseFocusReason) {
    QTimer::singleShot(0, this, &QLineEdit::selectAll);
  }
}

void CityField::focusOutEvent(QFocusEvent* event) {
  if (IsOpen()) {
    popup_->hide();
  }
  QLineEdit::focusOutEvent(event);
}

}  // namespace orvex::ui
