// Sun, Earth and fluxes at the satellite for one date, in the body frame.
// Writes the direction fields (sun_*, nad_*), the fluxes, eclipse,
// earth_half and sun_nadir_cos of etat.pwr, and the pointing angles.
#pragma once

namespace kestrel {

struct Etat;

// date: day count. Calls orb_position; the spin angle (deg) is the initial
// yaw plus the turns made since j_debut at vitesse_spin (turns/min).
void environment_update(Etat& etat, double date);

// Spin angle in degrees at `date`, brought back by one correction of 360 only.
double angle_spin(const Etat& etat, double date);

}  // namespace kestrel
