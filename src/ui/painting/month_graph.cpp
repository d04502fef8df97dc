#include "ui/painting/month_graph.h"

#include <QFontMetricsF>
#include <QLineF>
#include <algorithm>
#include <numeric>

#include "chart/zodiac_lookups.h"
#include "core/cell_colors.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::ui {

namespace {

constexpr double kCircle = 360;
constexpr double kSign = 30;
constexpr double kReach = 9;  // how far from a line or mark the pointer still means it

// From days and longitudes to the plot. A row stands in the middle of its day.
struct MonthScale {
  QRectF Plot;
  double DayWidth = 0;

  double X(double row) const { return Plot.left() + (row + 0.5) * DayWidth; }
  double Y(double longitude) const { return Plot.bottom() - longitude / kCircle * Plot.height(); }
  QPointF At(double row, double longitude) const { return {X(row), Y(longitude)}; }
};

// Across 360 degrees a longitude goes on counting, so that a step is never more than half a circle.
double Onward(double from, double to) {
  if (to - from > kCircle / 2) {
    return to - kCircle;
  }
  return to - from < -kCircle / 2 ? to + kCircle : to;
}

double WidestSign(const QFontMetricsF& metrics) {
  double widest = 0;
  for (int sign = 1; sign <= 12; ++sign) {
    widest = std::max(widest, metrics.horizontalAdvance(Shown(chart::RashiName(sign))));
  }
  return widest;
}

QRectF PlotIn(const QRectF& area, const QFont& font) {
  const QFontMetricsF metrics(font);
  const double line = metrics.height();
  return area.adjusted(WidestSign(metrics) + 3 * kAir, 3 * line + kAir,
                       -metrics.horizontalAdvance("MM") * 1.2 - 5 * kAir, -2 * line - 3 * kAir);
}

std::array<SignBand, 12> BandsOf(const MonthScale& scale, const QFont& font) {
  const QFontMetricsF metrics(font);
  std::array<SignBand, 12> bands;
  for (std::size_t i = 0; i < bands.size(); ++i) {
    const double from = kSign * static_cast<double>(i);
    bands.at(i).Box = QRectF(QPointF(scale.Plot.left(), scale.Y(from + kSign)),
                             QPointF(scale.Plot.right(), scale.Y(from)));
    GraphLabel& sign = bands.at(i).Sign;
    sign =
        LabelAt(Shown(chart::RashiName(static_cast<int>(i) + 1)), font, bands.at(i).Box.center());
    sign.Box.moveRight(scale.Plot.left() - kAir);
  }
  return bands;
}

QString TickText(core::DateTime day) {
  constexpr std::size_t kLetters = 2;
  return Shown(core::WholeText(core::PartsOf(day).Day) + "\n" +
               core::WeekdayName(day).substr(0, kLetters));
}

// Every day has its line; each, every second or every seventh is named, as the room allows.
std::vector<DayTick> TicksOf(const MonthPicture& picture, const MonthScale& scale,
                             const QFont& font) {
  const QFontMetricsF metrics(font);
  const double needed = metrics.horizontalAdvance("We") + kAir;
  int step = 1;
  for (const int wider : {2, 7}) {
    step = step * scale.DayWidth < needed ? wider : step;
  }
  std::vector<DayTick> ticks;
  for (std::size_t row = 0; row < picture.Days.size(); ++row) {
    DayTick tick{scale.X(static_cast<double>(row)), {}};
    if ((core::PartsOf(picture.Days[row]).Day - 1) % step == 0) {
      tick.Label = LabelAt(TickText(picture.Days[row]), font, {tick.X, 0});
      tick.Label.Box.moveTop(scale.Plot.bottom() + kAir);
    }
    ticks.push_back(std::move(tick));
  }
  return ticks;
}

// Adds the step to a row; at 0 and 360 degrees the run ends at the rim and another begins at the
// other one.
void AddStep(const MonthScale& scale, std::size_t row, double from, double to, LineRun& run,
             std::vector<LineRun>& done) {
  const double onward = Onward(from, to);
  const auto x = static_cast<double>(row);
  if (onward >= kCircle || onward < 0) {
    const double rim = onward < 0 ? 0 : kCircle;
    const double crossing = x - 1 + (rim - from) / (onward - from);
    run.Points << scale.At(crossing, rim);
    done.push_back(run);
    run.Points = QPolygonF{{scale.At(crossing, kCircle - rim)}};
  }
  run.Points << scale.At(x, to);
}

std::vector<LineRun> RunsOf(const transit::PlanetSeries& series, const MonthScale& scale) {
  std::vector<LineRun> runs;
  LineRun run{{{scale.At(0, series.Longitudes.front())}}, series.Retrograde.front()};
  for (std::size_t row = 1; row < series.Longitudes.size(); ++row) {
    AddStep(scale, row, series.Longitudes[row - 1], series.Longitudes[row], run, runs);
    if (series.Retrograde[row] != run.Retrograde) {
      const QPointF turn = run.Points.back();
      runs.push_back(run);
      run = {{{turn}}, series.Retrograde[row]};
    }
  }
  runs.push_back(run);
  return runs;
}

// A change of sign stands where the line crosses the border, on the side of the new sign; a station
// at the first day of the new motion.
QPointF MarkPoint(const transit::PlanetSeries& series, const transit::SeriesMark& mark,
                  const MonthScale& scale) {
  const auto x = static_cast<double>(mark.Row);
  const double to = series.Longitudes[mark.Row];
  if (mark.Kind == transit::MarkKind::Station) {
    return scale.At(x, to);
  }
  const double from = series.Longitudes[mark.Row - 1];
  const double onward = Onward(from, to);
  const auto sign = static_cast<double>(core::Floor(from / kSign));
  const bool forward = onward > from;
  const double border = kSign * (forward ? sign + 1 : sign);
  const double rim = forward && border >= kCircle ? 0 : !forward && border <= 0 ? kCircle : border;
  return scale.At(x - 1 + (border - from) / (onward - from), rim);
}

PlanetLine LineOf(const transit::PlanetSeries& series, const MonthScale& scale) {
  PlanetLine line{RunsOf(series, scale), {}, {}, {}};
  for (const transit::SeriesMark& mark : series.Marks) {
    line.Marks.push_back({MarkPoint(series, mark, scale), mark, series.Retrograde[mark.Row]});
  }
  line.End = line.Runs.back().Points.back();
  return line;
}

// The codes stand in one column beside the plot, in the order of the ends.
void PlaceCodes(const MonthPicture& picture, const QRectF& plot, const QFont& font,
                std::vector<PlanetLine>& lines) {
  std::vector<std::size_t> order(lines.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    return lines[a].End.y() < lines[b].End.y();
  });
  std::vector<double> wanted;
  for (const std::size_t i : order) {
    wanted.push_back(lines[i].End.y());
  }
  const QFontMetricsF metrics(font);
  const double half = metrics.height() / 2;
  const std::vector<double> centres =
      SpreadApart(wanted, metrics.height(), plot.top() + half, plot.bottom() - half);
  for (std::size_t i = 0; i < order.size(); ++i) {
    GraphLabel& code = lines[order[i]].Code;
    code =
        LabelAt(Shown(chart::PlanetCode(picture.Series[order[i]].Planet)), font, {0, centres[i]});
    code.Box.moveLeft(plot.right() + 4 * kAir);
  }
}

