#include "ui/painting/dasha_timeline.h"

#include <QFontMetricsF>
#include <algorithm>

#include "chart/dasha.h"
#include "chart/zodiac_lookups.h"
#include "core/text.h"

namespace orvex::ui {

namespace {

constexpr double kLowest = 14;  // of a bar
constexpr double kUsual = 44;   // up to here all room goes to the bars
constexpr std::array<const char*, kTimelineLevels> kLevelNames = {"Dasha", "Bhukti", "Antara"};

std::string DateText(core::DateTime date) { return core::LongDateText(date, true); }

std::optional<TimelinePeriod> PeriodOf(const std::string& planet, const core::Cell& end) {
  const std::vector<std::string> span = core::Split(end.Tag, '*');
  if (span.size() != 2) {
    return std::nullopt;
  }
  const auto from = core::ParseLongDateText(span[0]);
  const auto to = core::ParseLongDateText(span[1]);
  if (!from || !to || *to < *from) {
    return std::nullopt;
  }
  return TimelinePeriod{planet, *from, *to};
}

template <typename ColumnName>
TimelineLevel LevelOf(const core::Table& list, ColumnName planet, ColumnName end) {
  TimelineLevel level;
  for (std::size_t row = 0; row < list.Rows.size(); ++row) {
    const auto period = PeriodOf(list.At(row, planet).Text, list.At(row, end));
    if (!period) {
      return {};
    }
    level.Periods.push_back(*period);
  }
  level.Chosen = chart::SelectedRow(list);
  return level;
}

// The days of a level along its row.
struct DayScale {
  core::DateTime From;
  double Left = 0;
  double PerDay = 0;

