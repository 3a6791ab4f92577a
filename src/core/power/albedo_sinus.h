// A yearly albedo curve: a sine of one year's period around a base value,
// at the base on the chosen month. albedo(m) = b + v sin((m - s) pi / 6).
#pragma once
#include <string>

#include "core/shell/validateurs.h"

namespace kestrel {

struct PowerRecord;

// Largest amplitude that keeps the curve inside [0, 1]: 1 - b above 0.5, b otherwise.
double amplitude_max_sinus(double base);

// base and amplitude as typed (single-precision numbers), mois 0..11 the
// month of the base. A refused entry leaves the twelve values as they were;
// otherwise each month is kept to two decimals.
Verdict modele_sinus(PowerRecord& p, const std::string& base, const std::string& amplitude, int mois);

}  // namespace kestrel
