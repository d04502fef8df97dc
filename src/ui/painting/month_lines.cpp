#include "ui/painting/month_lines.h"

#include <QLineF>
#include <algorithm>

#include "core/cell_colors.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::ui {

namespace {

constexpr double kCircle = 360;
constexpr double kSign = 30;
constexpr double kReach = 9;  // how far from a line or mark the pointer still means it

// Across 360 degrees a longitude goes on counting, so that a step is never more than half a circle.
double Onward(double from, double to) {
  if (to - from > kCircle / 2) {
    return to - kCircle;
  }
  return to - from < -kCircle / 2 ? to + kCircle : to;
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

// The cell tells sign, star and quarter, and ends with the degree within the sign.
QString CellHint(const MonthPicture& picture, const transit::CellPlace& place) {
  const core::Cell& cell = picture.Grid.Rows.at(place.Row).Cells.at(place.Column);
  return Shown(cell.Tooltip + "\n" + core::LongDateText(picture.Days[place.Row], false) + ", " +
               core::Split(cell.Text, ' ').back() + "°" +
               (cell.Foreground == core::kRed ? " retrograde" : ""));
}

const PlacedMark* MarkNear(const std::vector<PlanetLine>& lines, const QPointF& point) {
  double nearest = kReach;
  const PlacedMark* found = nullptr;
  for (const PlanetLine& line : lines) {
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

QPointF MonthScale::At(double row, double longitude) const {
  const double day = (row + 0.5) * DayLength;
  const double part = longitude / kCircle;
  return Days == DaysRun::Across ? QPointF(Plot.left() + day, Plot.bottom() - part * Plot.height())
                                 : QPointF(Plot.left() + part * Plot.width(), Plot.top() + day);
}

QRectF MonthScale::SignBox(int sign) const {
  const QPointF from = At(0, kSign * (sign - 1));
  const QPointF to = At(0, kSign * sign);
  QRectF box = Plot;
  if (Days == DaysRun::Across) {
    box.setTop(to.y());
    box.setBottom(from.y());
  } else {
    box.setLeft(from.x());
    box.setRight(to.x());
  }
  return box;
}

std::size_t MonthScale::RowAt(const QPointF& point, std::size_t rows) const {
  const double along = Days == DaysRun::Across ? point.x() - Plot.left() : point.y() - Plot.top();
  return static_cast<std::size_t>(std::clamp<std::int64_t>(core::Floor(along / DayLength), 0,
                                                           static_cast<std::int64_t>(rows) - 1));
}

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

PlanetLine LineOf(const transit::PlanetSeries& series, const MonthScale& scale) {
  PlanetLine line{RunsOf(series, scale), {}, {}, {}};
  for (const transit::SeriesMark& mark : series.Marks) {
    line.Marks.push_back({MarkPoint(series, mark, scale), mark, series.Retrograde[mark.Row]});
  }
  line.End = line.Runs.back().Points.back();
  return line;
}

std::optional<transit::CellPlace> CellNear(const MonthPicture& picture,
                                           const std::vector<PlanetLine>& lines,
                                           const MonthScale& scale, const QPointF& point) {
  double nearest = kReach;
  std::optional<transit::CellPlace> cell;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const double distance = Distance(point, lines[i]);
    if (distance < nearest) {
      nearest = distance;
      cell = transit::CellPlace{scale.RowAt(point, picture.Series[i].Longitudes.size()),
                                ColumnOf(picture, picture.Series[i])};
    }
  }
  return cell;
}

QString HintNear(const MonthPicture& picture, const std::vector<PlanetLine>& lines,
                 const MonthScale& scale, const QPointF& point) {
  // A mark lies on its line: within reach, it is what is meant.
  if (const PlacedMark* mark = MarkNear(lines, point)) {
    return MarkHint(picture, *mark);
  }
  const auto cell = CellNear(picture, lines, scale, point);
  return cell ? CellHint(picture, *cell) : QString();
}

}  // namespace orvex::ui
