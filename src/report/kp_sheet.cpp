#include "report/kp_sheet.h"

#include <algorithm>

#include "chart/dasha_tree.h"
#include "chart/planet_marks.h"
#include "chart/zodiac_lookups.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "exact/exact_tables.h"
#include "horoscope/exact_reading.h"

namespace orvex::report {

namespace {

using exact::ExactCuspColumn;
using exact::ExactPlanetColumn;
using horoscope::ExactReading;

constexpr std::array<const char*, chart::kHouses> kRoman = {
    "I", "II", "III", "IV", "V", "VI", "VII", "VIII", "IX", "X", "XI", "XII"};

core::Table PlanetsOf(const ExactReading& reading) {
  return ColumnsOf<ExactPlanetColumn>(
      reading.Planets,
      {ExactPlanetColumn::Planet, ExactPlanetColumn::R, ExactPlanetColumn::Position,
       ExactPlanetColumn::House, ExactPlanetColumn::SignLord, ExactPlanetColumn::StarLord,
       ExactPlanetColumn::SubLord, ExactPlanetColumn::SubSubLord});
}

// The significators are those of the stored chart's cusps.
core::Table CuspsOf(const ExactReading& reading, const core::Table& stored) {
  core::Table cusps = ColumnsOf<ExactCuspColumn>(
      reading.Cusps,
      {ExactCuspColumn::House, ExactCuspColumn::Position, ExactCuspColumn::SignLord,
       ExactCuspColumn::StarLord, ExactCuspColumn::SubLord, ExactCuspColumn::SubSubLord});
  cusps.Columns.push_back({"Significators"});
  for (std::size_t row = 0; row < cusps.Rows.size(); ++row) {
    cusps.Rows[row].Cells.emplace_back();
    if (row < stored.Rows.size()) {
      cusps.At(row, SheetCuspColumn::Significators).Text =
          stored.At(row, chart::CuspColumn::PlanetsSig).Text;
    }
  }
  return cusps;
}

// What stands at a longitude of the figure.
struct ChartMark {
  double Longitude = 0;
  std::string Text;
};

// "14°40'" of "14°40'45" Lib".
std::string ToTheMinute(const std::string& position) {
  return position.substr(0, position.find('\'') + 1);
}

std::vector<ChartMark> MarksOf(const ExactReading& reading) {
  std::vector<ChartMark> marks;
  for (std::size_t row = 0; row < reading.Cusps.Rows.size(); ++row) {
    marks.push_back({core::ToDouble(reading.Cusps.At(row, ExactCuspColumn::Longitude).Text),
                     std::string("(") + kRoman.at(row) + " " +
                         ToTheMinute(reading.Cusps.At(row, ExactCuspColumn::Position).Text) + ")"});
  }
  const core::Table& planets = reading.Planets;
  for (std::size_t row = 0; row < planets.Rows.size(); ++row) {
    const bool retrograde = !planets.At(row, ExactPlanetColumn::R).Text.empty();
    marks.push_back({core::ToDouble(planets.At(row, ExactPlanetColumn::Longitude).Text),
                     chart::PlanetCode(planets.At(row, ExactPlanetColumn::Planet).Text) +
                         (retrograde ? chart::kRetrogradeMark : "") + " " +
                         ToTheMinute(planets.At(row, ExactPlanetColumn::Position).Text)});
  }
  std::stable_sort(marks.begin(), marks.end(), [](const ChartMark& a, const ChartMark& b) {
    return a.Longitude < b.Longitude;
  });
  return marks;
}

// The sign of the first house: of its cusp, where there is none that of the stored chart.
int AscendantSign(const ExactReading& reading, const chart::BirthTables& birth) {
  if (!reading.Cusps.Rows.empty()) {
    return chart::RashiOfDegree(
        core::ToDouble(reading.Cusps.At(0, ExactCuspColumn::Longitude).Text));
  }
  return static_cast<int>(
      core::ParseWhole(birth.HouseTable.At(0, chart::HouseColumn::Rashi).Text).value_or(1));
}

ChartPicture FigureOf(const ExactReading& reading, int ascendant, char style) {
  ChartPicture figure{style == 'N' || style == 'E' ? style : 'S', "KP", {}};
  constexpr int kSigns = 12;
  const auto fieldOf = [&](int sign) -> PictureField& {
    const int place = figure.Style == 'N' ? (sign - ascendant + kSigns) % kSigns : sign - 1;
    return figure.Fields.at(static_cast<std::size_t>(place));
  };
  for (int sign = 1; sign <= kSigns; ++sign) {
    fieldOf(sign).Sign = core::WholeText(sign);
    fieldOf(sign).Ascendant = sign == ascendant;
  }
  for (const ChartMark& mark : MarksOf(reading)) {
    fieldOf(chart::RashiOfDegree(mark.Longitude)).Codes.push_back(mark.Text);
  }
  return figure;
}

ReportFacts SheetFactsOf(const std::vector<ReportScalar>& scalars,
                         const chart::HoroscopeModel& model, const ExactReading& reading) {
  return {
      {"Date and time", TextOf(scalars, "BIRTHDATE")},
      {"Place", TextOf(scalars, "BIRTHPLACE")},
      {"Latitude, longitude", TextOf(scalars, "LATITUDE") + ", " + TextOf(scalars, "LONGITUDE")},
      {"Offset", core::Trim(model.Captions.Offset)},
      {"Moment", reading.Moment},
      {"Ayanamsa (" + reading.Reading + ")", reading.Ayanamsa},
      {"Nakshatra", TextOf(scalars, "NAKSHATRA")},
      {"Tithi", TextOf(scalars, "PAKSHA") + " " + TextOf(scalars, "TITHI")},
      {"Yoga, karan", TextOf(scalars, "YOGA") + ", " + TextOf(scalars, "KARAN")},
      {"Dasha balance", TextOf(scalars, "DASHABALANCE")}};
}

}  // namespace

core::Table RunningPeriods(const core::ReferenceData& reference, const chart::HoroscopeModel& model,
                           core::DateTime now) {
  constexpr std::array<const char*, 4> kLevels = {"Dasha", "Bhukti", "Antara", "Sookshma"};
  core::Table periods{{{"Period"}, {"Planet"}, {"From"}, {"Until"}}, {}};
  const std::vector<chart::TreeRow> tree =
      chart::FullDashaTree(reference, model, chart::TreeDepth::Sookshma);
  const auto running = std::find_if(tree.begin(), tree.end(), [now](const chart::TreeRow& row) {
    return row.Start <= now && now < row.End;
  });
  if (running == tree.end()) {
    return periods;
  }
  for (std::size_t level = 0; level < kLevels.size(); ++level) {
    // Rows of one period stand together: those whose planets are the same down to its level.
    const auto same = [&](const chart::TreeRow& row) {
      return std::equal(row.Planets.begin(),
                        row.Planets.begin() + static_cast<std::ptrdiff_t>(level) + 1,
                        running->Planets.begin());
    };
    auto first = running;
    while (first != tree.begin() && same(*(first - 1))) {
      --first;
    }
    const auto last = std::find_if_not(running, tree.end(), same) - 1;
    core::Row& row = periods.AddRow();
    row.Cells[0].Text = kLevels.at(level);
    row.Cells[1].Text = running->Planets.at(level);
    row.Cells[2].Text = core::LongDateText(first->Start, true);
    row.Cells[3].Text = core::LongDateText(last->End, true);
  }
  return periods;
}

KpSheet SheetOf(core::Session& session, const horoscope::OpenedHoroscope& opened, char style) {
  const chart::HoroscopeModel& model = opened.Model;
  const ExactReading reading =
      horoscope::ReadToTheSecond(session, model, opened.Birth, exact::ReadingOf(session));
  const std::vector<ReportScalar> scalars = ScalarsOf(model);
  const core::ApplicationState& state = session.State;
  KpSheet sheet;
  sheet.Name = model.Name;
  sheet.Question = TextOf(scalars, "HORARYQUESTION");
  sheet.Astrologer = state.AstrologerName;
  sheet.Organization = state.AstrologerOrganization;
  sheet.Contact = state.AstrologerContactDetails;
  sheet.Date = core::LongDateText(session.Time.Today(), false);
  sheet.Facts = SheetFactsOf(scalars, model, reading);
  sheet.Figure = FigureOf(reading, AscendantSign(reading, opened.Birth), style);
  sheet.Message = reading.Message;
  sheet.Planets = PlanetsOf(reading);
  sheet.Cusps = CuspsOf(reading, opened.Birth.CuspTable);
  sheet.RulingPlanets = model.RulingPlanets;
  sheet.Periods = RunningPeriods(session.Reference, model, session.Time.Now());
  return sheet;
}

}  // namespace orvex::report
