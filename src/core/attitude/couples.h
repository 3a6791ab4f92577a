// Disturbance torques on the satellite, body axes, N.m. Each model reads the
// orbit state already brought to `date` (days since 1950), the Sun of
// orb.soleil_pos included, and turns its vectors with inertiel_vers_corps,
// i.e. with the nominal pointing angles of etat.pointage, never with the
// integrated attitude.
#pragma once

namespace kestrel {

struct Etat;
struct TablesAtmosphere;

// (3 mu / r³) n x (J n): n the unit position in body axes, r in km, J the
// total inertia with its products negated. Writes c_gravite.
void couple_gravite(Etat& etat);
// Co-rotation of the upper air as a multiple of the Earth's rate, by altitude
// (km): 1 at 100 km, rising to 1.4 from 400 to 600 km, back to 1 at 800 km.
double facteur_vent(double alt);
// Free-molecular flow on the six faces, air turning with the Earth (rate
// scaled by a wind factor of altitude), density from `tables`. Writes c_aero.
void couple_aero(Etat& etat, double date, const TablesAtmosphere& tables);
// Radiation pressure on the sunlit faces; exactly 0 in eclipse. Writes c_solaire.
void couple_solaire(Etat& etat, double date);
// Dipole (switch x actuator + residual, A m²) crossed with the degree-6
// geomagnetic field (T) in body axes. Writes c_magnetique.
void couple_magnetique(Etat& etat, double date);

// The four models, then ctot = ((magnetic + aero) + solar) + gravity.
void total_torque(Etat& etat, double date, const TablesAtmosphere& tables);
// For the results window: orbit and ground point brought to `date` first,
// then ctot = ((aero + magnetic) + solar) + gravity.
void total_torque_a_date(Etat& etat, double date, const TablesAtmosphere& tables);

}  // namespace kestrel
