// The Lo Shu grid of the birth date with its planes and missing numbers.
#pragma once

#include "chart/horoscope_model.h"
#include "core/reference_data.h"

namespace orvex::vedic {

enum class LoShuGridColumn { Left, Middle, Right };
enum class LoShuPlaneColumn { Seq, Plane, Description };
enum class LoShuAnalysisColumn { No, Element, Direction, Meaning };

// Background of what was found, from CalcGrid until ShowLoShu turns it into the final view.
inline constexpr const char* kPresentColor = "B7DA7F";

// Counts the digits of NumerologyTag, marks their cells and writes the texts of the cells that have
// a planet. Lays out the three tables anew. Zeros count for nothing.
void CalcGrid(const core::ReferenceData& reference, chart::HoroscopeModel& model);

// Marks the planes whose three numbers are present.
void CalcPlanes(chart::HoroscopeModel& model);

// Marks the numbers that are present.
void AnalyzeGrid(chart::HoroscopeModel& model);

// The final view: red texts where there is no mark, the fixed colours of the grid, the captions
// LoShuTitle and LoShuDate.
void ShowLoShu(chart::HoroscopeModel& model);

// The four steps above in their order.
void BuildLoShu(const core::ReferenceData& reference, chart::HoroscopeModel& model);

}  // namespace orvex::vedic
