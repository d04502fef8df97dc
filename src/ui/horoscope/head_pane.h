// The captions above the pages of a horoscope.
#pragma once

#include <QWidget>
#include <vector>

#include "ui/horoscope/horoscope_document.h"

class QGridLayout;
class QLabel;

namespace orvex::ui {

class HeadPane final : public QWidget {
  Q_OBJECT

 public:
  explicit HeadPane(HoroscopeDocument& document);

  void ShowModel();

 private:
  void AddCaptions(QGridLayout& grid);
  void AddLine(QGridLayout& grid, int row);

  HoroscopeDocument& document_;
  std::vector<QLabel*> values_;
  QLabel* periods_ = nullptr;
  QLabel* question_ = nullptr;
};

}  // namespace orvex::ui
