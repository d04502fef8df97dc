// The head of a table with a column a planet: its chip before its name.
#pragma once

#include <QHeaderView>

namespace orvex::ui {

class PlanetHeader final : public QHeaderView {
  Q_OBJECT

 public:
  explicit PlanetHeader(QWidget* parent = nullptr);

 protected:
  void paintSection(QPainter* painter, const QRect& rect, int section) const override;
};

}  // namespace orvex::ui
