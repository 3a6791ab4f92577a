// What the orbit window derives from the elements: the semi-major axis and
// the mean motion from each other (mu = 398601.3 km^3/s^2), the apogee and
// perigee altitudes over a 6378.137 km Earth, and the period as a text.
#pragma once
#include <string>

namespace kestrel {

struct Orbite;

// Mean motion in rev/day of the axis a (km): sqrt(mu / a^3) * 86400 / 2 pi.
double moy_mvt_depuis_demi(double a);
// Semi-major axis in km of the mean motion (rev/day): cbrt(mu / n^2), n in rad/s.
double demi_depuis_moy_mvt(double moy_mvt);

// Altitudes in km above the equator: (1 +- e) a - 6378.137.
double altitude_apogee(const Orbite& o);
double altitude_perigee(const Orbite& o);

// Period 1 / orb_moy_mvt days, written as the whole days when any, then the
// rest of the day as hh:mm:ss: "01:36:00", "2 j 00:00:00".
std::string texte_periode(const Orbite& o);

}  // namespace kestrel
