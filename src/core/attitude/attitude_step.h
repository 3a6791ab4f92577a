// One explicit first-order step of the rigid body carrying three wheels held
// at constant speed and three spring-mass-damper nutation dampers.
//
// The body rates' derivatives and the dampers' accelerations solve one linear
// system M x = R rebuilt from the state (M 6x6, R from the torque, the damper
// speeds and the gyroscopic and spring terms); inactive dampers (mass <= 1e-21
// kg) drop their row and column. Angles are then carried forward: inertial
// Euler angles yi, and the local-orbital angles yd found from them.
#pragma once

namespace kestrel {

struct Etat;

// dt: s; date: days since 1950 at the start of the step, with the orbit state
// (position, velocity, ground point) already at `date`. On return the orbit
// state is at date + dt / 86400, unless the system was singular: then nothing
// moved and the caller simply tries the next step.
void attitude_step(Etat& etat, double dt, double date);

// One turn by sign and real modulo: sign(x) (|x| mod 2 pi), rad.
double reduit_tour(double x);

}  // namespace kestrel
