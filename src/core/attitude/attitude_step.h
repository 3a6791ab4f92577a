// One explicit first-order step of the rigid body carrying three wheels held
// at constant speed and three spring-mass-damper nutation dampers.
//
// The body rates' derivatives and the dampers' accelerations solve one linear
// system M x = R rebuilt from the state (M 6x6, R from the torque, the damper
// speeds and the gyroscopic and spring terms); inactive dampers (mass <= 1e-21
// kg) drop their row and column. Angles are then carried forward: inertial
// Euler angles yi, and the local-orbital angles yd found from them.
#pragma once
#include "core/shell/types.h"

namespace kestrel {

struct Etat;
struct TablesAtmosphere;

// dt: s; date: days since 1950 at the start of the step, with the orbit state
// (position, velocity, ground point) already at `date`. On return the orbit
// state is at date + dt / 86400 and the result is true, unless the system was
// singular: then nothing moved (the orbit stays at `date`), the result is
// false, the step is noted in etat.alertes (not a fault: the run goes on and
// nothing is shown), and the caller simply tries the next step. `tables`: the air density
// tables read when the run was prepared.
bool attitude_step(Etat& etat, double dt, double date, const TablesAtmosphere& tables);

// One turn by sign and real modulo: sign(x) (|x| mod 2 pi), rad.
double reduit_tour(double x);
// reduit_tour, then into (-pi, pi]: -pi itself turns to +pi (inertial angles).
double reduit_inertiel(double x);
// reduit_tour, then into [-pi, pi]: -pi itself stays (local-orbital angles).
double reduit_orbital(double x);

// Of the two local-orbital solutions s1, s2 (roll, pitch, yaw) and s3 = s2 a
// turn lower in pitch, three tests in order each take the one nearest in pitch
// to yd(4) dt + yd(2), that prediction made from yd as the test before left
// it. Taking one writes yd(0) roll, yd(2) pitch, yd(1) yaw.
void choix_tangage(Vec6& yd, const Vec3& s1, const Vec3& s2, double dt);

// Finite-difference rate of an angle from its previous value q (rad, rad/s).
// A jump over 300 deg between angles of opposite signs counts as a wrap of q.
double taux_differences(double y, double q, double dt);

}  // namespace kestrel