// What the marks mean, on the line of the title; without text where that leaves no room.
GraphLabel LegendOf(const MonthLayout& layout, const QFont& font) {
  GraphLabel legend =
      LabelAt("circle: change of sign  ·  R, D: turns retrograde, direct  ·  dashed: retrograde",
              font, layout.Title.Box.center());
  legend.Box.moveRight(layout.Plot.right());
  if (legend.Box.left() < layout.Title.Box.right() + 2 * kAir) {
    legend.Text.clear();
  }
  return legend;
}

double Distance(const QPointF& point, const QPointF& from, const QPointF& to) {
  const QPointF step = to - from;
  const double square = QPointF::dotProduct(step, step);
  const double part =
      square > 0 ? std::clamp(QPointF::dotProduct(point - from, step) / square, 0.0, 1.0) : 0;
  return QLineF(point, from + part * step).length();
}

double Distance(const QPointF& point, const PlanetLine& line) {
  double nearest = QLineF(point, line.End).length();
  for (const LineRun& run : line.Runs) {
    for (qsizetype i = 1; i < run.Points.size(); ++i) {
      nearest = std::min(nearest, Distance(point, run.Points[i - 1], run.Points[i]));
    }
  }
  return line.Code.Box.contains(point) ? 0 : nearest;
}

QString MarkHint(const MonthPicture& picture, const PlacedMark& mark) {
  const auto date = [&](std::size_t row) { return core::LongDateText(picture.Days[row], false); };
  return Shown(mark.Mark.Text + "\nbetween " + date(mark.Mark.Row - 1) + " and " +
               date(mark.Mark.Row));
}

// The column of the grid that a series was made from.
std::size_t ColumnOf(const MonthPicture& picture, const transit::PlanetSeries& series) {
  const std::vector<core::Column>& columns = picture.Grid.Columns;
  const auto found = std::find_if(columns.begin(), columns.end(), [&](const core::Column& column) {
    return column.Caption == series.Planet;
  });
  return static_cast<std::size_t>(found - columns.begin());
}

