// The rows of a dialog: a caption, its fields, and room below them for a hint or a refusal.
#pragma once

#include <QString>
#include <initializer_list>

class QFormLayout;
class QLabel;
class QWidget;

namespace orvex::ui {

// A caption whose underlined letter leads to its field.
QLabel* MakeFieldCaption(const QString& text, QWidget* field);

// An explanation in muted letters.
QLabel* MakeHint(const QString& text);

class FormRows {
 public:
  // The rows of a page.
  explicit FormRows(QWidget& page);

  // Fields side by side, those that stretch share what room is left; `below` may be null.
  void Add(const QString& caption, QWidget* buddy, std::initializer_list<QWidget*> fields,
           QWidget* below = nullptr);

  // Shows or hides the row in which a field lies.
  void SetVisible(const QWidget& field, bool visible);

 private:
  QFormLayout* layout_;
};

}  // namespace orvex::ui
