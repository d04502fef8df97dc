#include "ui/base/cell_text.h"

#include <array>

#include "core/exact_numbers.h"
#include "ui/base/qt_text.h"
#include "ui/painting/sign_letters.h"

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

constexpr int kHundred = 100;
constexpr int kMinutes = 60;
constexpr int kSignDegrees = 30;
constexpr int kCircle = 360;

QString TwoDigits(int value) { return Shown(core::PaddedWhole(value, 2)); }

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
  const std::optional<double> value = core::ParseNumber(Typed(text));
  if (!value || *value < 0 || *value >= kCircle) {
    return std::nullopt;
  }
  const int hundredths =
      static_cast<int>(core::RoundToWhole(*value * kHundred)) % (kCircle * kHundred);
  const int degrees = hundredths / kHundred;
  const QString sign = kSignLetters.at(static_cast<std::size_t>(degrees / kSignDegrees));
  const int within = degrees % kSignDegrees;
  const int rest = hundredths % kHundred;
  const int minutes = (rest * kMinutes + kHundred / 2) / kHundred;
  // What a whole minute is stored as.
  const bool whole = (minutes * kHundred + kMinutes / 2) / kMinutes == rest;
  if (whole) {
    return DegreeText{QString("%1°%2'").arg(within).arg(TwoDigits(minutes)), sign};
  }
  return DegreeText{QString("%1.%2").arg(within).arg(TwoDigits(rest)), sign};
}

}  // namespace orvex::ui
