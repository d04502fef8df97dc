#include "core/zodiac_division.h"

#include <array>
#include <set>

#include "core/exact_numbers.h"

namespace orvex::core {

namespace {

// Borders are whole seconds of arc.
constexpr int kCircle = 360 * 3600;
constexpr int kSign = 30 * 3600;
constexpr int kStar = kCircle / 27;
constexpr int kPada = kStar / 4;
constexpr int kHalfTithi = 6 * 3600;
constexpr int kCycleYears = 120;
constexpr int kHundredth = 36;

// Hundred-thousandths of a degree, the unit of the written borders.
constexpr int kUnitsOfHundredth = 1000;
constexpr double kUnitsOfDegree = 100000;
constexpr int kUnitsOfSign = 30 * 100000;

constexpr std::array<const char*, 15> kTithis = {
    "Padyami", "Vidiya", "Tadiya",  "Chavithi", "Panchimi", "Sashti",     "Saptami", "Ashtami",
    "Navami",  "Dasimi", "Ekadasi", "Dwadasi",  "Triodasi", "Chaturdasi", "Purnima"};

constexpr std::array<const char*, 7> kMovingKarans = {"Bava", "Balava", "Kaulava", "Taitila",
                                                      "Gara", "Vanija", "Vishti"};

int BeginUnits(int seconds) { return (seconds + kHundredth - 1) / kHundredth * kUnitsOfHundredth; }

// The last longitude of a row that goes up to the border `next`.
int EndUnits(int next) { return next == kCircle ? BeginUnits(next) : BeginUnits(next) - 1; }

std::string DegreesText(int units) { return DoubleText(units / kUnitsOfDegree); }

int SignAt(int seconds) { return seconds / kSign + 1; }

// The begins of all subs, in order, and the end of the circle.
std::set<int> SubBorders(const std::vector<DashaLord>& cycle) {
  std::set<int> borders;
  for (int sign = 0; sign <= 12; ++sign) {
    borders.insert(sign * kSign);
  }
  for (int star = 0; star < 27; ++star) {
    int at = star * kStar;
    for (std::size_t part = 0; part < cycle.size(); ++part) {
      borders.insert(at);
      at +=
          kStar * cycle[(static_cast<std::size_t>(star) + part) % cycle.size()].Years / kCycleYears;
    }
  }
  return borders;
}

// The lord of the sub that holds a second of arc.
std::string SubLordAt(const std::vector<DashaLord>& cycle, int seconds) {
  const auto star = static_cast<std::size_t>(seconds / kStar);
  int end = static_cast<int>(star) * kStar;
  for (std::size_t part = 0; part < cycle.size(); ++part) {
    const DashaLord& lord = cycle[(star + part) % cycle.size()];
    end += kStar * lord.Years / kCycleYears;
    if (seconds < end) {
      return lord.Name;
    }
  }
  return "";
}

// Half tithis are counted from 0 at the new moon.
std::string KaranOf(std::size_t half) {
  constexpr std::size_t kFirstMoving = 1;
  constexpr std::size_t kFirstFixed = 57;
  constexpr std::array<const char*, 3> kLastKarans = {"Shakuni", "Chatushpada", "Naga"};
  if (half < kFirstMoving) {
    return "Kimstughna";
  }
  if (half >= kFirstFixed) {
    return kLastKarans.at(half - kFirstFixed);
  }
  return kMovingKarans.at((half - kFirstMoving) % kMovingKarans.size());
}

struct TithiName {
  std::string Name;
  std::string Type;
};

TithiName TithiOf(std::size_t half) {
  const std::size_t tithi = half / 2;
  if (tithi == 14) {
    return {kTithis.back(), "P"};
  }
  if (tithi == 29) {
    return {"Amavasya", "A"};
  }
  return {kTithis.at(tithi % 15), tithi < 15 ? "S" : "K"};
}

}  // namespace

TsvTable DivideIntoSubs(const std::vector<DashaLord>& cycle,
                        const std::vector<std::string>& signLords) {
  TsvTable table{
      {"ascno", "ascpointbegin", "ascpointend", "rashilord", "rasilordno", "starlord", "sublord"},
      {}};
  const std::set<int> borders = SubBorders(cycle);
  int number = 0;
  for (auto border = borders.begin(); *border != kCircle;) {
    const int begin = *border;
    const int next = *++border;
    const auto star = static_cast<std::size_t>(begin / kStar);
    const int sign = SignAt(begin);
    table.Rows.push_back({WholeText(++number), DegreesText(BeginUnits(begin)),
                          DegreesText(EndUnits(next)),
                          signLords.at(static_cast<std::size_t>(sign) - 1), WholeText(sign),
                          cycle.at(star % cycle.size()).Name, SubLordAt(cycle, begin)});
  }
  return table;
}

TsvTable DivideIntoPadas() {
  TsvTable table{
      {"starid", "pada", "rashi", "startdegree", "enddegree", "startcdegree", "endcdegree"}, {}};
  for (int begin = 0; begin < kCircle; begin += kPada) {
    const int sign = SignAt(begin);
    const int signBegin = (sign - 1) * kUnitsOfSign;
    const int start = BeginUnits(begin);
    const int end = EndUnits(begin + kPada);
    table.Rows.push_back({WholeText(begin / kStar + 1), WholeText(begin / kPada % 4 + 1),
                          WholeText(sign), DegreesText(start - signBegin),
                          DegreesText(end - signBegin), DegreesText(start), DegreesText(end)});
  }
  return table;
}

TsvTable DivideIntoHalfTithis() {
  TsvTable table{{"tithi", "karan", "tithitype", "startdegree", "enddegree"}, {}};
  for (std::size_t half = 0; half < 60; ++half) {
    const int begin = static_cast<int>(half) * kHalfTithi;
    const TithiName tithi = TithiOf(half);
    table.Rows.push_back({tithi.Name, KaranOf(half), tithi.Type, DegreesText(BeginUnits(begin)),
                          DegreesText(EndUnits(begin + kHalfTithi))});
  }
  return table;
}

}  // namespace orvex::core
