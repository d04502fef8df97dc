// The birth of a .mtx file.
#pragma once

#include <string>
#include <string_view>

#include "exchange/file_birth.h"

namespace orvex::exchange {

// Reads the list of one value a line, in the order and with the signs of a .jhd file (see
// ReadJhd). Any other layout under this ending is refused with advice instead of being guessed at.
FileReading ReadMtx(std::string_view bytes, const std::string& name);

}  // namespace orvex::exchange
