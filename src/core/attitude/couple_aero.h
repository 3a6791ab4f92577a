// Aerodynamic torque, body axes, N.m. Reads the orbit state already
// brought to `date` (days since 1950) and turns its vectors with
// inertiel_vers_corps (the nominal pointing angles of etat.pointage, never
// the integrated attitude).
#pragma once

namespace kestrel {

struct Etat;
struct TablesAtmosphere;

// Co-rotation of the upper air as a multiple of the Earth's rate, by altitude
// (km): 1 at 100 km, rising to 1.4 from 400 to 600 km, back to 1 at 800 km.
double facteur_vent(double alt);
// Free-molecular flow on the six faces, air turning with the Earth (rate
// scaled by a wind factor of altitude), density from `tables`. Writes c_aero.
void couple_aero(Etat& etat, double date, const TablesAtmosphere& tables);

}  // namespace kestrel
