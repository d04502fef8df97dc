#include "exchange/mtx_reading.h"

#include "core/exact_numbers.h"
#include "core/text.h"
#include "exchange/jhd_reading.h"
#include "exchange/text_lines.h"

namespace orvex::exchange {

FileReading ReadMtx(std::string_view bytes, const std::string& name) {
  const std::vector<FileLine> lines = LinesOf(bytes);
  const bool isList = !lines.empty() && core::IsNumeric(lines.front().Text);
  if (!isList) {
    return {{},
            {{1,
              "the file is not the list of one value a line that can be read; please save the "
              "chart as .jhd or AAF in the program that wrote it"}}};
  }
  return ReadJhd(bytes, name);
}

}  // namespace orvex::exchange
