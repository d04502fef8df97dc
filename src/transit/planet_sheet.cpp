#include "transit/planet_sheet.h"

#include <array>
#include <functional>

#include "chart/significators.h"
#include "chart/vastu_direction.h"
#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/cell_colors.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "vedic/bnn.h"
#include "vedic/karakas.h"
#include "vedic/vastu.h"

namespace orvex::transit {

namespace {

using chart::PlanetColumn;

constexpr const char* kNotKnown = "N/A";
constexpr const char* kLabelColor = "006A94";
constexpr const char* kRowColor = "F4F7FC";
constexpr int kWidth = 130;

// A horoscope and the planet that the sheet is of.
struct Subject {
  const chart::HoroscopeModel& Model;
  std::size_t Row;
  std::string Code;

  bool IsNode() const { return Code == "RA" || Code == "KE"; }
  std::string Text(PlanetColumn column) const { return chart::PlanetText(Model, Row, column); }
};

std::string OrNotKnown(const std::string& text) { return text.empty() ? kNotKnown : text; }

// The text of a column in the first row whose cell begins with the planet's code.
template <typename ColumnName>
std::string TextOfCode(const core::Table& table, const std::string& code, ColumnName key,
                       ColumnName wanted) {
  for (std::size_t row = 0; row < table.Rows.size(); ++row) {
    if (chart::PlanetCode(table.At(row, key).Text) == code) {
      return core::Trim(table.At(row, wanted).Text);
    }
  }
  return "";
}

std::string Dignity(const Subject& subject) {
  const std::string dignity = subject.Text(PlanetColumn::DbEx);
  if (dignity == "DB") {
    return "Debilitated";
  }
  return dignity == "EX" ? "Exalted" : kNotKnown;
}

std::string YesNo(bool yes) { return yes ? "Yes" : "No"; }

std::string LevelText(const Subject& subject, chart::LevelColumn column) {
  return OrNotKnown(
      TextOfCode(subject.Model.PlanetLevels, subject.Code, chart::LevelColumn::Planet, column));
}

std::string BnnText(const Subject& subject, vedic::BnnColumn column) {
  return TextOfCode(subject.Model.BnnTable, subject.Code, vedic::BnnColumn::Pln, column);
}

std::string ConjunctWith(const Subject& subject) {
  const std::optional<std::size_t> house = chart::HouseOfCode(subject.Model, subject.Code);
  if (!house) {
    return "None";
  }
  std::vector<std::string> others;
  for (const std::string& code :
       core::SplitWords(chart::HouseText(subject.Model, *house, chart::HouseColumn::RcPlanets))) {
    const std::optional<std::size_t> row = chart::RowOfCode(subject.Model, code);
    if (row && code != subject.Code) {
      others.push_back(chart::WithHouses(
          subject.Model, chart::PlanetText(subject.Model, *row, PlanetColumn::Planet)));
    }
  }
  return others.empty() ? "None" : core::Join(others, " ");
}

std::string CuspsSignified(const Subject& subject) {
  std::vector<std::string> cusps;
  const core::Table& table = subject.Model.CuspTable;
  for (std::size_t row = 0; row < table.Rows.size(); ++row) {
    if (core::Contains(table.At(row, chart::CuspColumn::PlanetsSig).Text, subject.Code)) {
      cusps.push_back(table.At(row, chart::CuspColumn::House).Text);
    }
  }
  return OrNotKnown(core::Join(cusps, " "));
}

std::string NadiHouses(const Subject& subject) {
  for (std::size_t row = 0; row < subject.Model.NadiTable.Rows.size(); ++row) {
    if (subject.Model.NadiTable.Rows[row].Tag == subject.Code) {
      return subject.Model.NadiTable.At(row, chart::NadiColumn::Planet).Tag;
    }
  }
  return "";
}

std::string Karaka(const Subject& subject) {
  return OrNotKnown(subject.IsNode()
                        ? ""
                        : TextOfCode(subject.Model.KarakaTable, subject.Code,
                                     vedic::KarakaColumn::Planet, vedic::KarakaColumn::Karaka));
}

struct Pair {
  const char* Label;
  std::function<std::string(const Subject&)> Value;
};

std::function<std::string(const Subject&)> PlanetCell(PlanetColumn column) {
  return [column](const Subject& subject) { return subject.Text(column); };
}

// In the order in which the sheet shows them, three a row.
const std::vector<Pair>& SheetPairs() {
  static const std::vector<Pair> kPairs = {
      {"Placed In/Degree",
       [](const Subject& s) {
         return s.Text(PlanetColumn::In) + " / " + s.Text(PlanetColumn::Degree);
       }},
      {"Rashi", PlanetCell(PlanetColumn::Rashi)},
      {"Ownership",
       [](const Subject& s) { return s.IsNode() ? kNotKnown : s.Text(PlanetColumn::Owner); }},
      {"Sign Lord", PlanetCell(PlanetColumn::SignLord)},
      {"Star Lord", PlanetCell(PlanetColumn::StarLord)},
      {"Sub Lord", PlanetCell(PlanetColumn::SubLord)},
      {"Nakshatra", PlanetCell(PlanetColumn::Nakshatra)},
      {"Pada", PlanetCell(PlanetColumn::Pada)},
      {"Gunas", PlanetCell(PlanetColumn::Gunas)},
      {"Debilitated/Exalted", Dignity},
      {"Retro", [](const Subject& s) { return YesNo(s.Text(PlanetColumn::R) == "R"); }},
      {"Combust", [](const Subject& s) { return YesNo(s.Text(PlanetColumn::C) == "C"); }},
      {"Star Lord Of",
       [](const Subject& s) { return LevelText(s, chart::LevelColumn::StarLordOf); }},
      {"Sub Lord Of", [](const Subject& s) { return LevelText(s, chart::LevelColumn::SubLordOf); }},
      {"Aspecting",
       [](const Subject& s) { return OrNotKnown(BnnText(s, vedic::BnnColumn::Aspecting)); }},
      {"BNN Seq", [](const Subject& s) { return BnnText(s, vedic::BnnColumn::BnnSeq); }},
      {"BNN Retro Seq",
       [](const Subject& s) { return OrNotKnown(BnnText(s, vedic::BnnColumn::BnnRetroSeq)); }},
      {"Conjunct With", ConjunctWith},
      {"Cusp(s) Signified", CuspsSignified},
      {"Nadi Significators", NadiHouses},
      {"Jamini Karaka", Karaka},
  };
  return kPairs;
}

core::Table MainTable(const Subject& subject) {
  core::Table table;
  table.Columns.assign(6, {"", kWidth});
  const std::vector<Pair>& pairs = SheetPairs();
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    if (i % 3 == 0) {
      for (core::Cell& cell : table.AddRow().Cells) {
        cell.Background = kRowColor;
      }
    }
    core::Cell& label = table.Rows.back().Cells.at(i % 3 * 2);
    label.Text = pairs[i].Label;
    label.Foreground = kLabelColor;
    core::Attempt(
        [&] { table.Rows.back().Cells.at(i % 3 * 2 + 1).Text = pairs[i].Value(subject); });
  }
  return table;
}

// Today counts into the Dasha at both ends.
void WriteDasha(const Subject& subject, core::DateTime today, PlanetSheet& sheet) {
  const core::Table& dashas = subject.Model.Periods.DashaList;
  for (std::size_t row = 0; row < dashas.Rows.size(); ++row) {
    if (chart::PlanetCode(dashas.At(row, chart::DashaColumn::Planet).Text) != subject.Code) {
      continue;
    }
    const std::vector<std::string> span =
        core::Split(dashas.At(row, chart::DashaColumn::EndDate).Tag, '*');
    const core::DateTime start = core::ParseLongDateText(span.at(0)).value();
    const core::DateTime end = core::ParseLongDateText(span.at(1)).value();
    const std::string from = core::LongDateText(start, false);
    const std::string to = core::LongDateText(end, false);
    if (start <= today && today <= end) {
      sheet.Dasha = "Current Dasha started on " + from + " and ends on " + to;
      sheet.DashaColor = "000000";
    } else if (end < today) {
      sheet.Dasha = "Dasha started on " + from + " and ended on " + to;
      sheet.DashaColor = core::kRed;
    } else {
      sheet.Dasha = "Dasha starts on " + from + " and ends on " + to;
      sheet.DashaColor = "0000FF";
    }
  }
}

// One of the two lists: the rows of the hits whose `own` column is the planet, shown by the other
// end of the hit.
core::Table HitList(const Subject& subject, core::Table list, vedic::HitColumn own,
                    const std::vector<vedic::HitColumn>& others, vedic::HitColumn direction) {
  const core::Table& hits = subject.Model.HitsTable;
  for (std::size_t row = 0; row < hits.Rows.size(); ++row) {
    if (hits.At(row, own).Text != subject.Code) {
      continue;
    }
    core::Row& added = list.AddRow();
    for (const vedic::HitColumn other : others) {
      added.Cells.at(0).Text += hits.At(row, other).Text;
    }
    added.Cells.at(1).Text = hits.At(row, direction).Text;
    added.Cells.at(2).Text = hits.At(row, vedic::HitColumn::Aspect).Text;
    const bool good = hits.At(row, vedic::HitColumn::Type).Text == "P";
    added.Cells.at(2).Background = good ? core::kGoodColor : core::kHardColor;
  }
  return list;
}

void FillLists(const Subject& subject, PlanetSheet& sheet) {
  using vedic::HitColumn;
  sheet.Aspecting = {{{"Planet/House", 150}, {"In Direction", 150}, {"Degree", 60}}, {}};
  sheet.AspectedBy = {{{"Planet", 150}, {"From Direction", 150}, {"Degree", 60}}, {}};
  if (subject.IsNode()) {
    sheet.AspectingNote = "Not Applicable";
  } else {
    sheet.Aspecting = HitList(subject, sheet.Aspecting, HitColumn::FromPlanet,
                              {HitColumn::ToPlanet, HitColumn::ToHouse}, HitColumn::ToDir);
  }
  sheet.AspectedBy = HitList(subject, sheet.AspectedBy, HitColumn::ToPlanet,
                             {HitColumn::FromPlanet}, HitColumn::FromDir);
}

}  // namespace

