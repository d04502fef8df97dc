#include "judgement/judge_matter.h"

#include "judgement/house_grades.h"
#include "judgement/matter_chain.h"
#include "judgement/matter_planets.h"
#include "judgement/rulers.h"

namespace orvex::judgement {

Judgement JudgeMatter(core::Session& session, const chart::HoroscopeModel& model,
                      const Matter& matter, const MomentOfJudgement& moment,
                      const PeriodWindow& window) {
  Judgement judgement;
  judgement.Rulers = RulersAt(session, moment);
  judgement.MatterChain = BuildMatterChain(model, matter);
  judgement.MatterCusps = BuildMatterCusps(model, matter);
  judgement.HouseGrades = BuildHouseGrades(model, matter);
  judgement.MatterPlanets =
      BuildMatterPlanets(model, matter, judgement.HouseGrades, judgement.Rulers);
  judgement.MatterPeriods =
      BuildMatterPeriods(chart::FullDashaTree(session.Reference, model, chart::TreeDepth::Antara),
                         judgement.MatterPlanets, model.Birth, window);
  return judgement;
}

}  // namespace orvex::judgement
