// An open horoscope and the moves of its reader. The pages of its window read the model from here
// and are told when it has changed.
#pragma once

#include <QObject>
#include <array>
#include <optional>
#include <string>

#include "chart/dasha.h"
#include "horoscope/create_horoscope.h"
#include "horoscope/recalculation.h"
#include "judgement/judge_matter.h"
#include "report/report_content.h"
#include "ui/base/workplace.h"

namespace orvex::ui {

// The three choices of the list of aspects.
enum class AspectFilter { All, Good, Hard };

// The styles of charts in the order in which a window turns to the next one.
struct StyleName {
  char Style;
  const char* Name;  // with its letter in menus
};

inline constexpr std::array<StyleName, 3> kChartStyles = {{
    {'N', QT_TRANSLATE_NOOP("QObject", "&North Indian")},
    {'E', QT_TRANSLATE_NOOP("QObject", "&East Indian")},
    {'S', QT_TRANSLATE_NOOP("QObject", "&South Indian")},
}};

// What the page of a matter shows: which matter, judged when, with the periods of which span.
struct JudgedMatter {
  judgement::Matter Matter;
  judgement::MomentOfJudgement Moment;
  judgement::PeriodWindow Window;
};

class HoroscopeDocument final : public QObject {
  Q_OBJECT

 public:
  HoroscopeDocument(Workplace& place, horoscope::OpenedHoroscope opened);

  Workplace& Place() { return place_; }
  const chart::HoroscopeModel& Model() const { return opened_.Model; }
  const horoscope::OpenedHoroscope& Opened() const { return opened_; }

  // 'N', 'E' or 'S'; a window begins with that of the settings.
  char Style() const { return style_; }
  void SetStyle(char style);

  // Reads the horoscope from a house, 1 to 12, as the first. The filter of the aspects stays.
  void Rotate(int house);

  // Shows a year of life, 1 to 120, in the annual chart.
  void ShowYear(int year);

  void SelectPeriod(chart::DashaLevel level, std::size_t row);

  // Selects what runs on a day, level by level, and tells of it once. False where no period of the
  // lists holds the day; then nothing changes.
  bool GoToDay(core::DateTime day);

  // Nothing until a matter was judged in this window.
  const std::optional<JudgedMatter>& Judged() const { return judged_; }
  // That matter as the section of the report, or of the sheet, for the horoscope as it is turned
  // now.
  std::optional<report::ReportSection> JudgedForReport() const;
  std::optional<report::ReportSection> JudgedForSheet() const;
  void KeepJudged(JudgedMatter judged) { judged_ = std::move(judged); }

  // The end of the Antara that ran when the horoscope was opened; "" where none did.
  const QString& RunningEnd() const { return runningEnd_; }

  // The planet that is marked in every chart and table, by its code; "" for none. A second choice
  // of the same planet takes the mark off.
  const QString& ChosenPlanet() const { return chosen_; }
  void ChoosePlanet(const QString& code);

  AspectFilter Filter() const { return filter_; }
  void FilterAspects(AspectFilter filter);

  void ReadRemediesAgain();
  void ReadSkyAgain();

  // The rows of the ruling planets at the present moment.
  core::Table RulingPlanetsNow();

  // The chart for a changed place or moment; the model stays as it is.
  horoscope::Recalculation Recalculate(const horoscope::RecalculationForm& form);

  // Asks the window to open the client's dialog with another birth time, by the birth's clock, and
  // a line for the comments.
  void TakeBirthTime(core::DateTime birth, const QString& comment) {
    emit BirthTimeTaken(birth, comment);
  }

 signals:
  void Changed();
  void PlanetChosen(const QString& code);
  void BirthTimeTaken(core::DateTime birth, const QString& comment);

 private:
  void ApplyFilter();

  Workplace& place_;
  horoscope::OpenedHoroscope opened_;
  char style_;
  QString chosen_;
  QString runningEnd_;
  std::optional<JudgedMatter> judged_;
  AspectFilter filter_ = AspectFilter::All;
};

}  // namespace orvex::ui
