// Keplerian propagation: the satellite and the Sun at a date, and the eclipse.
// Dates are day counts since 1950-01-01 00:00; results in etat.orb, inertial
// frame of 1950, km and km/s. Each call depends on the date alone.
#pragma once

namespace kestrel {

struct Etat;
struct Orbite;

// Node om (deg, equinox of the epoch) referred to the 1950 equinox: a
// precession of 12.81161661111 deg per 365250 days from 1950 to the epoch of
// o, plus 360 once if negative. Depends on the epoch only, not on the date.
double ascension_1950(const Orbite& o, double om);

// Fills every field of etat.orb but the ground point. Never allocates. A
// position inside the 6428 km shadow radius or a Newton loop past its safety
// cap records a fault in etat.faute (with the date) instead of hanging.
void orb_position(Etat& etat, double j);
// Angles in degrees (converted in place on the copies), d = epoch day from 0.
void orb_kepler(Etat& etat, double j, double a, double e, double i, double w,
                double om, double m0, double d, int an);
// Angles in radians; on return m holds the eccentric anomaly.
void orb_cartesien(Etat& etat, double a, double e, double i, double w, double om, double& m);

}  // namespace kestrel
