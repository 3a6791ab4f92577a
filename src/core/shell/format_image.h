// Number and date pictures shown by the windows: "0.00", "#0.0000000000",
// "0.0E+00", "0.00e+00", "0.000E+00", "0000", "hh:mm:ss", "dd/mm/yyyy".
// A number picture is: integer digits ('0' always shown, '#' only when
// needed), an optional point and its decimals, an optional exponent part
// "E+00" / "e-00" ('+': sign always written, '-': only when negative).
#pragma once
#include <string>
#include <string_view>

#include "core/shell/calendrier.h"

namespace kestrel {

// x through a number picture; rounding to nearest of the decimal digits.
std::string format_image(double x, std::string_view image);

// A date through a picture of the tokens yyyy, dd, mm, hh, ss (mm is minutes
// when it follows hh, the month otherwise); any other character is copied.
std::string format_date(const Date& d, std::string_view image);

}  // namespace kestrel
