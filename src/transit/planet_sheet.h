// Everything that an open horoscope knows of one planet, in one place. It reads the tables of the
// horoscope and computes almost nothing.
#pragma once

#include <string>
#include <vector>

#include "chart/horoscope_model.h"
#include "core/clock.h"

namespace orvex::transit {

// Three pairs of label and value a row.
enum class SheetColumn { Label1, Value1, Label2, Value2, Label3, Value3 };

enum class AspectingColumn { PlanetOrHouse, InDirection, Degree };
enum class AspectedByColumn { Planet, FromDirection, Degree };

struct PlanetSheet {
  std::string Title;      // "Sun (Gemini)"
  std::string Direction;  // of the planet's sign
  std::string Dasha;      // when its Dasha was, is or will be
  std::string DashaColor;
  std::string AspectingCaption;
  std::string AspectingNote;  // "Not Applicable" for the nodes, whose list is empty
  std::string AspectedByCaption;
  core::Table Sheet;
  core::Table Aspecting;
  core::Table AspectedBy;
};

struct SheetFact {
  std::string Label;
  std::string Value;  // "" where its source is missing
};

// The pairs of the main table, one after the other.
std::vector<SheetFact> FactsOf(const PlanetSheet& sheet);

// The sheet of a row of the planet table. A cell whose source is missing stays empty.
// std::out_of_range for a row that the table does not have.
PlanetSheet ShowPlanetDetails(const chart::HoroscopeModel& model, std::size_t planetRow,
                              core::DateTime today);

}  // namespace orvex::transit
