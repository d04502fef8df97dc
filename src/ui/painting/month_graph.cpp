#include "ui/painting/month_graph.h"

#include <QFontMetricsF>
#include <algorithm>
#include <numeric>

#include "chart/zodiac_lookups.h"
#include "core/exact_numbers.h"

namespace orvex::ui {

namespace {

MonthScale MonthScaleIn(const MonthPicture& picture, const QRectF& plot) {
  const auto days = static_cast<double>(std::max<std::size_t>(picture.Days.size(), 1));
  return {plot, plot.width() / days};
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
    bands.at(i).Box = scale.SignBox(static_cast<int>(i) + 1);
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
    step = step * scale.DayLength < needed ? wider : step;
  }
  std::vector<DayTick> ticks;
  for (std::size_t row = 0; row < picture.Days.size(); ++row) {
    DayTick tick{scale.At(static_cast<double>(row), 0).x(), {}};
    if ((core::PartsOf(picture.Days[row]).Day - 1) % step == 0) {
      tick.Label = LabelAt(TickText(picture.Days[row]), font, {tick.X, 0});
      tick.Label.Box.moveTop(scale.Plot.bottom() + kAir);
    }
    ticks.push_back(std::move(tick));
  }
  return ticks;
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

}  // namespace

MonthLayout LayOutMonth(const MonthPicture& picture, const QFont& font, const QRectF& area) {
  MonthLayout layout;
  layout.Plot = PlotIn(area, font);
  const MonthScale scale = MonthScaleIn(picture, layout.Plot);
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
    layout.Today = scale.At(static_cast<double>(*picture.Today), 0).x();
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
  return CellNear(picture, layout.Lines, MonthScaleIn(picture, layout.Plot), point);
}

QString MonthHint(const MonthPicture& picture, const MonthLayout& layout, const QPointF& point) {
  return HintNear(picture, layout.Lines, MonthScaleIn(picture, layout.Plot), point);
}

}  // namespace orvex::ui
