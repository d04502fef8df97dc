// The Bhrigu Nandi Nadi table: the nine planets by their degree within the sign, with the sequences
// that their places give.
#pragma once

#include "chart/horoscope_model.h"

namespace orvex::vedic {

enum class BnnColumn {
  Pln,  // planet code, with "~" behind it for a retrograde planet
  Deg,
  Aspecting,  // written by CheckandShowAllAspects
  BnnSeq,
  BnnRetroSeq
};

// Writes the table anew from the house table and the planet table, and marks in "Retro Rashi" of
// the house table the sign before that of every retrograde planet. Planets without a degree within
// the sign are left out.
void BuildBnnTable(chart::HoroscopeModel& model);

// Appends the sequences to the tooltips of the planets, on a line of their own. A planet that the
// table does not have keeps its tooltip.
void AppendBnnTooltips(chart::HoroscopeModel& model);

}  // namespace orvex::vedic
