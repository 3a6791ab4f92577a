// The surroundings the thermal and solar models take from the environment
// page: the solar constant over the year (from the Sun's luminosity and the
// Sun-Earth distance of each month) and the Earth's monthly albedo and
// infrared. Distances in km, fluxes in W/m², luminosity in W.
#pragma once
#include <array>
#include <string>

#include "core/shell/validateurs.h"

namespace kestrel {

struct PowerRecord;

// Sun-Earth distance of each month, January first, km.
extern const std::array<double, 12> distance_soleil_mois;
constexpr double distance_soleil_max = 152101686.718472;  // km, aphelion
constexpr double distance_soleil_min = 147090267.044645;  // km, perihelion

// A value as a "0.00" box shows it, kept as a single.
float arrondi_centieme(double x);

// L / (4 pi d^2), d in km, rounded to a single.
float flux_solaire(double luminosite, double d);

// Isothermal Earth: each month's infrared balances the sunlight it absorbs,
// ir = (1 - albedo) flux / 4, kept to two decimals.
void modele_isotherme(PowerRecord& p);

// Entry of the yearly minimum (element 0, at the largest distance) or maximum
// (element 1, at the smallest) of the solar constant: the minimum may not pass
// the current maximum nor the maximum go under the current minimum; the
// luminosity follows from the value.
Verdict saisit_flux(PowerRecord& p, int element, const std::string& texte);
// Albedo of a month, 0 to 1.
Verdict saisit_albedo(PowerRecord& p, int mois, const std::string& texte);
// Infrared of a month, W/m², not negative.
Verdict saisit_ir(PowerRecord& p, int mois, const std::string& texte);

}  // namespace kestrel
