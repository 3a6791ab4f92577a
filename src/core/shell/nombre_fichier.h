// The number form of the line-oriented project file: what the writer puts on
// a value line. Integers and reals get a leading blank (or "-") and one
// trailing blank; reals are the shortest decimal that reads back to the same
// value within 7 (float) or 15 (double) significant digits, with no "0"
// before the point below 1 (" .53 ") and an exponent form "1.2E-03" below
// 0.01 or when the integer part needs more digits than the precision.
#pragma once
#include <cstdint>
#include <string>

namespace kestrel {

// " 42 ", "-7 ".
std::string texte_entier(long long v);
// 7 significant digits at most: " .53 ", "-1.234567E-05 ", " 1E+08 ".
std::string texte_reel(float v);
// 15 significant digits at most: " 18707.55001 ".
std::string texte_reel(double v);
// A 16-bit truth value through a byte: " 255 " when non-zero, " 0 " otherwise.
std::string texte_booleen(int16_t v);
// Picture "0.0000E+00": five significant digits, no blanks ("3.8000E+26").
std::string texte_flux_solaire(double v);

}  // namespace kestrel
