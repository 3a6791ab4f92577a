// The row an orbit run writes for each date (the CSV of `kestrel orbit`):
// j (days), satellite position (km) and velocity (km/s) in the inertial frame
// of 1950, Sun position (km), eclipse (-1 in the shadow, 0 not), mean anomaly,
// longitude and latitude (rad), altitude (km). Made and checked here.
#pragma once
#include <array>

#include "core/orbit/orbite.h"
#include "core/shell/erreur.h"

namespace kestrel {

inline constexpr const char* COLONNES_ORBITE[15] = {"j",     "sat_x", "sat_y", "sat_z",   "vit_x",
                                                    "vit_y", "vit_z", "sun_x", "sun_y",   "sun_z",
                                                    "eclipse", "anomalie_moy", "lon", "lat", "alt"};
// Units of the columns, same order: days since 1950, km, km/s, km, -1 or 0, rad, km.
inline constexpr const char* UNITES_ORBITE[15] = {"j",   "km",  "km",  "km",  "km/s", "km/s", "km/s", "km",
                                                  "km",  "km",  "-",   "rad", "rad",  "rad",  "km"};
using LigneOrbite = std::array<double, 15>;

void ligne_orbite(double j, const SortiesOrbite& o, LigneOrbite& v);

// The row of o at j; false with a valeur_non_finie fault in `faute` (its
// column and j) when a value is not finite.
bool ligne_orbite_finie(Erreur& faute, double j, const SortiesOrbite& o, LigneOrbite& v);

}  // namespace kestrel
