// The page "Matter": one question judged, from the sub lord of its cusp to the ranked periods. It
// never scrolls but for the list of the periods.
#pragma once

#include "judgement/kept_moment.h"
#include "ui/horoscope/horoscope_page.h"

class QHBoxLayout;
class QPushButton;

namespace orvex::ui {

class HouseGroupLine;
class LinkButton;
class MatterBox;
class MatterTable;
class PromisePanel;
class RankedPanel;
class Segments;

class MatterPage final : public HoroscopePage {
  Q_OBJECT

 public:
  explicit MatterPage(HoroscopeDocument& document);

  void ShowModel() override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QHBoxLayout* LayOutHead();
  void LayOut();
  void Connect();
  void Arrange();
  void ChooseMatter(std::int32_t id);
  void KeepMoment(bool kept);
  void EditGroups();
  void ShowTables(const judgement::Judgement& judged, const judgement::Matter& matter);
  bool OfBirth() const;
  judgement::KeptMoment Moment();
  QString KeptName() const;

  MatterBox* matter_;
  HouseGroupLine* group_;
  LinkButton* edit_;
  Segments* whose_;  // the ruling planets of birth, or of the moment of judgement
  Segments* part_;   // which part is in sight where not all have room
  PromisePanel* promise_;
  MatterTable* grades_;
  MatterTable* planets_;
  QPushButton* keep_;
  RankedPanel* ranked_;
  QWidget* upper_;
  std::optional<judgement::KeptMoment> kept_;
};

}  // namespace orvex::ui
