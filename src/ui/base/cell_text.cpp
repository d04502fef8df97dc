#include "ui/base/cell_text.h"

#include <array>

#include "chart/sign_degree.h"
#include "ui/base/qt_text.h"

namespace orvex::ui {

namespace {

struct PlanetWord {
  const char* Name;
  const char* Code;
};

constexpr std::array<PlanetWord, 9> kPlanets = {{{"Sun", "SU"},
                                                 {"Moon", "MO"},
                                                 {"Mars", "MA"},
                                                 {"Mercury", "ME"},
                                                 {"Jupiter", "JU"},
                                                 {"Venus", "VE"},
                                                 {"Saturn", "SA"},
                                                 {"Rahu", "RA"},
                                                 {"Ketu", "KE"}}};

bool& DegreesInSign() {
  static bool inSign = true;
  return inSign;
}

}  // namespace

QString CodeOfWord(const QString& word) {
  QString bare = word;
  bare.remove('*').remove('~').remove(',');
  for (const PlanetWord& planet : kPlanets) {
    if (bare.compare(QLatin1String(planet.Name), Qt::CaseInsensitive) == 0 ||
        bare == QLatin1String(planet.Code)) {
      return planet.Code;
    }
  }
  return {};
}

std::vector<CellPiece> PiecesOf(const QString& text) {
  std::vector<CellPiece> pieces;
  qsizetype at = 0;
  while (at < text.size()) {
    if (text.at(at).isSpace()) {
      ++at;
      continue;
    }
    const bool houses = text.at(at) == '(' && !pieces.empty() && !pieces.back().Code.isEmpty() &&
                        pieces.back().Houses.isEmpty() && text.indexOf(')', at) > at;
    if (houses) {
      const qsizetype end = text.indexOf(')', at);
      pieces.back().Houses = text.mid(at + 1, end - at - 1).trimmed();
      at = end + 1;
      continue;
    }
    qsizetype end = at;
    while (end < text.size() && !text.at(end).isSpace()) {
      ++end;
    }
    const QString word = text.mid(at, end - at);
    pieces.push_back({CodeOfWord(word), {}, word});
    at = end;
  }
  return pieces;
}

std::optional<DegreeText> DegreeInSign(const QString& text) {
  const auto degree = chart::SignDegreeOf(Typed(text));
  return degree ? std::optional(DegreeText{Shown(degree->Figures), Shown(degree->Sign)})
                : std::nullopt;
}

bool ShowsDegreesInSign() { return DegreesInSign(); }

void ShowDegreesInSign(bool inSign) { DegreesInSign() = inSign; }

std::optional<DegreeText> ShownDegree(const QString& text) {
  return ShowsDegreesInSign() ? DegreeInSign(text) : std::nullopt;
}

}  // namespace orvex::ui