std::vector<SheetFact> FactsOf(const PlanetSheet& sheet) {
  std::vector<SheetFact> facts;
  for (const core::Row& row : sheet.Sheet.Rows) {
    for (std::size_t label = 0; label + 1 < row.Cells.size(); label += 2) {
      if (!row.Cells[label].Text.empty()) {
        facts.push_back({row.Cells[label].Text, row.Cells[label + 1].Text});
      }
    }
  }
  return facts;
}

PlanetSheet ShowPlanetDetails(const chart::HoroscopeModel& model, std::size_t planetRow,
                              core::DateTime today) {
  const std::string planet = chart::PlanetText(model, planetRow, PlanetColumn::Planet);
  const Subject subject{model, planetRow, chart::PlanetCode(planet)};
  PlanetSheet sheet;
  sheet.Title = planet + " (" + subject.Text(PlanetColumn::Rashi) + ")";
  sheet.AspectingCaption = planet + " is aspecting:";
  sheet.AspectedByCaption = "Planet(s) aspecting " + planet + ":";
  core::Attempt([&] {
    const auto rashi =
        core::ParseWhole(chart::PlanetTag(model, planetRow, PlanetColumn::Rashi)).value();
    sheet.Direction = chart::VastuDirection(static_cast<int>(rashi));
  });
  core::Attempt([&] { WriteDasha(subject, core::DateOnly(today), sheet); });
  sheet.Sheet = MainTable(subject);
  core::Attempt([&] { FillLists(subject, sheet); });
  return sheet;
}

}  // namespace orvex::transit
