#include "chart/horary_numbers.h"

#include "chart/zodiac_lookups.h"
#include "core/exact_numbers.h"

namespace orvex::chart {

core::Table HoraryNumbers(const core::ReferenceData& reference) {
  core::Table table{{{"Number", 60},
                     {"Sign", 90},
                     {"From", 70},
                     {"To", 70},
                     {"Sign Lord", 90},
                     {"Star Lord", 90},
                     {"Sub Lord", 90}},
                    {}};
  for (const core::SubRow& sub : reference.Subs) {
    table.AddRow().Tag = core::WholeText(sub.AscNo);
    const std::size_t row = table.Rows.size() - 1;
    table.At(row, NumberColumn::Number).Text = core::WholeText(sub.AscNo);
    table.At(row, NumberColumn::Sign).Text = RashiName(sub.RasiLordNo);
    table.At(row, NumberColumn::From).Text = core::FixedText(sub.AscPointBegin, 2);
    table.At(row, NumberColumn::To).Text = core::FixedText(sub.AscPointEnd, 2);
    table.At(row, NumberColumn::SignLord).Text = sub.RashiLord;
    table.At(row, NumberColumn::StarLord).Text = sub.StarLord;
    table.At(row, NumberColumn::SubLord).Text = sub.SubLord;
  }
  return table;
}

}  // namespace orvex::chart
