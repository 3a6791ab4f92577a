// Gravity-gradient torque, body axes, N.m. Reads the orbit state already
// brought to `date` (days since 1950) and turns its vectors with
// inertiel_vers_corps (the nominal pointing angles of etat.pointage, never
// the integrated attitude).
#pragma once

namespace kestrel {

struct Etat;

// (3 mu / r³) n x (J n): n the unit position in body axes, r in km, J the
// total inertia with its products negated. Writes c_gravite.
void couple_gravite(Etat& etat);

}  // namespace kestrel
