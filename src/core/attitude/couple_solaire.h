// Solar radiation pressure torque, body axes, N.m. Reads the orbit state already
// brought to `date` (days since 1950) and turns its vectors with
// inertiel_vers_corps (the nominal pointing angles of etat.pointage, never
// the integrated attitude).
#pragma once

namespace kestrel {

struct Etat;

// Radiation pressure on the sunlit faces; exactly 0 in eclipse. Writes c_solaire.
void couple_solaire(Etat& etat, double date);

}  // namespace kestrel
