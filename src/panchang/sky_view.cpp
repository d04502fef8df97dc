#include "panchang/sky_view.h"

#include <algorithm>
#include <array>

#include "astro/angle_text.h"
#include "astro/sun_events.h"
#include "chart/chart_moment.h"
#include "chart/ruling_planets.h"
#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "panchang/clock_text.h"
#include "panchang/current_hora.h"
#include "panchang/day_tables.h"
#include "panchang/kaals.h"
#include "panchang/next_change.h"
#include "panchang/sky_planets.h"
#include "panchang/tithi.h"

namespace orvex::panchang {

namespace {

constexpr std::size_t kSunRow = 0;
constexpr std::size_t kMoonRow = 1;

// The parts in which the view of a picked instant differs from the view of now.
struct ViewKind {
  const char* HoraLabel;
  bool ShowsRulingPlanets;
};

struct DishaShool {
  const char* ColorName;
  const char* Color;  // red, green, blue
};

// clang-format off
constexpr std::array<std::array<const char*, 2>, 7> kLabels = {{
    {"Sunrise/Sunset",  "Ritu/Masa"},
    {"Paksha/Tithi",    "Yoga/Karan"},
    {"Nakshatra/Rashi", "Pancha Pakshi"},
    {"Current Hora",    "Hora Mantra"},
    {"Rahu Kaal",       "Gulika Kaal"},
    {"Yamaganda Kaal",  "Tithi Ganapathi"},
    {"Brahma Muhurta",  "Abhijit Muhurta"},
}};

// Sunday first.
constexpr std::array<DishaShool, 7> kDishaShool = {{
    {"White",  "255, 255, 255"},
    {"Green",  "183, 218, 127"},
    {"Yellow", "254, 250, 133"},
    {"Blue",   "95, 181, 212"},
    {"Green",  "183, 218, 127"},
    {"Yellow", "254, 250, 133"},
    {"Blue",   "95, 181, 212"},
}};

constexpr std::array<const char*, 7> kRulers = {
    "Asc Sign Lord", "Asc Star Lord", "Asc Sub Lord", "Moon Sign Lord", "Moon Star Lord",
    "Moon Sub Lord", "Day Lord"};
// clang-format on

constexpr std::size_t kHoraRow = 3;

void WriteLabels(const ViewKind& kind, core::Table& panchang) {
  constexpr const char* kLabelColor = "006A94";
  panchang = {{{""}, {""}, {""}, {""}}, {}};
  for (std::size_t row = 0; row < kLabels.size(); ++row) {
    panchang.AddRow();
    core::Cell& first = panchang.At(row, PanchangColumn::Label1);
    first.Text = row == kHoraRow ? kind.HoraLabel : kLabels.at(row)[0];
    first.Foreground = kLabelColor;
    core::Cell& second = panchang.At(row, PanchangColumn::Label2);
    second.Text = kLabels.at(row)[1];
    second.Foreground = kLabelColor;
  }
}

const astro::SkyBody& BodyOf(const std::vector<astro::SkyBody>& bodies, std::string_view name) {
  const auto found = std::find_if(bodies.begin(), bodies.end(),
                                  [name](const astro::SkyBody& body) { return body.Name == name; });
  if (found == bodies.end()) {
    throw std::out_of_range("a body that is not in the sky");
  }
  return *found;
}

// The bodies of the instant. Without a node in use Ketu has nothing to stand opposite to.
std::vector<astro::SkyBody> Bodies(core::Session& session, astro::JulianDayUt day,
                                   SkyCaptions& captions) {
  const std::string mode(1, session.State.RahuKetuCalculation);
  std::vector<astro::SkyBody> bodies = astro::SkyBodiesAt(session.Ephemeris, day, mode);
  if (astro::NodeNumber(mode) == 0) {
    bodies.pop_back();
  } else {
    captions.NodeMode = std::string("Rahu/Ketu Mode: ") + (mode == "M" ? "Mean " : "True ");
  }
  return bodies;
}

// The ascendant's degree and its sub, and the caption of both.
const core::SubRow* Ascendant(core::Session& session, astro::JulianDayUt day, SkyView& view) {
  const core::ApplicationState& state = session.State;
  const astro::Cusps cusps =
      session.Ephemeris.SiderealHouses(day, chart::LookupDegree(state.UserCityLatitude),
                                       chart::LookupDegree(state.UserCityLongitude));
  const std::string degree = core::TwoDecimals(astro::DegreeToTheMinute(cusps[1]));
  view.AscDegree = core::ToSingle(degree);
  const core::SubRow& sub = chart::SubOfDegree(session.Reference, core::ToDouble(degree));
  view.Captions.Ascendant = "Current ASC: " + chart::RashiName(sub.RasiLordNo) + " (" + degree +
                            " | " + sub.RashiLord + "/" + sub.StarLord + "/" + sub.SubLord + ") ";
  return &sub;
}

float RoundedDegree(const PlanetPosition& position) {
  return core::ToSingle(core::TwoDecimals(position.Degree));
}

// The seven lords, joined with "*" in the captions.
void ComputeRulingPlanets(const core::ReferenceData& reference, SkyView& view) {
  const core::SubRow& ascendant =
      chart::SubOfDegree(reference, chart::LookupDegree(view.AscDegree));
  const core::SubRow& moon = chart::SubOfDegree(reference, chart::LookupDegree(view.MoonDegree));
  view.Captions.RulingPlanetsText =
      core::Join({ascendant.RashiLord, ascendant.StarLord, ascendant.SubLord, moon.RashiLord,
                  moon.StarLord, moon.SubLord, view.Captions.WeekdayLord},
                 "*");
}

void AddRuler(core::Table& table, const std::string& description, const std::string& planet) {
  table.AddRow();
  const std::size_t row = table.Rows.size() - 1;
  table.At(row, SkyRulingColumn::Description).Text = description;
  table.At(row, SkyRulingColumn::Planet).Text = planet;
}

// The seven lords and the Part of Fortune, which stands in the planet table too.
void WriteRulersAndFortuna(const core::ReferenceData& reference, const ViewKind& kind,
                           SkyView& view) {
  view.SkyRulingPlanets = {{{"Description"}, {"Planet"}}, {}};
  const std::vector<std::string> lords = core::Split(view.Captions.RulingPlanetsText, '*');
  for (std::size_t i = 0; kind.ShowsRulingPlanets && i < kRulers.size(); ++i) {
    AddRuler(view.SkyRulingPlanets, kRulers.at(i), i < lords.size() ? lords[i] : "");
  }
  const std::string fortuna = core::TwoDecimals(chart::PartOfFortune(
      chart::LookupDegree(view.MoonDegree), chart::LookupDegree(view.AscDegree),
      chart::LookupDegree(view.SunDegree)));
  const double degree = core::ToDouble(fortuna);
  const core::SubRow& sub = chart::SubOfDegree(reference, degree);
  if (kind.ShowsRulingPlanets) {
    AddRuler(view.SkyRulingPlanets, "Fortuna (" + fortuna + ")",
             sub.RashiLord + "/" + sub.StarLord + "/" + sub.SubLord);
  }
  AddSkyPlanet(reference, view.SkyPlanets, "Fortuna", false,
               chart::StarOfDegree(reference, degree).Pada->Rashi, fortuna);
}

void WriteWeekday(core::DateTime now, const core::ApplicationState& state, SkyCaptions& captions) {
  const DishaShool& disha = kDishaShool.at(static_cast<std::size_t>(core::WeekdayNumber(now)) - 1);
  captions.DishaShool = std::string("Disha Shool Color: ") + disha.ColorName + " ";
  captions.DishaShoolColor = disha.Color;
  captions.Date = core::LongDateText(now, false);
  captions.City = state.UserCityName;
  captions.Place =
      core::SingleText(state.UserCityLatitude) + ", " + core::SingleText(state.UserCityLongitude);
}

// Sunrise, sunset and the length of the day. A text that is no clock time leaves the length 0.
void WriteSunTimes(core::DateTime now, core::ApplicationState& state, SkyView& view) {
  astro::ComputeSunTimes(state, now, state.UserCityOffset, state.UserCityLatitude,
                         state.UserCityLongitude);
  view.Captions.Sunrise = state.SunriseText;
  view.Captions.Sunset = state.SunsetText;
  view.DayMinutes = 0;
  core::Attempt([&] {
    view.DayMinutes =
        MinutesBetween(ClockOn(now, state.SunriseText), ClockOn(now, state.SunsetText));
  });
}

void WriteTithi(const core::ReferenceData& reference, SkyView& view) {
  const float moon = core::ToSingle(view.SkyPlanets.At(kMoonRow, SkyPlanetColumn::Degree).Text);
  const float sun = core::ToSingle(view.SkyPlanets.At(kSunRow, SkyPlanetColumn::Degree).Text);
  const std::vector<std::string> tithiKaran = core::Split(TithiKaranOf(reference, moon, sun), '*');
  view.Captions.Tithi = tithiKaran.at(0);
  view.Captions.YogaKaran = YogaOf(moon, sun) + " - " + tithiKaran.at(1);
}

// Waxing or waning and the bird of the Moon's star; a tithi of no half leaves both.
void WriteMoonStatus(SkyView& view) {
  const char half = view.Captions.Tithi.empty() ? ' ' : view.Captions.Tithi.front();
  const bool waxing = half == 'S' || half == 'P';
  if (!waxing && half != 'K' && half != 'A') {
    return;
  }
  view.Captions.MoonStatus = waxing ? "Moon Status: Waxing" : "Moon Status: Waning";
  view.Captions.PanchaPakshi = PanchaPakshiBird(
      view.SkyPlanets.At(kMoonRow, SkyPlanetColumn::Nakshatra).Text, waxing ? 'S' : 'K');
}

void WriteGanapathi(SkyCaptions& captions) {
  const std::size_t dash = captions.Tithi.find('-');
  const std::string name =
      dash == std::string::npos ? "" : core::Trim(captions.Tithi.substr(dash + 1));
  if (const Ganapathi* ganapathi = TithiGanapathi(name)) {
    captions.Ganapathi = ganapathi->Name;
    captions.GanapathiRuling = ganapathi->Ruling;
  }
}

std::string MoonPlaceText(const core::Table& planets) {
  const core::Cell& star = planets.At(kMoonRow, SkyPlanetColumn::Nakshatra);
  return star.Text + " (" + star.Tag + "), Pada " +
         planets.At(kMoonRow, SkyPlanetColumn::Pada).Text + " - " +
         planets.At(kMoonRow, SkyPlanetColumn::Rashi).Text;
}

// The kaals and muhurtas take the sunrise that the horas left in the session, with the day length
// of today: what is shown depends on that mismatch.
void WritePanchang(core::DateTime now, const core::ApplicationState& state, SkyView& view) {
  core::Table& table = view.Panchang;
  const SkyCaptions& captions = view.Captions;
  std::size_t row = 0;
  const auto write = [&](auto first, auto second) {
    core::Attempt([&] { table.At(row, PanchangColumn::Value1).Text = first(); });
    core::Attempt([&] { table.At(row, PanchangColumn::Value2).Text = second(); });
    ++row;
  };
  const auto text = [](const std::string& shown) { return [&shown] { return shown; }; };
  const auto kaal = [&](int slot) {
    return [&, slot] { return KaalText(slot, view.DayMinutes, state.SunriseText); };
  };
  const double sun = chart::LookupDegree(view.SunDegree);
  const KaalRow& kaals = KaalsOf(now);
  write([&] { return captions.Sunset.empty() ? "" : captions.Sunrise + " - " + captions.Sunset; },
        [&] { return RituOf(sun) + " - " + MasaOf(sun); });
  write(text(captions.Tithi), text(captions.YogaKaran));
  write([&] { return MoonPlaceText(view.SkyPlanets); }, text(captions.PanchaPakshi));
  write(text(captions.CurrentHora), text(captions.HoraMantra));
  write(kaal(kaals.RahuSlot), kaal(kaals.GulikaSlot));
  write(kaal(kaals.YamagandaSlot), text(captions.Ganapathi));
  write(
      [&] { return BrahmaMuhurtaText(state.SunriseText, now); },
      [&] { return AbhijitMuhurtaText(state.SunriseText, view.DayMinutes, captions.WeekdayName); });
}

// One complete recomputation. The order is part of the result: the two sun texts of the session are
// overwritten on the way, and later steps read what stands in them at that moment.
void Recompute(core::Session& session, SkyView& view, core::DateTime now, const ViewKind& kind) {
  const core::ReferenceData& reference = session.Reference;
  core::ApplicationState& state = session.State;
  SkyCaptions& captions = view.Captions;
  captions.WeekdayName = core::WeekdayName(now);
  captions.WeekdayLord = chart::DayLord(now);
  WriteLabels(kind, view.Panchang);
  view.SkyPlanets = EmptySkyPlanets();

  const astro::JulianDayUt day =
      session.Ephemeris.PrepareMoment(chart::PlainMomentUt(now, state.UserCityOffset)).JulianDayUT;
  const std::vector<astro::SkyBody> bodies = Bodies(session, day, captions);
  const std::vector<PlanetPosition> positions = UpdatePlanetPositions(session, bodies);
  captions.ReportTime = core::TimeSecondsAmPm(now);
  captions.SkyView = "Sky View at " + captions.ReportTime;
  const core::SubRow* ascendant = nullptr;
  core::Attempt([&] { ascendant = Ascendant(session, day, view); });
  core::Attempt([&] { core::SyncStore(session.StoreConnection); });
  session.Ephemeris.Close();

  core::Attempt([&] {
    view.SunDegree = RoundedDegree(positions.at(kSunRow));
    view.MoonDegree = RoundedDegree(positions.at(kMoonRow));
  });
  core::Attempt([&] { ComputeRulingPlanets(reference, view); });

  const auto addPlanet = [&](const std::string& name, bool retrograde, int rashi,
                             const std::string& degree) {
    core::Attempt(
        [&] { AddSkyPlanet(reference, view.SkyPlanets, name, retrograde, rashi, degree); });
  };
  for (const PlanetPosition& planet : positions) {
    addPlanet(planet.PlanetName, planet.InRetro, planet.Rashi, core::TwoDecimals(planet.Degree));
  }
  core::Attempt([&] { WriteRulersAndFortuna(reference, kind, view); });
  if (ascendant != nullptr) {
    addPlanet("ASC", false, ascendant->RasiLordNo, core::TwoDecimals(view.AscDegree));
  }
  for (const char* outer : {"Uranus", "Neptune", "Pluto"}) {
    const astro::SkyBody& body = BodyOf(bodies, outer);
    const std::string degree = core::TwoDecimals(body.Degree);
    addPlanet(body.Name, body.Retrograde, chart::RashiOfDegree(core::ToDouble(degree)), degree);
  }

  WriteWeekday(now, state, captions);
  WriteSunTimes(now, state, view);
  core::Attempt([&] { WriteTithi(reference, view); });
  captions.VikramSamvat = "Vikram Samvat " + core::WholeText(VikramSamvatYear(now));
  core::Attempt([&] { WriteMoonStatus(view); });
  WriteGanapathi(captions);

  BuildCurrentHora(session, view, now);  // leaves another day's sunrise in the session
  if (ascendant != nullptr) {
    view.SkyHouses = BuildSkyHouses(positions, ascendant->RasiLordNo);
  }
  WritePanchang(now, state, view);

  CheckCombustion(view.SkyPlanets);
  MarkCombustInHouses(view.SkyPlanets, view.SkyHouses);
  WriteSkyLords(reference, view.SkyPlanets);
  WriteDignities(reference, view.SkyPlanets);

  core::Attempt([&] {
    captions.AscendantNext = NextChangeText(session, exact::Point::Ascendant, now);
    captions.MoonNext = NextChangeText(session, exact::Point::Moon, now);
    session.Ephemeris.Close();
  });
}

}  // namespace

void GetCurrentTransit(core::Session& session, SkyView& view) {
  Recompute(session, view, session.Time.Now(), {"Current Hora", true});
}

void GetHeaderDetails(core::Session& session, SkyView& view, core::DateTime instant) {
  Recompute(session, view, instant, {"Hora", false});
}

}  // namespace orvex::panchang
