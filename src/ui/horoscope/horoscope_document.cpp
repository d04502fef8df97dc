#include "ui/horoscope/horoscope_document.h"

#include <algorithm>
#include <array>

#include "chart/aspects.h"
#include "chart/transit_now.h"
#include "judgement/matter_section.h"
#include "panchang/sky_view.h"
#include "practice/remedies.h"
#include "ui/base/qt_text.h"
#include "ui/horoscope/period_columns.h"

namespace orvex::ui {

HoroscopeDocument::HoroscopeDocument(Workplace& place, horoscope::OpenedHoroscope opened)
    : place_(place), opened_(std::move(opened)), style_(place.Session.State.DefaultChartType) {
  const core::Table& antaras = Model().Periods.AntaraList;
  if (const auto row = chart::SelectedRow(antaras)) {
    runningEnd_ = Shown(antaras.At(*row, chart::PeriodColumn::EndDate).Text);
  }
}

void HoroscopeDocument::ChoosePlanet(const QString& code) {
  chosen_ = chosen_ == code ? QString() : code;
  emit PlanetChosen(chosen_);
}

void HoroscopeDocument::SetStyle(char style) {
  style_ = style;
  emit Changed();
}

void HoroscopeDocument::Rotate(int house) {
  horoscope::RotateNow(place_.Session, opened_, house);
  ApplyFilter();
  emit Changed();
}

void HoroscopeDocument::ShowYear(int year) {
  horoscope::ShowYear(opened_, year);
  emit Changed();
}

void HoroscopeDocument::SelectPeriod(chart::DashaLevel level, std::size_t row) {
  chart::SelectPeriod(place_.Session, opened_.Model, level, row);
  emit Changed();
}

bool HoroscopeDocument::GoToDay(core::DateTime day) {
  const chart::DashaTree& tree = Model().Periods;
  const std::array<const core::Table*, 4> lists = {&tree.DashaList, &tree.BhuktiList,
                                                   &tree.AntaraList, &tree.SookshmaList};
  if (!RowRunningOn(tree.DashaList, day)) {
    return false;
  }
  for (std::size_t level = 0; level < lists.size(); ++level) {
    if (const std::optional<std::size_t> row = RowRunningOn(*lists.at(level), day)) {
      chart::SelectPeriod(place_.Session, opened_.Model, static_cast<chart::DashaLevel>(level),
                          *row);
    }
  }
  emit Changed();
  return true;
}

void HoroscopeDocument::FilterAspects(AspectFilter filter) {
  filter_ = filter;
  ApplyFilter();
  emit Changed();
}

void HoroscopeDocument::ApplyFilter() {
  constexpr std::array<const char*, 3> kMarks = {"", "+", "-"};
  chart::LoadPlanetAspects(opened_.Model, place_.Session.State.AspectBands,
                           kMarks.at(static_cast<std::size_t>(filter_)));
}

void HoroscopeDocument::ReadRemediesAgain() {
  opened_.Model.RemedyTable = practice::LoadRemedies(place_.Session, Model().ClientId);
  emit Changed();
}

void HoroscopeDocument::ReadSkyAgain() {
  chart::BuildTransitNow(place_.Session, opened_.Model);
  emit Changed();
}

std::optional<report::ReportSection> HoroscopeDocument::JudgedForReport() const {
  if (!judged_) {
    return std::nullopt;
  }
  return judgement::SectionOfReport(judged_->Matter,
                                    judgement::JudgeMatter(place_.Session, Model(), judged_->Matter,
                                                           judged_->Moment, judged_->Window));
}

std::optional<report::ReportSection> HoroscopeDocument::JudgedForSheet() const {
  if (!judged_) {
    return std::nullopt;
  }
  return judgement::SectionOfSheet(judged_->Matter,
                                   judgement::JudgeMatter(place_.Session, Model(), judged_->Matter,
                                                          judged_->Moment, judged_->Window));
}

core::Table HoroscopeDocument::RulingPlanetsNow() {
  panchang::SkyView sky;
  panchang::GetCurrentTransit(place_.Session, sky);
  std::vector<core::Row>& rows = sky.SkyRulingPlanets.Rows;
  // The last row of the sky is the Part of Fortune, which the birth has in its captions.
  rows.resize(std::min(rows.size(), Model().RulingPlanets.Rows.size()));
  return sky.SkyRulingPlanets;
}

horoscope::Recalculation HoroscopeDocument::Recalculate(const horoscope::RecalculationForm& form) {
  return horoscope::Recalculate(place_.Session, Model(), form);
}

}  // namespace orvex::ui
