#include "ui/painting/graph_style.h"

#include <QFontMetricsF>
#include <QLineF>
#include <algorithm>
#include <array>

namespace orvex::ui {

namespace {

struct PlanetShades {
  const char* Name;
  const char* OnLight;
  const char* OnDark;
};

constexpr std::array<PlanetShades, 9> kShades = {{{"Sun", "#c2570c", "#ffa057"},
                                                  {"Moon", "#55708a", "#c6d3df"},
                                                  {"Mercury", "#1f8a3b", "#74d68a"},
                                                  {"Venus", "#bb2f86", "#ff93cb"},
                                                  {"Mars", "#bd1e2c", "#ff7373"},
                                                  {"Jupiter", "#947000", "#f0cb55"},
                                                  {"Saturn", "#3144a8", "#95a6ff"},
                                                  {"Rahu", "#00707c", "#55d0dc"},
                                                  {"Ketu", "#7c4c2b", "#d0a27b"}}};

// Wishes that stand too near share their mean: each pool is a run of labels side by side.
struct Pool {
  double Sum = 0;
  std::size_t Count = 0;
  double Mean() const { return Sum / static_cast<double>(Count); }
};

std::vector<Pool> PoolsOf(const std::vector<double>& wanted, double gap) {
  std::vector<Pool> pools;
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    pools.push_back({wanted[i] - gap * static_cast<double>(i), 1});
    while (pools.size() > 1 && pools.back().Mean() < pools[pools.size() - 2].Mean()) {
      const Pool last = pools.back();
      pools.pop_back();
      pools.back().Sum += last.Sum;
      pools.back().Count += last.Count;
    }
  }
  return pools;
}

}  // namespace

const GraphColors& ColorsOn(Ground ground) {
  static const GraphColors light = {"#ffffff", "#f3f5f8", "#e1e6eb", "#8fa0b2",
                                    "#18202a", "#5f6b76", "#d8002f"};
  static const GraphColors dark = {"#212429", "#282d34", "#383f48", "#7d8a98",
                                   "#e8ecf0", "#9aa6b2", "#ff5470"};
  return ground == Ground::Dark ? dark : light;
}

QColor PlanetColor(const std::string& planet, Ground ground) {
  const auto* found = std::find_if(kShades.begin(), kShades.end(), [&](const PlanetShades& shades) {
    return planet == shades.Name;
  });
  if (found == kShades.end()) {
    return ColorsOn(ground).Text;
  }
  return ground == Ground::Dark ? found->OnDark : found->OnLight;
}

QColor Mixed(const QColor& color, const QColor& paper, double part) {
  const auto mix = [part](float a, float b) {
    return static_cast<float>(part * static_cast<double>(a) + (1 - part) * static_cast<double>(b));
  };
  return QColor::fromRgbF(mix(color.redF(), paper.redF()), mix(color.greenF(), paper.greenF()),
                          mix(color.blueF(), paper.blueF()));
}

QFont Scaled(const QFont& font, double factor) {
  QFont scaled = font;
  if (font.pixelSize() > 0) {
    scaled.setPixelSize(std::max(1, static_cast<int>(font.pixelSize() * factor)));
  } else {
    scaled.setPointSizeF(font.pointSizeF() * factor);
  }
  return scaled;
}

QFont Heavy(const QFont& font, double factor) {
  QFont heavy = Scaled(font, factor);
  heavy.setWeight(QFont::DemiBold);
  return heavy;
}

GraphLabel LabelAt(const QString& text, const QFont& font, const QPointF& middle) {
  GraphLabel label{text, QFontMetricsF(font).boundingRect(QRectF(), Qt::AlignCenter, text)};
  label.Box.moveCenter(middle);
  return label;
}

QRectF Within(QRectF box, double left, double right) {
  box.moveRight(std::min(box.right(), right));
  box.moveLeft(std::max(box.left(), left));
  return box;
}

std::vector<double> SpreadApart(const std::vector<double>& wanted, double gap, double low,
                                double high) {
  if (wanted.empty()) {
    return {};
  }
  const double gaps = static_cast<double>(wanted.size()) - 1;
  const double used = gaps > 0 ? std::min(gap, (high - low) / gaps) : 0;
  std::vector<double> centres;
  for (const Pool& pool : PoolsOf(wanted, used)) {
    for (std::size_t i = 0; i < pool.Count; ++i) {
      const double first = std::max(low, std::min(pool.Mean(), high - used * gaps));
      centres.push_back(first + used * static_cast<double>(centres.size()));
    }
  }
  return centres;
}

bool AddApart(std::vector<GraphLabel>& labels, GraphLabel label) {
  constexpr double kApart = 2;
  const QRectF room = label.Box.adjusted(-kApart, 0, kApart, 0);
  if (std::any_of(labels.begin(), labels.end(),
                  [&](const GraphLabel& other) { return other.Box.intersects(room); })) {
    return false;
  }
  labels.push_back(std::move(label));
  return true;
}

void DrawDay(QPainter& painter, double x, const QRectF& across, const QColor& color,
             const QColor& paper) {
  constexpr double kLine = 1.6;
  constexpr double kHalo = 3.6;
  const QLineF line(x, across.top(), x, across.bottom());
  painter.setPen(QPen(paper, kHalo, Qt::SolidLine, Qt::FlatCap));
  painter.drawLine(line);
  painter.setPen(QPen(color, kLine, Qt::SolidLine, Qt::FlatCap));
  painter.drawLine(line);
}

void DrawLabel(QPainter& painter, const GraphLabel& label, const QFont& font, const QColor& color) {
  const QFont before = painter.font();
  painter.setFont(font);
  painter.setPen(color);
  painter.drawText(label.Box, Qt::AlignCenter | Qt::TextDontClip, label.Text);
  painter.setFont(before);
}

}  // namespace orvex::ui