  double X(core::DateTime day) const {
    return Left + PerDay * static_cast<double>(core::DaysBetween(From, day));
  }
};

DayScale ScaleOf(const TimelineLevel& level, const QRectF& axis) {
  const core::DateTime from = level.Periods.front().Start;
  const auto days = core::DaysBetween(from, level.Periods.back().End);
  return {from, axis.left(), axis.width() / static_cast<double>(std::max<std::int64_t>(days, 1))};
}

QString BarName(const std::string& planet, double width, const QFont& font) {
  const QFontMetricsF metrics(font);
  for (const std::string& name : {planet, chart::PlanetCode(planet)}) {
    if (metrics.horizontalAdvance(Shown(name)) + kAir <= width) {
      return Shown(name);
    }
  }
  return {};
}

void PlaceBars(const TimelineLevel& level, const DayScale& scale, const QFont& font,
               TimelineRow& row) {
  for (const TimelinePeriod& period : level.Periods) {
    const double left = scale.X(period.Start);
    TimelineBar bar{QRectF(left, row.Axis.top(), scale.X(period.End) - left, row.Axis.height()),
                    {}};
    bar.Name = BarName(period.Planet, bar.Box.width(), font);
    row.Bars.push_back(std::move(bar));
  }
}

// "5 Nov" above "2026".
GraphLabel DateLabel(core::DateTime date, double x, const QFont& font, const QRectF& axis) {
  QString text = Shown(DateText(date));
  text.replace(text.lastIndexOf(' '), 1, '\n');
  GraphLabel label = LabelAt(text, font, {x, 0});
  label.Box.moveTop(axis.bottom() + kAir);
  label.Box = Within(label.Box, axis.left(), axis.right());
  return label;
}

// The ends of the row and of the chosen period come first; the others where room is left.
void PlaceDates(const TimelineLevel& level, const DayScale& scale, const QFont& font,
                TimelineRow& row) {
  const auto add = [&](core::DateTime date) {
    AddApart(row.Dates, DateLabel(date, scale.X(date), font, row.Axis));
  };
  if (level.Chosen) {
    add(level.Periods.at(*level.Chosen).Start);
    add(level.Periods.at(*level.Chosen).End);
  }
  add(level.Periods.front().Start);
  add(level.Periods.back().End);
  for (const TimelinePeriod& period : level.Periods) {
    add(period.End);
  }
}

// The line of a day with its flag above the bars; nothing where the row does not reach it.
std::optional<double> PlaceDay(const std::string& what, core::DateTime day,
                               const TimelineLevel& level, const DayScale& scale, const QFont& font,
                               TimelineRow& row) {
  if (day < level.Periods.front().Start || day > level.Periods.back().End) {
    return std::nullopt;
  }
  const double x = scale.X(day);
  GraphLabel flag = LabelAt(Shown(what + ", " + DateText(day)), font, {x, 0});
  flag.Box.moveBottom(row.Axis.top() - kAir);
  flag.Box = Within(flag.Box, row.Axis.left(), row.Axis.right());
  AddApart(row.Flags, std::move(flag));
  return x;
}

// The planets of the chosen periods above a level, as "Venus / Moon".
std::string PathAbove(const TimelinePicture& picture, std::size_t level) {
  std::string path;
  for (std::size_t above = 0; above < level; ++above) {
    const TimelineLevel& upper = picture.Levels.at(above);
    if (upper.Chosen) {
      path += (path.empty() ? "" : " / ") + upper.Periods.at(*upper.Chosen).Planet;
    }
  }
  return path;
}

QString HeadingText(const TimelinePicture& picture, std::size_t level) {
  const std::string path = PathAbove(picture, level);
  return Shown(kLevelNames.at(level) + std::string("s") + (path.empty() ? "" : " of " + path));
}

// The heights of a row from its top: heading, flags, bars, dates of two lines, room to the next.
struct RowHeights {
  double Heading = 0;
  double Flags = 0;
  double Bars = 0;
  double Dates = 0;
  double Gap = 0;
  double All() const { return Heading + Flags + Bars + Dates + Gap; }
};

RowHeights HeightsIn(double height, const QFont& font) {
  constexpr double kShare = 0.6;
  const double line = QFontMetricsF(font).height();
  const double small = QFontMetricsF(Scaled(font, kSmallText)).lineSpacing();
  RowHeights heights{line, small + 2 * kAir, 0, 2 * small + kAir, 2 * kAir};
  const auto rows = static_cast<double>(kTimelineLevels);
  const double rest = (height - rows * heights.All() + heights.Gap) / rows;
  // What is left over is shared by the bars and by the gaps between them, so that the graph fills
  // its area.
  const double more = std::max(0.0, rest - kUsual);
  heights.Bars = std::clamp(rest, kLowest, kUsual) + kShare * more;
  heights.Gap += (1 - kShare) * more * rows / (rows - 1);
  return heights;
}

void FillRow(const TimelinePicture& picture, std::size_t index, const QFont& font,
             TimelineRow& row) {
  const TimelineLevel& level = picture.Levels.at(index);
  if (level.Periods.empty()) {
    return;
  }
  const DayScale scale = ScaleOf(level, row.Axis);
  const QFont small = Scaled(font, kSmallText);
  PlaceBars(level, scale, Heavy(font), row);
  PlaceDates(level, scale, small, row);
  row.Today = PlaceDay("Today", picture.Today, level, scale, small, row);
  if (index == 0) {
    row.Birth = PlaceDay("Birth", core::DateOnly(picture.Birth), level, scale, small, row);
  }
}

// From the foot of the chosen bar to the whole width of the row below.
QPolygonF OpeningOf(const TimelineLevel& level, const TimelineRow& upper,
                    const TimelineRow& lower) {
  if (!level.Chosen || upper.Bars.empty() || lower.Bars.empty()) {
    return {};
  }
  const QRectF& bar = upper.Bars.at(*level.Chosen).Box;
  return QPolygonF{
      {bar.bottomLeft(), bar.bottomRight(), lower.Axis.topRight(), lower.Axis.topLeft()}};
}

}  // namespace

TimelinePicture PictureOfDashas(const chart::HoroscopeModel& model, core::DateTime today) {
  using chart::DashaColumn;
  using chart::PeriodColumn;
  const chart::DashaTree& lists = model.Periods;
  TimelinePicture picture{model.Captions.Title, model.Birth, today, {}};
  picture.Levels = {LevelOf(lists.DashaList, DashaColumn::Planet, DashaColumn::EndDate),
                    LevelOf(lists.BhuktiList, PeriodColumn::Planet, PeriodColumn::EndDate),
                    LevelOf(lists.AntaraList, PeriodColumn::Planet, PeriodColumn::EndDate)};
  return picture;
}

std::optional<std::size_t> PeriodHolding(const TimelineLevel& level, core::DateTime day) {
  for (std::size_t row = 0; row < level.Periods.size(); ++row) {
    if (level.Periods[row].Start <= day && day < level.Periods[row].End) {
      return row;
    }
  }
  return std::nullopt;
}

TimelineLayout LayOutTimeline(const TimelinePicture& picture, const QFont& font,
                              const QRectF& area) {
  TimelineLayout layout;
  const QRectF inner = area.adjusted(3 * kAir, kAir, -3 * kAir, -kAir);
  layout.Title = LabelAt(Shown(picture.Title), Heavy(font, kTitleText), {0, 0});
  layout.Title.Box.moveTopLeft(inner.topLeft());
  double top = layout.Title.Box.bottom() + 2 * kAir;
  const RowHeights heights = HeightsIn(inner.bottom() - top, font);
  for (std::size_t level = 0; level < kTimelineLevels; ++level) {
    TimelineRow& row = layout.Rows.at(level);
    row.Axis =
        QRectF(inner.left(), top + heights.Heading + heights.Flags, inner.width(), heights.Bars);
    row.Heading = LabelAt(HeadingText(picture, level), Heavy(font), {0, 0});
    row.Heading.Box.moveTopLeft({inner.left(), top});
    FillRow(picture, level, font, row);
    if (level > 0) {
      row.Opening = OpeningOf(picture.Levels.at(level - 1), layout.Rows.at(level - 1), row);
    }
    top += heights.All();
  }
  return layout;
}

std::optional<BarPlace> BarAt(const TimelineLayout& layout, const QPointF& point) {
  for (std::size_t level = 0; level < kTimelineLevels; ++level) {
    const std::vector<TimelineBar>& bars = layout.Rows.at(level).Bars;
    for (std::size_t row = 0; row < bars.size(); ++row) {
      if (bars[row].Box.contains(point)) {
        return BarPlace{level, row};
      }
    }
  }
  return std::nullopt;
}

QString TimelineHint(const TimelinePicture& picture, const BarPlace& bar) {
  const TimelinePeriod& period = picture.Levels.at(bar.Level).Periods.at(bar.Row);
  const std::string path = PathAbove(picture, bar.Level);
  std::string hint = std::string(kLevelNames.at(bar.Level)) + " " +
                     (path.empty() ? "" : path + " / ") + period.Planet + "\n" +
                     DateText(period.Start) + " to " + DateText(period.End);
  if (period.Start >= picture.Birth) {
    hint += "\nAge at its beginning: " + core::AgeText(picture.Birth, period.Start).Text;
  }
  if (period.End >= picture.Birth) {
    hint += "\nAge at its end: " + core::AgeText(picture.Birth, period.End).Text;
  }
  return Shown(hint);
}

}  // namespace orvex::ui
