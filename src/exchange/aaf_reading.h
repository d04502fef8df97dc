// Births of a file in the Astrological Exchange Format.
#pragma once

#include <string_view>

#include "exchange/file_birth.h"

namespace orvex::exchange {

// The births of a file. A birth is a line "#A93:name,first name,sex,date,time,place,country" with
// "#B93:Julian day,latitude,longitude,zone,summer time" behind it and, as often as need be, "#COM:"
// for a line of comments and "#ZNAM:" for the name of the zone. A text without "#" goes on with the
// comment before it. Other lines with a tag are passed over, as the format permits. Every line that
// can't be read is refused with its number, and with it its birth.
FileReading ReadAaf(std::string_view bytes);

}  // namespace orvex::exchange
