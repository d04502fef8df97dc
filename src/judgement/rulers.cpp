#include "judgement/rulers.h"

#include <algorithm>
#include <vector>

#include "chart/aspects.h"
#include "judgement/planet_marks.h"

namespace orvex::judgement {

namespace {

using exact::Point;

std::size_t PlaceOf(Point planet) { return static_cast<std::size_t>(planet); }

int SignOf(exact::Units units) { return static_cast<int>(units / exact::kUnitsOfSign) + 1; }

class RulersBuilder {
 public:
  RulersBuilder(const exact::ExactZodiac& zodiac, const RulerSky& sky)
      : zodiac_(zodiac), sky_(sky) {}

  core::Table Build() {
    const exact::Lords ascendant = zodiac_.LordsOf(sky_.Ascendant, exact::Depth::Sub);
    const exact::Lords moon = LordsOf(Point::Moon);
    Add("Asc Star", ascendant.Star);
    Add("Asc Sign", ascendant.Sign);
    Add("Moon Star", moon.Star);
    Add("Moon Sign", moon.Sign);
    AddDay();
    Add("Asc Sub", ascendant.Sub);
    Add("Moon Sub", moon.Sub);
    for (const Point node : {Point::Rahu, Point::Ketu}) {
      if (IsAgent(node)) {
        Add("Node", exact::PointName(node));
      }
    }
    return std::move(table_);
  }

 private:
  exact::Lords LordsOf(Point planet) const {
    return zodiac_.LordsOf(sky_.Planets.at(PlaceOf(planet)), exact::Depth::Sub);
  }

  bool IsRetrograde(const std::string& planet) const {
    const std::optional<Point> point = exact::PointOfName(planet);
    return point && CountsAsRetrograde(planet, sky_.Retrograde.at(PlaceOf(*point)));
  }

  std::string MarksOf(const std::string& planet) const {
    const exact::Lords lords = LordsOf(exact::PointOfName(planet).value());
    return MarksText(
        {IsRetrograde(planet), IsRetrograde(lords.Star), IsRetrograde(lords.Sub), false});
  }

  void Add(const std::string& role, const std::string& planet) {
    table_.Rows.push_back({{{role}, {planet}, {MarksOf(planet)}}, "", false});
  }

  void AddDay() {
    Add("Day", sky_.Day.BySunrise);
    if (sky_.Day.BySunrise != sky_.Day.ByCalendar) {
      std::string& marks = table_.At(table_.Rows.size() - 1, RulerColumn::Marks).Text;
      marks = "calendar day: " + sky_.Day.ByCalendar + (marks.empty() ? "" : ", " + marks);
    }
  }

  // Whether a planet stands in the node's sign or aspects it; the nodes are no agents of each
  // other.
  bool Touches(const std::string& planet, int nodeSign) const {
    const Point point = exact::PointOfName(planet).value();
    if (point == Point::Rahu || point == Point::Ketu) {
      return false;
    }
    const int places = (nodeSign - SignOf(sky_.Planets.at(PlaceOf(point))) + 12) % 12 + 1;
    return places == 1 || chart::AspectsPlace(planet, places);
  }

  bool IsAgent(Point node) const {
    const int sign = SignOf(sky_.Planets.at(PlaceOf(node)));
    const std::string lord = LordsOf(node).Sign;
    return std::any_of(
        table_.Rows.begin(), table_.Rows.begin() + static_cast<std::ptrdiff_t>(kStrongestRulers),
        [&](const core::Row& row) {
          const std::string& planet = row.Cells.at(core::Table::Index(RulerColumn::Planet)).Text;
          return planet == lord || Touches(planet, sign);
        });
  }

  const exact::ExactZodiac& zodiac_;
  const RulerSky& sky_;
  core::Table table_{{{"Role", 90}, {"Planet", 80}, {"Marks", 200}}, {}};
};

}  // namespace

RulerSky RulerSkyOf(core::Session& session, const MomentOfJudgement& moment) {
  const exact::ExactSky sky(session.Ephemeris, exact::ReadingOf(session),
                            session.State.RahuKetuCalculation);
  const core::DateTime ut = UtOf(moment);
  RulerSky result;
  result.Ascendant = exact::UnitsOf(sky.AscendantAt(ut, moment.Where));
  for (const Point planet : exact::kPlanets) {
    const astro::Position position = sky.PositionOf(planet, ut);
    result.Planets.at(PlaceOf(planet)) = exact::UnitsOf(position.Longitude);
    result.Retrograde.at(PlaceOf(planet)) = position.Speed < 0;
  }
  result.Day = LordOfDayAt(moment);
  return result;
}

core::Table BuildRulers(const exact::ExactZodiac& zodiac, const RulerSky& sky) {
  return RulersBuilder(zodiac, sky).Build();
}

core::Table RulersAt(core::Session& session, const MomentOfJudgement& moment) {
  return BuildRulers(exact::ExactZodiac(session.Reference), RulerSkyOf(session, moment));
}

}  // namespace orvex::judgement
