// The house group of a matter in one line: main cusp, supporting, denying.
#pragma once

#include <QWidget>

#include "judgement/matters.h"
#include "ui/base/house_mark.h"

namespace orvex::ui {

// What a house is to a matter.
HouseRole RoleIn(const judgement::Matter& matter, int house);

class HouseGroupLine final : public QWidget {
  Q_OBJECT

 public:
  HouseGroupLine();

  void ShowMatter(const judgement::Matter& matter);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return {1, sizeHint().height()}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  // A word or the mark of a house.
  struct Part {
    QRect Box;
    QString Text;
    HouseRole Role = HouseRole::None;
  };
  std::vector<Part> LayOut() const;

  judgement::Matter matter_;
};

}  // namespace orvex::ui
