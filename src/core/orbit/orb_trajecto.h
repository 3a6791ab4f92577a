// Keplerian propagation: the satellite and the Sun at a date, and the eclipse.
// Dates are day counts since 1950-01-01 00:00; results in the orbit outputs,
// inertial frame of 1950, km and km/s. Each call depends on the date alone.
#pragma once
#include "core/orbit/orbite.h"
#include "core/shell/erreur.h"

namespace kestrel {

// Node om (deg, equinox of the epoch) referred to the 1950 equinox: a
// precession of 12.81161661111 deg per 365250 days from 1950 to the epoch of
// o, plus 360 once if negative. Depends on the epoch only, not on the date.
double ascension_1950(const Orbite& o, double om);

// Fills every field of s but the ground point. Never allocates. A position
// inside the 6428 km shadow radius or a Newton loop past its safety cap
// records a fault in `faute` (with the date; the first one is kept) instead
// of hanging.
void orb_position(const Orbite& o, double j, SortiesOrbite& s, Erreur& faute);
// Angles in degrees (converted in place on the copies), d = epoch day from 0.
void orb_kepler(SortiesOrbite& s, Erreur& faute, double j, double a, double e, double i, double w,
                double om, double m0, double d, int an);
// Angles in radians; on return m holds the eccentric anomaly. j dates a fault.
void orb_cartesien(SortiesOrbite& s, Erreur& faute, double j, double a, double e, double i, double w,
                   double om, double& m);

// orb_position, then the ground point of that position (sat_lon, sat_lat,
// sat_alt): the whole orbit state at date j.
void orbite_a_date(const Orbite& o, double j, SortiesOrbite& s, Erreur& faute);

}  // namespace kestrel
