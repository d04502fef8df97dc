// The dashas of a life as bars, below them the bhuktis of the chosen dasha and the antaras of the
// chosen bhukti: where everything stands, and its painting.
#pragma once

#include <QPolygonF>
#include <array>
#include <optional>

#include "chart/horoscope_model.h"
#include "ui/painting/graph_style.h"

namespace orvex::ui {

// From midnight to midnight.
struct TimelinePeriod {
  std::string Planet;
  core::DateTime Start{};
  core::DateTime End{};
};

// The nine periods of a list and the one that it marks.
struct TimelineLevel {
  std::vector<TimelinePeriod> Periods;
  std::optional<std::size_t> Chosen;
};

inline constexpr std::size_t kTimelineLevels = 3;  // dasha, bhukti, antara
inline constexpr double kTitleText = 1.15;         // of the text

struct TimelinePicture {
  std::string Title;
  core::DateTime Birth{};
  core::DateTime Today{};
  std::array<TimelineLevel, kTimelineLevels> Levels;
};

// The lists of a horoscope as they stand. A list with a row that is no period is taken as empty.
TimelinePicture PictureOfDashas(const chart::HoroscopeModel& model, core::DateTime today);

// The period of a level that runs on a day, its start counted in and its end not; nothing where
// none does.
std::optional<std::size_t> PeriodHolding(const TimelineLevel& level, core::DateTime day);

struct TimelineBar {
  QRectF Box;
  QString Name;  // the planet, its code where the bar is narrow, "" where it is narrower still
};

struct TimelineRow {
  GraphLabel Heading;
  QRectF Axis;  // what all bars cover
  std::vector<TimelineBar> Bars;
  std::vector<GraphLabel> Dates;  // of the borders between the bars; those with room
  std::optional<double> Today;
  std::optional<double> Birth;
  std::vector<GraphLabel> Flags;  // what the lines of today and birth are
  QPolygonF Opening;              // from the chosen bar above to this row
};

struct TimelineLayout {
  GraphLabel Title;
  std::array<TimelineRow, kTimelineLevels> Rows;  // without bars where the level has no periods
};

TimelineLayout LayOutTimeline(const TimelinePicture& picture, const QFont& font,
                              const QRectF& area);

// A bar by its level and place in the row.
struct BarPlace {
  std::size_t Level = 0;
  std::size_t Row = 0;
};

// The bar at a point; nothing where there is none.
std::optional<BarPlace> BarAt(const TimelineLayout& layout, const QPointF& point);

// The planets from the dasha down to the bar, its dates and the ages at its ends.
QString TimelineHint(const TimelinePicture& picture, const BarPlace& bar);

// `cursor` is the level that the keys move in; nothing on paper.
void PaintTimeline(QPainter& painter, const QRectF& area, const TimelinePicture& picture,
                   Ground ground, std::optional<std::size_t> cursor);

}  // namespace orvex::ui
