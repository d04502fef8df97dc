// The rail at the left edge: the button of the menus, the pages with their words, settings and the
// guide.
#pragma once

#include <QToolButton>

class QVBoxLayout;

namespace orvex::ui {

// An icon over a word; the chosen one stands on the sheet beside a bar.
class RailButton final : public QToolButton {
  Q_OBJECT

 public:
  RailButton(QAction* action, const QString& word, const char* icon);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString word_;
  const char* icon_;
};

class Rail final : public QWidget {
  Q_OBJECT

 public:
  Rail();

  QToolButton& MenuButton() { return *menu_; }

  // Buttons stand from the top down in the order in which they are added; those added at the foot
  // stand below them.
  void Add(QAction* action, const QString& word, const char* icon);
  void AddAtFoot(QAction* action, const QString& word, const char* icon);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QToolButton* menu_;
  QVBoxLayout* pages_;
  QVBoxLayout* foot_;
};

}  // namespace orvex::ui
