// The head of a table in which the captions of houses stand as their marks.
#pragma once

#include <QHeaderView>

#include "ui/base/cell_painting.h"

namespace orvex::ui {

class HouseHeader final : public QHeaderView {
  Q_OBJECT

 public:
  explicit HouseHeader(QWidget* parent = nullptr);

  // A caption that is a figure stands by its role.
  void SetHouseRoles(HouseRoles roles);

 protected:
  void paintSection(QPainter* painter, const QRect& rect, int section) const override;

 private:
  HouseRoles roles_;
};

}  // namespace orvex::ui
