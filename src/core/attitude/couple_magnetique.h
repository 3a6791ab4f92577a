// Magnetic torque, body axes, N.m. Reads the orbit state already
// brought to `date` (days since 1950) and turns its vectors with
// inertiel_vers_corps (the nominal pointing angles of etat.pointage, never
// the integrated attitude).
#pragma once

namespace kestrel {

struct Etat;

// Dipole (switch x actuator + residual, A m²) crossed with the degree-6
// geomagnetic field (T) in body axes. Writes c_magnetique.
void couple_magnetique(Etat& etat, double date);

}  // namespace kestrel