std::size_t RowAt(const MonthPicture& picture, const MonthLayout& layout, std::size_t line,
                  double x) {
  const double width = layout.Plot.width() / static_cast<double>(picture.Days.size());
  const auto rows = static_cast<std::int64_t>(picture.Series[line].Longitudes.size());
  return static_cast<std::size_t>(
      std::clamp<std::int64_t>(core::Floor((x - layout.Plot.left()) / width), 0, rows - 1));
}

// The cell tells sign, star and quarter, and ends with the degree within the sign.
QString CellHint(const MonthPicture& picture, const transit::CellPlace& place) {
  const core::Cell& cell = picture.Grid.Rows.at(place.Row).Cells.at(place.Column);
  return Shown(cell.Tooltip + "\n" + core::LongDateText(picture.Days[place.Row], false) + ", " +
               core::Split(cell.Text, ' ').back() + "°" +
               (cell.Foreground == core::kRed ? " retrograde" : ""));
}

const PlacedMark* MarkAt(const MonthLayout& layout, const QPointF& point) {
  double nearest = kReach;
  const PlacedMark* found = nullptr;
  for (const PlanetLine& line : layout.Lines) {
    for (const PlacedMark& mark : line.Marks) {
      const double distance = QLineF(point, mark.At).length();
      if (distance < nearest) {
        nearest = distance;
        found = &mark;
      }
    }
  }
  return found;
}

}  // namespace

MonthPicture PictureOfMonth(const transit::MonthGrid& grid, core::DateTime today) {
  MonthPicture picture{grid.Title + ", " + grid.MonthLabel, grid.Grid, {}, {}, {}};
  for (const core::Row& row : grid.Grid.Rows) {
    const auto day = core::ParseLongDateText(core::Split(row.Tag, '*').back());
    picture.Days.push_back(day.value());
    if (*day == today) {
      picture.Today = picture.Days.size() - 1;
    }
  }
  picture.Series = transit::MonthSeries(grid.Grid);
  return picture;
}

MonthLayout LayOutMonth(const MonthPicture& picture, const QFont& font, const QRectF& area) {
  MonthLayout layout;
  layout.Plot = PlotIn(area, font);
  const auto days = static_cast<double>(std::max<std::size_t>(picture.Days.size(), 1));
  const MonthScale scale{layout.Plot, layout.Plot.width() / days};
  const QFont small = Scaled(font, kSmallText);
  layout.Title = LabelAt(Shown(picture.Title), Heavy(font), {0, 0});
  layout.Title.Box.moveTopLeft({layout.Plot.left(), area.top() + kAir});
  layout.Legend = LegendOf(layout, small);
  layout.Bands = BandsOf(scale, font);
  layout.Days = TicksOf(picture, scale, small);
  for (const transit::PlanetSeries& series : picture.Series) {
    layout.Lines.push_back(LineOf(series, scale));
  }
  PlaceCodes(picture, layout.Plot, Heavy(font), layout.Lines);
  if (picture.Today) {
    layout.Today = scale.X(static_cast<double>(*picture.Today));
    layout.TodayLabel =
        LabelAt(Shown("Today, " + core::LongDateText(picture.Days[*picture.Today], true)), small,
                {*layout.Today, 0});
    layout.TodayLabel.Box.moveBottom(layout.Plot.top() - kAir / 2);
    layout.TodayLabel.Box = Within(layout.TodayLabel.Box, layout.Plot.left(), layout.Plot.right());
  }
  return layout;
}

std::optional<transit::CellPlace> CellAt(const MonthPicture& picture, const MonthLayout& layout,
                                         const QPointF& point) {
  double nearest = kReach;
  std::optional<transit::CellPlace> cell;
  for (std::size_t i = 0; i < layout.Lines.size(); ++i) {
    const double distance = Distance(point, layout.Lines[i]);
    if (distance < nearest) {
      nearest = distance;
      cell = transit::CellPlace{RowAt(picture, layout, i, point.x()),
                                ColumnOf(picture, picture.Series[i])};
    }
  }
  return cell;
}

QString MonthHint(const MonthPicture& picture, const MonthLayout& layout, const QPointF& point) {
  // A mark lies on its line: within reach, it is what is meant.
  if (const PlacedMark* mark = MarkAt(layout, point)) {
    return MarkHint(picture, *mark);
  }
  const auto cell = CellAt(picture, layout, point);
  return cell ? CellHint(picture, *cell) : QString();
}

}  // namespace orvex::ui
