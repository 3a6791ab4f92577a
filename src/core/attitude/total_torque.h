// Disturbance torques on the satellite, body axes, N.m. Each model reads the
// orbit state already brought to `date` (days since 1950), the Sun of
// orb.soleil_pos included, and turns its vectors with inertiel_vers_corps,
// i.e. with the nominal pointing angles of etat.pointage, never with the
// integrated attitude. One model per source: couple_gravite, couple_aero,
// couple_solaire, couple_magnetique.
#pragma once

namespace kestrel {

struct Etat;
struct TablesAtmosphere;

// The four models, then ctot = ((magnetic + aero) + solar) + gravity.
void total_torque(Etat& etat, double date, const TablesAtmosphere& tables);
// For the results window: orbit and ground point brought to `date` first,
// then ctot = ((aero + magnetic) + solar) + gravity.
void total_torque_a_date(Etat& etat, double date, const TablesAtmosphere& tables);

}  // namespace kestrel
