// The promise of a matter: the chain of the main cusp's sub lord, what it says in a sentence, and
// the sub lords of the other cusps.
#pragma once

#include <QWidget>

#include "judgement/judge_matter.h"
#include "ui/horoscope/matter_table.h"

namespace orvex::ui {

class PromisePanel final : public QWidget {
  Q_OBJECT

 public:
  explicit PromisePanel(HoroscopeDocument& document);

  void Show(const judgement::Judgement& judged, const judgement::Matter& matter,
            const std::set<QString>& fruitful);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Arrange();
  void FitColumns(bool names);
  QString CuspNote(const judgement::Matter& matter) const;

  HoroscopeDocument& document_;
  MatterTable* chain_;
  QLabel* sentence_;
  MatterTable* cusps_;
};

}  // namespace orvex::ui
